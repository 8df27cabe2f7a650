#include "truss/axial_peaked.h"

#include "truss/axial_loads.h"

namespace lignara {

void END_PANEL_LOADS(TrussJob& job) {
  const Number slope = Tan(job.model.ANG_A);
  if (!(slope > 0)) return FailRun(job, "TAN SLOPE IS 0!", "ERROR!");
  for (TrussHalf& half : HalvesOf(job.model)) {
    half.TV[1] = half.NODE_R;
    half.TH[1] = half.NODE_R / slope;
    half.AX_C[1] = half.TH[1];
  }
}

bool HasDiagonalArms(TrussJob& job) {
  for (int i = 2; i <= job.HalfSpans(); ++i) {
    if (job.model.ARM_D[i] > 0) continue;
    FailRun(job, "MOMENT ARM (MA) IS 0", "ERROR!");
    return false;
  }
  return true;
}

void SplitDiagonals(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 2; i <= job.HalfSpans(); ++i) {
      half.DV[i] = half.AX_D[i] * Sin(job.model.ANG_D[i]);
      half.DH[i] = half.AX_D[i] * Cos(job.model.ANG_D[i]);
    }
  }
}

void JoinTopChord(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i <= job.HalfSpans(); ++i) {
      half.AX_T[i] = Sqrt(Square(half.TH[i]) + Square(half.TV[i]));
    }
  }
}

void DIAG_LOADS(TrussJob& job) {
  if (!HasDiagonalArms(job)) return;
  for (TrussHalf& half : HalvesOf(job.model)) {
    Float32 moment;  // of the loads before the cut, about the heel
    for (int i = 2; i <= job.HalfSpans(); ++i) {
      moment += job.session.PanelLength * (i - 1) * half.P[i - 1];
      half.AX_D[i] = moment / job.model.ARM_D[i];
    }
  }
  SplitDiagonals(job);
}

}  // namespace lignara
