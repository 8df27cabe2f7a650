#include <QApplication>
#include <QDir>
#include <QTimer>

#include "app/fault.h"
#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "desktop/session/journal_keeper.h"
#include "desktop/session/sessions.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(lignara::kProgramName);
  lignara::SessionState session;
  lignara::DesktopPlatform platform(session);
  lignara::FaultScope faults(platform);
  lignara::StartSession(session, lignara::FromQt(QDir::currentPath()));
  lignara::Sessions sessions(session, platform);
  platform.OpenWindow(lignara::window_name::kLauncher);
  lignara::JournalKeeper journal(sessions, platform, lignara::JournalFolder());
  QTimer::singleShot(0, [&journal] { journal.OfferLeft(); });
  return QApplication::exec();
}
