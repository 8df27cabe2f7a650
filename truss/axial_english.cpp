#include "truss/axial_loads.h"
#include "truss/axial_peaked.h"

namespace lignara {

void VERT_LOADS_ENGLISH(TrussJob& job) {
  ActiveModel& m = job.model;
  const int n = job.HalfSpans();
  for (TrussHalf& half : HalvesOf(m)) {
    half.AX_V[1] = 0;
    for (int i = 2; i < n; ++i) half.AX_V[i] = half.DV[i];
  }
  const Number sine = Sin(m.ANG_D[n]);
  m.AX_CV[1] = m.AX_DL[n] * sine + m.AX_DR[n] * sine;
}

void TOP_LOADS_ENGLISH(TrussJob& job) {
  WalkTopChord(job, [](TrussHalf& half, int i) { return half.TH[i - 1] - half.DH[i]; });
}

void BOTTOM_LOADS_ENGLISH(TrussJob& job) {
  // Panel 1 has no diagonal, so panel 2 takes over the force of the heel unchanged.
  WalkBottomChord(job, [](TrussHalf& half, int i) { return half.AX_C[i - 1] - half.DH[i - 1]; });
}

}  // namespace lignara
