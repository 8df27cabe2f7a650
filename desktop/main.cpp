#include <QApplication>
#include <QDir>

#include "app/fault.h"
#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(lignara::kProgramName);
  lignara::SessionState session;
  lignara::DesktopPlatform platform(session);
  lignara::FaultScope faults(platform);
  lignara::StartSession(session, lignara::FromQt(QDir::currentPath()));
  platform.OpenWindow(lignara::window_name::kLauncher);
  return QApplication::exec();
}
