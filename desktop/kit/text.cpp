#include "desktop/kit/text.h"

namespace lignara {

QString WithoutKeyMarks(const QString& caption) {
  if (!caption.contains('&')) return caption;
  QString seen;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const bool mark = caption[i] == '&' && i + 1 < caption.size();
    if (mark) ++i;  // "&&" stands for the sign itself
    seen += caption[i];
  }
  return seen;
}

QString PlainCaption(const QString& caption) {
  QString plain = WithoutKeyMarks(caption).replace('\n', ' ');
  while (plain.endsWith(' ')) plain.chop(1);
  return plain;
}

QString Quoted(const QString& text) {
  QString inside = text;
  inside.replace("\\", "\\\\").replace("\"", "\\\"").replace("\n", "\\n");
  return "\"" + inside + "\"";
}

}  // namespace lignara
