#include "truss/geometry.h"

#include "truss/half.h"
#include "truss/truss_types.h"

namespace lignara {

void SLOPE_PEAK(TrussJob& job) {
  const SessionState& s = job.session;
  if (!(s.TrussLength > 0)) return FailRun(job, "TL=0, ERROR");
  job.model.ANG_A = Atan(s.TrussHeight / (s.TrussLength * 0.5));
  job.model.ANG_AC = kRightAngle - job.model.ANG_A;
}

void VERT_LENGTH(TrussJob& job) {
  const SessionState& s = job.session;
  if (!job.type.onePanelAHalf) {
    const Number slope = Tan(job.model.ANG_A);
    for (TrussHalf& half : HalvesOf(job.model)) {
      for (int i = 1; i <= job.HalfSpans(); ++i) half.LEN_V[i] = s.PanelLength * i * slope;
    }
  }
  job.model.LEN_CV[1] = s.TrussHeight;
}

void TOP_LENGTH(TrussJob& job) {
  const SessionState& s = job.session;
  for (TrussHalf& half : HalvesOf(job.model)) {
    if (job.type.onePanelAHalf) {
      half.LEN_T[1] = Sqrt(Square(s.TrussHeight) + Square(s.TrussLength / 2));
      continue;
    }
    const Number panel = Sqrt(Square(half.LEN_V[1]) + Square(s.PanelLength));
    for (int i = 1; i <= job.HalfSpans(); ++i) half.LEN_T[i] = panel;
  }
}

void BOTTOM_LENGTH(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i <= job.HalfSpans(); ++i) half.LEN_C[i] = job.session.PanelLength;
  }
}

void DIAG_LENGTH(TrussJob& job) {
  // A diagonal rises to the vertical ahead or falls from the one behind.
  const int behind = job.type.diagonalsFall ? 1 : 0;
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 2; i <= job.HalfSpans(); ++i) {
      half.LEN_D[i] = Sqrt(Square(half.LEN_V[i - behind]) + Square(half.LEN_C[i]));
    }
  }
}

bool ResetDiagonals(TrussJob& job) {
  ActiveModel& m = job.model;
  const Number panel = job.session.PanelLength;
  const int n = job.HalfSpans();
  if (!(panel > 0)) {
    FailRun(job, "L=0, ERROR");
    return false;
  }
  for (int i = 2; i < n; ++i) m.LEN_DL[i] = Sqrt(Square(panel) + Square(m.LEN_VL[i]));
  for (TrussHalf& half : HalvesOf(m)) {
    half.LEN_D[n] = Sqrt(Square(panel) + Square(job.session.TrussHeight));
  }
  return true;
}

}  // namespace lignara
