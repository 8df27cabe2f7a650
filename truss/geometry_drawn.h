#pragma once

#include "truss/active_model.h"

namespace lignara {

// What is worked out once, when a truss is drawn, and read by every run and by the loading. All
// angles in rad, lengths in ft.

/// What the session's type needs of this; nothing for most types.
void SetDrawnGeometry(TrussJob& job);

/// Slope of the rafter and ANG_W, the lean of the webs.
void FinkDrawnGeometry(TrussJob& job);
/// Angles and lengths of a scissors truss. The inner height is not held against the height: where
/// it is the larger one, lengths turn negative and the run finds it out.
void ScissorsDrawnGeometry(TrussJob& job);
/// WarrenChord: the chord on which the midspan node lies.
void WarrenDrawnGeometry(TrussJob& job);

}  // namespace lignara
