#pragma once

class QMainWindow;

namespace lignara {

/// Gives the commands that many windows have the same keys in all of them, found by their captions:
/// F5 runs, Ctrl+P prints, Ctrl+S saves the report, Ctrl+W closes. A key that a window has given
/// itself stays.
void SetStandardKeys(QMainWindow* window);

}  // namespace lignara
