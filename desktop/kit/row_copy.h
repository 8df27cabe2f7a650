#pragma once

#include <QString>

class QAbstractItemView;

namespace lignara {

/// The rows of a list or table as text, a line each, with a tab between columns. The captions of a
/// table's columns stand first. `markedOnly`: the rows alone that are marked.
QString RowsAsText(const QAbstractItemView* view, bool markedOnly);

/// Lets the user copy the rows of a list or table by Ctrl+C and from its context menu: the rows
/// that are marked, and the whole list where none is. A list of which one row is chosen, for a
/// command to work on, is copied whole: a choice marks nothing.
void MakeCopyable(QAbstractItemView* view);

}  // namespace lignara
