#include "desktop/kit/proposed_file_name.h"

#include <QRegularExpression>

namespace lignara {

QString FileNameOf(const QString& title) {
  constexpr int kLongest = 80;
  static const QRegularExpression barred("[\\x00-\\x1f/\\\\:*?\"<>|]");
  QString name = title;
  name = name.replace(barred, " ").simplified().left(kLongest);
  while (name.startsWith('.')) name.remove(0, 1);  // else the file would be a hidden one
  return name.simplified();
}

}  // namespace lignara
