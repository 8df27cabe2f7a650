#pragma once

#include <QString>
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

/// The number that a word is. A `ScriptError` where it is none.
double ToFigure(const ScriptWord& word);
int ToWhole(const ScriptWord& word);

}  // namespace lignara
