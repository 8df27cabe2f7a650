#include "desktop/session/still_windows.h"

#include <QApplication>
#include <QEvent>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/row_widths.h"
#include "desktop/kit/tool_window.h"

namespace lignara {

StillWindows::StillWindows(const DesktopPlatform& platform) {
  for (const QString& name : platform.OpenWindows()) Hold(platform.FindWindow(name));
  qApp->installEventFilter(this);
}

StillWindows::~StillWindows() {
  for (const QPointer<ToolWindow>& window : held_) {
    if (!window) continue;
    window->setUpdatesEnabled(true);
    MeasureLists(window);
  }
}

bool StillWindows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show) return false;
  if (auto* window = dynamic_cast<ToolWindow*>(watched)) Hold(window);
  return false;
}

void StillWindows::Hold(ToolWindow* window) {
  if (!window->updatesEnabled()) return;
  window->setUpdatesEnabled(false);
  held_.emplace_back(window);
}

}  // namespace lignara
