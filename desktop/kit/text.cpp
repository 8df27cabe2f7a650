#include "desktop/kit/text.h"

namespace lignara {

QString PlainCaption(const QString& caption) {
  QString plain;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const bool mark = caption[i] == '&' && i + 1 < caption.size();
    if (mark) ++i;  // "&&" stands for the sign itself
    plain += caption[i] == '\n' ? QChar(' ') : caption[i];
  }
  while (plain.endsWith(' ')) plain.chop(1);
  return plain;
}

}  // namespace lignara
