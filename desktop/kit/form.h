#pragma once

#include <QString>

class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QWidget;

namespace lignara {

/// A width or height meant for letters of usual size, in the letters that the user has. All widths
/// below are taken so.
int InLetters(int size);

/// Adds a row "caption | field" to a grid. The caption carries the mnemonic; the field is known by
/// the plain caption. Returns the field.
QLineEdit* AddField(QGridLayout* grid, const QString& caption, int width = 96);

/// The same at a row of a grid, from a column on: the caption, then the field.
QLineEdit* PutField(QGridLayout* grid, int row, int column, const QString& caption, int width = 96);

/// The same for a value that is only shown.
QLineEdit* AddValue(QGridLayout* grid, const QString& caption, int width = 96);
QLineEdit* PutValue(QGridLayout* grid, int row, int column, const QString& caption, int width = 96);

/// The caption that stands beside a field of a grid.
QWidget* CaptionBeside(const QGridLayout* grid, const QLineEdit* field);

/// Makes a field one that is only shown. The Tab key passes it by; the mouse can mark its text.
void ShowOnly(QLineEdit* field);

/// A field without a caption of its own, known by a name.
QLineEdit* MakeField(const QString& name, int width = 96);

/// A list known by a name, high enough to show `rows` rows whole.
QListWidget* MakeList(const QString& name, int rows = 8);

/// Keeps the room of a widget while it is hidden, so that nothing moves when it shows.
void KeepRoom(QWidget* widget);

/// A list below its caption, which carries the mnemonic.
QWidget* MakeCaptionedList(const QString& caption, QListWidget* list);

/// A layout as a widget of its own, without a margin.
QWidget* InWidget(QLayout* layout);

/// A label in bold letters.
QLabel* MakeHeading(const QString& text);

/// A panel: a framed part of a window with a caption.
QGroupBox* MakePanel(const QString& caption);

/// Gives a widget the name by which scripts and screen readers find it.
template <typename Widget>
Widget* Named(const char* name, Widget* widget) {
  widget->setAccessibleName(name);
  return widget;
}

}  // namespace lignara
