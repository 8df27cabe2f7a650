#include "desktop/session/csv_line.h"

#include <QRegularExpression>

namespace lignara {

QString CsvLine(const QStringList& cells) {
  static const QRegularExpression special("[\",\\r\\n]");
  QStringList written;
  for (QString cell : cells) {
    const bool quoted = cell.contains(special);
    written << (quoted ? "\"" + cell.replace("\"", "\"\"") + "\"" : cell);
  }
  return written.join(',');
}

}  // namespace lignara
