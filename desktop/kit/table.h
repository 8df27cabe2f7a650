#pragma once

#include <QString>
#include <QStringList>

class QTableWidget;

namespace lignara {

/// A table that is only read, known by a name, with a caption for each column.
QTableWidget* MakeTable(const QString& name, const QStringList& captions);

}  // namespace lignara
