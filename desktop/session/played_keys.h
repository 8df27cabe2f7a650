#pragma once

#include <QKeySequence>

class QAbstractButton;
class QMainWindow;

namespace lignara {

class ToolWindow;

/// Does what a key does in a window wherever its focus is: presses a button, chooses a menu item,
/// leads into a field. False where it does nothing of the kind, or several widgets compete for it.
bool PressWindowKey(QMainWindow* window, const QKeySequence& key);

/// A key that presses a button of a window and leaves the focus where it is; empty where there is
/// none now.
QKeySequence KeyThatPresses(const QAbstractButton* button, ToolWindow* window);

}  // namespace lignara
