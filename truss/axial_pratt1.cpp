#include "truss/axial_loads.h"
#include "truss/axial_peaked.h"

namespace lignara {

void VERT_LOADS(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i < job.HalfSpans(); ++i) half.AX_V[i] = half.DV[i + 1];
  }
}

void TOP_LOADS(TrussJob& job) {
  // Panel 1 has no diagonal, so panel 2 takes over the force of the heel unchanged.
  WalkTopChord(job, [](TrussHalf& half, int i) { return half.TH[i - 1] - half.DH[i - 1]; });
}

void BOTTOM_LOADS(TrussJob& job) {
  WalkBottomChord(job, [](TrussHalf& half, int i) { return half.AX_C[i - 1] - half.DH[i]; });
}

}  // namespace lignara
