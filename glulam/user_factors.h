#pragma once

#include "glulam/glulam_window.h"

namespace lignara {

/// Sets all user factors to 1, then to the user's defaults, as far as their file can be read.
void ShowDefaultFactors(GlulamWindow& window, const SessionState& session, Platform& platform);

/// Multiplies the values that the window shows by the user factors; one that is too large leaves
/// its value as it stands.
void ApplyUserFactors(GlulamWindow& window);

}  // namespace lignara
