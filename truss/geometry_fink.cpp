#include "truss/geometry.h"
#include "truss/half.h"

namespace lignara {

void VERT_LENGTH_FINK(TrussJob& job) {
  const Number sine = Sin(job.model.ANG_A);
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i <= job.HalfSpans(); ++i) half.LEN_V[i] = job.session.PanelLength * i * sine;
  }
}

void TOP_LENGTH_FINK(TrussJob& job) {
  const SessionState& s = job.session;
  const int n = job.HalfSpans();
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i <= n; ++i) half.LEN_T[i] = 0;
    Float32 below;  // rafter below the panel at hand
    for (int i = 1; i < n; ++i) {
      half.LEN_T[i] = Sqrt(Square(i * s.PanelLength) - Square(half.LEN_V[i])) - below;
      below += half.LEN_T[i];
    }
    const Number rafter = Sqrt(Square(s.TrussHeight) + Square(s.TrussLength / 2));
    half.LEN_T[n] = rafter - below;
  }
}

void DIAG_LENGTH_FINK(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 2; i <= job.HalfSpans(); ++i) {
      half.LEN_D[i] = Sqrt(Square(half.LEN_V[i - 1]) + Square(half.LEN_T[i]));
    }
  }
}

void FinkDrawnGeometry(TrussJob& job) {
  SLOPE_PEAK(job);
  job.model.ANG_W = kRightAngle - job.model.ANG_AC;
}

}  // namespace lignara
