#include "truss/geometry.h"
#include "truss/half.h"

namespace lignara {
namespace {

/// Panel i of a truss with parallel chords: both chords and the diagonal.
void FlatPanel(const SessionState& s, TrussHalf& half, int i) {
  half.LEN_C[i] = s.PanelLength;
  half.LEN_T[i] = s.PanelLength;
  half.LEN_D[i] = Sqrt(Square(s.PanelLength) + Square(s.TrussHeight));
}

}  // namespace

void SLOPE_FLAT(TrussJob& job) {
  const SessionState& s = job.session;
  if (!(s.PanelLength > 0)) return FailRun(job, "L=0, ERROR");
  job.model.ANG_A = Atan(s.TrussHeight / s.PanelLength);
}

void FLAT_LENGTH(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i <= job.HalfSpans(); ++i) {
      FlatPanel(job.session, half, i);
      half.LEN_V[i] = job.session.TrussHeight;
    }
  }
  job.model.LEN_CV[1] = job.session.TrussHeight;
}

void WARREN_LENGTH(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i <= job.HalfSpans(); ++i) FlatPanel(job.session, half, i);
    half.LEN_V[1] = job.session.TrussHeight;
  }
}

void WarrenDrawnGeometry(TrussJob& job) {
  const Number quarter = job.session.TrussSpans / 2 / 2;
  job.model.WarrenChord = quarter == Floor(quarter) ? "TOP" : "BOTTOM";
}

}  // namespace lignara
