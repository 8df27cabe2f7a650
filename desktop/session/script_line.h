#pragma once

#include <QKeySequence>
#include <QString>
#include <QStringList>
#include <vector>

namespace lignara {

/// A word of a script line. A row given in quotes is the row's text, a bare one its index.
struct ScriptWord {
  QString text;
  bool quoted = false;
};

/// Splits a line into words: bare, or in double quotes with \" and \\ inside. Empty lines and lines
/// that begin with # have none. Throws ScriptError for a quote that is not closed.
std::vector<ScriptWord> SplitScriptLine(const QString& line);

/// The same of a line that may be spoilt: none where a quote is not closed.
std::vector<ScriptWord> WordsOf(const QString& line);

/// The captions of a line, without its first word and so many of its last.
QString Captions(const std::vector<ScriptWord>& words, std::size_t lastOnes);

/// The number that a word is. A `ScriptError` where it is none.
double ToFigure(const ScriptWord& word);
int ToWhole(const ScriptWord& word);

/// A text as the last word of a line: bare where it can be.
QString Word(const QString& text);

/// The name that scripts give a key, which the toolkit shortens.
QString KeyName(const QKeySequence& key);

/// Captions as words of a line, a blank before each.
QString PathWords(const QStringList& path);

/// A line of two words or more with another text in the place of the last.
QString WithLastWord(const QString& line, const QString& text);

}  // namespace lignara
