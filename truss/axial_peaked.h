#pragma once

#include "truss/half.h"

namespace lignara {

// What the pitched trusses share in finding their member forces.

/// True where all diagonals have an arm about the heel; else "MOMENT ARM (MA) IS 0".
bool HasDiagonalArms(TrussJob& job);

/// Vertical and horizontal components of the diagonals, from their forces and slopes.
void SplitDiagonals(TrussJob& job);

/// Axial loads of the top chord from its components.
void JoinTopChord(TrussJob& job);

/// Walks up the rafter from panel 2: `horizontal(half, i)` is what the webs leave of the horizontal
/// component; the vertical one follows from the slope. Then the axial loads.
template <typename Horizontal>
void WalkTopChord(TrussJob& job, Horizontal horizontal) {
  const Number slope = Tan(job.model.ANG_A);
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 2; i <= job.HalfSpans(); ++i) {
      half.TH[i] = horizontal(half, i);
      half.TV[i] = half.TH[i] * slope;
    }
  }
  JoinTopChord(job);
}

/// Walks along the bottom chord from panel 2: `axial(half, i)` is what the webs leave of its force.
template <typename Axial>
void WalkBottomChord(TrussJob& job, Axial axial) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 2; i <= job.HalfSpans(); ++i) half.AX_C[i] = axial(half, i);
  }
}

}  // namespace lignara
