#pragma once

#include <string>

#include "app/platform.h"
#include "app/session_state.h"

namespace lignara {

/// The small window `INTGR`, "Curve Integrations".
struct IntegrationsWindow {
  std::string integrations;
};

/// What the window says of its number.
inline constexpr const char* kIntegrationsNote =
    "The more iterations, the more accurate the moment diag.. The default value gets the accuracy "
    "to within 10% of the actual  moment. For Long systems, say over 100' you may have to increase "
    "this value to obtain an exact max. moment for stress results.";

/// Menu "Options", "Integrations...".
void OpenIntegrations(Platform& platform);
/// The window as it opens: the number that is stored.
void ShowIntegrations(IntegrationsWindow& window, const SessionState& session);
/// "OK": stores the number, rounded to a whole one (ties to even), and closes the window. One that
/// is too large leaves the old number.
void AcceptIntegrations(const IntegrationsWindow& window, SessionState& session,
                        Platform& platform);

}  // namespace lignara
