#pragma once

#include <functional>

class QPushButton;
class QWidget;

namespace lignara {

/// The button that Return presses while the focus is inside `area`. Where the area is a list, a
/// double click on a row presses it too.
void SetReturnButton(QWidget* area, QPushButton* button);

/// The button that Escape presses while the focus is inside `area`; in a panel, also while the
/// panel is the one opened last.
void SetEscapeButton(QWidget* area, QPushButton* button);

/// What Escape does to a panel that has no button of its own for it.
void SetEscapeCommand(QWidget* panel, std::function<void()> command);

/// True where the last two were told how Escape leaves just this area.
bool HasEscape(const QWidget* area);

/// Leaves an area as Escape does. False where its button cannot be pressed now.
bool PressEscape(QWidget* area);

/// The button that Return or Escape presses for a widget: that of the innermost area around it.
/// Null where there is none that can be pressed.
QPushButton* ReturnButtonFor(QWidget* widget);
QPushButton* EscapeButtonFor(QWidget* widget);

}  // namespace lignara
