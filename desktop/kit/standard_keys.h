#pragma once

class QMainWindow;
class QWidget;

namespace lignara {

class DesktopPlatform;

/// Gives the commands that many windows have the same keys in all of them, found by their captions:
/// F5 runs, Ctrl+P prints, Ctrl+S saves the report, Ctrl+W closes. A key that a window has given
/// itself stays.
void SetStandardKeys(QMainWindow* window);

/// The same for the buttons of an area that came into the window later.
void SetButtonKeys(const QMainWindow* window, const QWidget* area);

/// The keys of what the user can do with the session, where the window has no menu items for it.
void SetSessionKeys(QMainWindow* window, const DesktopPlatform& platform);

}  // namespace lignara
