#include "desktop/session/program_start.h"

#include <QApplication>
#include <utility>

#include "app/launcher.h"
#include "app/session_state.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/tool_window.h"

namespace lignara {

void StartProgramAgain(SessionState& session, DesktopPlatform& platform) {
  for (const char* name : kWindowNames) {
    const bool stays = std::string(name) == window_name::kLauncher ||
                       std::string(name) == window_name::kRepeat;  // it is no part of a session
    if (!stays) platform.CloseWindow(name);
  }
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const SessionState before = std::move(session);
  session = SessionState();
  StartSession(session, "");
  session.DataDirectory = before.DataDirectory;
  session.FactorsAtStart = session.FactorsInstead = before.FactorsAtStart;
  platform.OpenWindow(window_name::kLauncher);
  platform.FindWindow(window_name::kLauncher)->StartAgain();
  platform.RefreshWindows();
}

}  // namespace lignara
