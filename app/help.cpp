#include "app/help.h"

#include "app/data_directory.h"

namespace lignara {

void ShowHelp(const std::string& windowName, const SessionState& session, Platform& platform) {
  platform.ShowHelp(DataPath(session.DataDirectory, kHelpFile), windowName);
}

}  // namespace lignara
