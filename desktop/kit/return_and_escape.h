#pragma once

#include <functional>

class QPushButton;
class QWidget;

namespace lignara {

/// The button that Return presses while the focus is inside `area`. Where the area is a list, a
/// double click on a row presses it too.
void SetReturnButton(QWidget* area, QPushButton* button);

/// What Return does in a field, where that is not the work of a button.
void SetReturnCommand(QWidget* field, std::function<void()> command);

/// The button that Escape presses while the focus is inside `area`; in a panel, also while the
/// panel is the one opened last.
void SetEscapeButton(QWidget* area, QPushButton* button);

/// What Escape does to a panel that has no button of its own for it.
void SetEscapeCommand(QWidget* panel, std::function<void()> command);

/// True where the last two were told how Escape leaves just this area.
bool HasEscape(const QWidget* area);

/// Leaves an area as Escape does. False where its button cannot be pressed now.
bool PressEscape(QWidget* area);

/// Leaves the innermost area around a widget that Escape can leave. False where there is none.
bool LeaveArea(QWidget* widget);

/// The button that Return would press with the focus in a widget; null where it would do something
/// else, or nothing.
QPushButton* ReturnButtonOf(QWidget* widget);

/// The same of Escape.
QPushButton* EscapeButtonOf(QWidget* widget);

/// Does what Return does for a widget: its own command, or the button of the innermost area around
/// it that can be pressed. False where there is neither.
bool PressReturn(QWidget* widget);

}  // namespace lignara
