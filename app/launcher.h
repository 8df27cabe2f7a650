#pragma once

#include <string>

#include "app/platform.h"
#include "app/session_state.h"

namespace lignara {

/// The first window: what it holds.
struct LauncherWindow {
  std::string spanText;  ///< "Enter No. of Spans"
  std::string status;    ///< the line at its foot; empty where there is nothing to say
};

/// Gives the session its first content: the data directory, the neutral current member, the report
/// font. `currentDirectory` is without a trailing separator.
void StartSession(SessionState& session, const std::string& currentDirectory);

/// A truss picture: throws away the truss at hand, without a question, and opens the input of a new
/// one. `trussType` is the keyword of the type.
void StartTruss(const std::string& trussType, SessionState& session, Platform& platform);

/// "Multi-Span Beam": opens the window when the span field rounds to at least 2. A count too large
/// for 16 bits is a fault; it stores and opens nothing.
void StartMultiSpanBeam(const LauncherWindow& window, SessionState& session, Platform& platform);

/// True when the span field holds a count that "Multi-Span Beam" would accept.
bool AcceptsSpanCount(const LauncherWindow& window);

/// "Single Span Beams".
void StartSingleSpanBeam(SessionState& session, Platform& platform);

/// "TRUSS" or "BEAM" of the chooser: opens the member size calculator for that client.
void ChooseDesignMode(const std::string& mode, SessionState& session, Platform& platform);

/// Closes the windows that stand before the launcher, in the order of the program's exit.
void CloseAllWindows(Platform& platform);

}  // namespace lignara
