#pragma once

#include <string>

#include "app/platform.h"
#include "app/session_state.h"

namespace lignara {

/// The help document, in the data directory.
inline constexpr const char* kHelpFile = "LIGNARA.HLP";

/// Opens the help document at a window's section.
void ShowHelp(const std::string& windowName, const SessionState& session, Platform& platform);

}  // namespace lignara
