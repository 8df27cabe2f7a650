#pragma once

#include "truss/truss_window.h"

namespace lignara {

/// Fills the two fields under "End Reactions (lbs)". They keep the reactions of the run, for the
/// unit loads of the deflections overwrite those of the model.
void SHOW_REACTIONS(TrussWindow& window);

/// Clears and refills the list "Axial Load (lbs)": magnitudes of all members, after a blank row.
void SHOW_AXIAL(TrussWindow& window, const SessionState& session);

}  // namespace lignara
