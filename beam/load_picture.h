#pragma once

#include "beam/beam_window.h"

namespace lignara {

/// Draws the beam, its supports and its loads anew after a change of the loads. Without a length
/// nothing is drawn, and the user is told.
void DrawLoadPicture(BeamWindow& window, Platform& platform);
/// The same in silence: after a change of length, supports or selection.
void ShowLoadPicture(BeamWindow& window);

}  // namespace lignara
