#pragma once

#include "app/list_rows.h"

class QAbstractScrollArea;
class QLabel;
class QListWidget;
class QListWidgetItem;

namespace lignara {

/// From now on the list paints the notes and tints of its rows.
void ShowNotesOf(QListWidget* list);
void SetRowNote(QListWidgetItem* row, const RowNote& note);

/// True where a list has no row with a text.
bool IsEmptyList(const QListWidget* list);
/// A label in the room of a list or table, for the reason why it is empty.
QLabel* AddReasonLabel(QAbstractScrollArea* list);

}  // namespace lignara
