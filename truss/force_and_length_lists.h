#pragma once

#include "truss/truss_window.h"

namespace lignara {

/// Clears and refills the list "Axial Load (lbs)": magnitudes of all members, after a blank row.
void SHOW_AXIAL(TrussWindow& window, const SessionState& session);

}  // namespace lignara
