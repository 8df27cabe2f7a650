#pragma once

#include <QString>
#include <string>

namespace lignara {

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// A caption as it is seen: without the marks of its keys.
QString WithoutKeyMarks(const QString& caption);

/// A caption as scripts and screen readers know it: without mnemonic marks and the blanks at its
/// end, a line break read as a blank.
QString PlainCaption(const QString& caption);

/// A text in double quotes as scripts have it: \" and \\ inside, a line break as \n.
QString Quoted(const QString& text);

}  // namespace lignara
