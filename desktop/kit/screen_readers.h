#pragma once

class QWidget;
class QString;

namespace lignara {

/// Tells screen readers that pictures are pictures. Once a program.
void TellReadersOfPictures();

/// What a screen reader calls a widget, where scripts know it by a shorter name of its own.
void SetSpokenName(QWidget* widget, const QString& scriptName, const QString& spoken);

/// The name by which scripts know a widget, where that is not its spoken name; else empty.
QString ScriptNameOf(const QWidget* widget);

/// Describes a widget in words to screen readers.
void Describe(QWidget* widget, const QString& words);

}  // namespace lignara
