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

std::vector<ScriptWord> WordsOf(const QString& line) {
  try {
    return SplitScriptLine(line);
  } catch (const ScriptError&) {
    return {};
  }
}

QString Captions(const std::vector<ScriptWord>& words, std::size_t lastOnes) {
  QStringList captions;
  for (std::size_t i = 1; i + lastOnes < words.size(); ++i) captions << words[i].text;
  return captions.join(' ');
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

QString Word(const QString& text) {
  bool bare = !text.isEmpty();
  for (const QChar sign : text) {
    bare = bare &&
           ((sign.unicode() < 128 && sign.isLetterOrNumber()) || QString("+-._").contains(sign));
  }
  return bare ? text : Quoted(text);
}

QString KeyName(const QKeySequence& key) {
  return key == QKeySequence(Qt::Key_Escape) ? QString("Escape") : Word(key.toString());
}

QString PathWords(const QStringList& path) {
  QString words;
  for (const QString& caption : path) words += " " + Quoted(caption);
  return words;
}

QString WithLastWord(const QString& line, const QString& text) {
  const std::vector<ScriptWord> words = WordsOf(line);
  QString changed = words[0].text;
  for (std::size_t i = 1; i + 1 < words.size(); ++i) changed += " " + Quoted(words[i].text);
  return changed + " " + Quoted(text);
}

}  // namespace lignara
