#pragma once

#include <QString>
#include <QStringList>

namespace lignara {

/// A row of a table as a line of a CSV file.
QString CsvLine(const QStringList& cells);

}  // namespace lignara
