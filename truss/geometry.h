#pragma once

#include "truss/active_model.h"

namespace lignara {

// Slopes, rad, and member lengths, ft, from the dimensions in the session. A detected error is
// shown and fails the run; an arithmetic fault leaves the element as it was.

/// Slope of the top chord of a pitched truss: ANG_A, ANG_AC. "TL=0, ERROR" without a length.
void SLOPE_PEAK(TrussJob& job);
/// Slope of the diagonals between parallel chords: ANG_A. "L=0, ERROR" without a panel length.
void SLOPE_FLAT(TrussJob& job);

/// Verticals of PRATT1 and ENGLISH; the post alone of KINGPOST.
void VERT_LENGTH(TrussJob& job);
/// Webs of FINK, square to the top chord.
void VERT_LENGTH_FINK(TrussJob& job);
/// Webs and centre vertical of SCI. "SIN(AB)=0, ERROR" where the bottom chord does not rise.
void VERT_LENGTH_SCI(TrussJob& job);

/// Top chord of PRATT1 and ENGLISH by panels; the rafter of KINGPOST.
void TOP_LENGTH(TrussJob& job);
/// Top chord of FINK: between the feet of the webs.
void TOP_LENGTH_FINK(TrussJob& job);
/// Rafter of SCI, below and above its node.
void TOP_LENGTH_SCI(TrussJob& job);

/// Level bottom chord by panels.
void BOTTOM_LENGTH(TrussJob& job);
/// Raised bottom chord of SCI, a half.
void BOTTOM_LENGTH_SCI(TrussJob& job);

/// Diagonals of PRATT1 and ENGLISH, from panel 2. ARMS_PRATT1 and ARMS_ENGLISH come after it.
void DIAG_LENGTH(TrussJob& job);
/// Sets the lengths of those diagonals anew, as ARMS_PRATT1 and ARMS_ENGLISH begin: it is these
/// that lists, stresses and deflections read. False, with "L=0, ERROR", where there is no panel
/// length.
bool ResetDiagonals(TrussJob& job);
/// Diagonals of FINK, from panel 2.
void DIAG_LENGTH_FINK(TrussJob& job);

/// All lengths of PRATT2 and HOWE.
void FLAT_LENGTH(TrussJob& job);
/// All lengths of WARREN.
void WARREN_LENGTH(TrussJob& job);

// What a type has worked out once, when it is drawn: see truss/geometry_drawn.h.

/// Slope of the rafter and ANG_W, the lean of the webs.
void FinkDrawnGeometry(TrussJob& job);
/// Angles and lengths of a scissors truss. The inner height is not held against the height: where
/// it is the larger one, lengths turn negative and the run finds it out.
void ScissorsDrawnGeometry(TrussJob& job);
/// WarrenChord: the chord on which the midspan node lies.
void WarrenDrawnGeometry(TrussJob& job);

}  // namespace lignara
