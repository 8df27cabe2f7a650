#include "desktop/session/script_line.h"

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"

namespace lignara {
namespace {

/// Reads a quoted word; `at` stands on the opening quote and ends behind the closing one.
QString ReadQuoted(const QString& line, qsizetype& at) {
  QString text;
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      return text;
    }
    const bool escape =
        line[at] == '\\' && at + 1 < line.size() && (line[at + 1] == '"' || line[at + 1] == '\\');
    if (escape) ++at;
    text += line[at];
  }
  throw ScriptError{"a quote is not closed"};
}

QString ReadBare(const QString& line, qsizetype& at) {
  const qsizetype start = at;
  while (at < line.size() && !line[at].isSpace()) ++at;
  return line.mid(start, at - start);
}

}  // namespace

std::vector<ScriptWord> SplitScriptLine(const QString& line) {
  std::vector<ScriptWord> words;
  qsizetype at = 0;
  while (true) {
    while (at < line.size() && line[at].isSpace()) ++at;
    if (at >= line.size()) return words;
    if (words.empty() && line[at] == '#') return words;
    const bool quoted = line[at] == '"';
    words.push_back({quoted ? ReadQuoted(line, at) : ReadBare(line, at), quoted});
  }
}

double ToFigure(const ScriptWord& word) {
  bool ok = false;
  const double value = word.text.toDouble(&ok);
  if (!ok) throw ScriptError{Quoted(word.text) + " is not a number"};
  return value;
}

int ToWhole(const ScriptWord& word) {
  bool ok = false;
  const int value = word.text.toInt(&ok);
  if (!ok) throw ScriptError{Quoted(word.text) + " is not a whole number"};
  return value;
}

}  // namespace lignara
