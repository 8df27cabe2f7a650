#pragma once

#include "truss/active_model.h"

namespace lignara {

// Lever arms about the heel, ft, and angles of the web, rad, for the method of sections. They stand
// behind the lengths in a chain.

/// ARM_L, ARM_R, ANG_V, ANG_D, ANG_T, ARM_D. "L=0, ERROR" without a panel length, "VL(N)=0, ERROR"
/// without a vertical. Sets the lengths of the diagonals anew.
void ARMS_PRATT1(TrussJob& job);
/// ARM_L, ARM_R, ANG_D, ARM_D. "L=0, ERROR" without a panel length. Sets the lengths of the
/// diagonals anew, by the rule of PRATT1 and between the ends on the left alone: the stress check
/// and the deflections take these numbers.
void ARMS_ENGLISH(TrussJob& job);
/// ARM_L, ARM_R, ANG_T, ARM_D.
void ARMS_FINK(TrussJob& job);
/// ARM_L, ARM_R, ARM_D, SCI_TOPARM.
void ARMS_SCI(TrussJob& job);

}  // namespace lignara
