#include "tests/desktop/session/spoilt_lines.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <utility>

namespace lignara {
namespace {

/// The kept scripts without what only looks, which a session passes over.
std::vector<QStringList> ReadScripts() {
  static const QStringList looks = {"read", "rows", "state", "shapes", "windows"};
  std::vector<QStringList> scripts;
  const QDir folder(LIGNARA_SCRIPTS_DIRECTORY);
  for (const QString& name : folder.entryList({"*.lig"})) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) continue;
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return looks.contains(line.section(' ', 0, 0)); });
    scripts.push_back(lines);
  }
  return scripts;
}

const std::vector<QStringList>& Scripts() {
  static const std::vector<QStringList> scripts = ReadScripts();
  return scripts;
}

/// Each word of the kept scripts, quoted ones whole.
QStringList ReadWords() {
  QStringList words;
  for (const QStringList& lines : Scripts()) {
    for (const QString& line : lines) {
      const QStringList parts = line.split('"');
      for (qsizetype i = 0; i < parts.size(); ++i) {
        if (i % 2 == 1) words << "\"" + parts[i] + "\"";
        if (i % 2 == 0) words += parts[i].split(' ', Qt::SkipEmptyParts);
      }
    }
  }
  words.removeDuplicates();
  return words;
}

const QStringList& Words() {
  static const QStringList words = ReadWords();
  return words;
}

const QStringList& Verbs() {
  static const QStringList verbs = {
      "window",     "press",  "menu",  "enter", "key",       "select", "click",   "scroll",
      "close",      "answer", "read",  "rows",  "state",     "shapes", "windows", "picture",
      "screenshot", "#",      "PRESS", "exit",  "\"press\"", ""};
  return verbs;
}

/// Figures, rows, places, keys and texts that nobody means.
const QStringList& Values() {
  static const QStringList values = {"0",
                                     "-1",
                                     "1",
                                     "2147483647",
                                     "-2147483648",
                                     "2147483648",
                                     "99999999999",
                                     "32767",
                                     "-32768",
                                     "32768",
                                     "1e308",
                                     "-1e308",
                                     "1e309",
                                     "1e-320",
                                     "1e38",
                                     "3.5e38",
                                     "nan",
                                     "NaN",
                                     "inf",
                                     "-inf",
                                     "-0",
                                     "0x10",
                                     "1,5",
                                     "\"\"",
                                     "\" \"",
                                     "\\",
                                     "\"",
                                     "\"\\\"",
                                     "''",
                                     "%1",
                                     "%s%n",
                                     "&",
                                     "\"&&\"",
                                     "<b>x</b>",
                                     "F1",
                                     "F5",
                                     "F24",
                                     "F35",
                                     "Tab",
                                     "Shift+Tab",
                                     "Return",
                                     "Escape",
                                     "Space",
                                     "Up",
                                     "End",
                                     "PgDown",
                                     "Ctrl+A",
                                     "Ctrl+C",
                                     "Ctrl+V",
                                     "Ctrl+W",
                                     "Ctrl+Z",
                                     "Ctrl+O",
                                     "Ctrl+Shift+S",
                                     "Ctrl+P",
                                     "Ctrl+S",
                                     "Alt+F4",
                                     "Ctrl+Alt+Del",
                                     "Ctrl+",
                                     "+",
                                     "main",
                                     "HELP",
                                     "ABOUT",
                                     "TRUSS",
                                     "MLSP",
                                     "MDOUTPUT",
                                     "ok",
                                     "yes",
                                     "no",
                                     "cancel",
                                     "file /",
                                     "text \"\"",
                                     "file \"../../escaped\"",
                                     "file \"escaped\"",
                                     "file \"/dev/full\"",
                                     "file \"~\"",
                                     "\xE2\x80\xAE",
                                     "\xEF\xBB\xBF",
                                     "\xE2\x80\xA8",
                                     "\xF0\x9F\x92\xA5",
                                     QString(300, '9'),
                                     QString(5000, 'x'),
                                     QString(200000, 'y'),
                                     QString(5000, '"'),
                                     QString(3000, '\\'),
                                     "\"" + QString(5000, ' ') + "\"",
                                     QString("a ").repeated(2000)};
  return values;
}

}  // namespace

int SpoiltLines::Pick(qsizetype count) {
  return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
}

const QString& SpoiltLines::AnyOf(const QStringList& texts) { return texts[Pick(texts.size())]; }

QStringList SpoiltLines::Session() {
  constexpr int kMostLines = 90;
  const QStringList& script =
      Scripts()[static_cast<std::size_t>(Pick(static_cast<qsizetype>(Scripts().size())))];
  const qsizetype start = Pick(4) == 0 ? Pick(script.size()) : 0;
  QStringList lines = script.mid(start, 1 + Pick(kMostLines));
  const int oneOf = 2 + Pick(12);
  for (QString& line : lines) {
    if (Pick(oneOf) == 0) line = Spoilt(line);
  }
  if (Pick(4) == 0) std::swap(lines[Pick(lines.size())], lines[Pick(lines.size())]);
  return lines;
}

QString SpoiltLines::WithWord(const QString& line, const QString& word) {
  QStringList words = line.split(' ');
  words[Pick(words.size())] = word;
  return words.join(' ');
}

/// As a file gives it that is no text: any bytes in any place.
QString SpoiltLines::BadBytes(const QString& line) {
  QByteArray bytes = line.toUtf8();
  for (int i = Pick(4); i >= 0; --i)
    bytes.insert(Pick(bytes.size() + 1), static_cast<char>(Pick(256)));
  return QString::fromUtf8(bytes.replace('\n', ' '));
}

QString SpoiltLines::Spoilt(const QString& line) {
  switch (Pick(12)) {
    case 0:
      return line.left(Pick(line.size() + 1));
    case 1:
      return line.mid(Pick(line.size() + 1));
    case 2:
      return QString(line).insert(Pick(line.size() + 1), QChar(Pick(0x10000)));
    case 3:
      return BadBytes(line);
    case 4:
      return WithWord(line, AnyOf(Words()));
    case 5:
      return AnyOf(Verbs()) + " " + line.section(' ', 1);
    case 6:
      return line.section(' ', 0, 0) + " " + AnyOf(Words()) + " " + AnyOf(Values());
    case 7:
      return line + " " + AnyOf(Values());
    case 8:
      return AnyOf(Verbs()) + " " + AnyOf(Words()) + " " + AnyOf(Words());
    case 9:
      return QString(line).remove('"');
    default:
      // The last word is the figure, the row, the place, the text.
      return line.section(' ', 0, -2) + " " + AnyOf(Values());
  }
}

}  // namespace lignara
