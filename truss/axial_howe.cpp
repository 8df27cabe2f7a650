#include "truss/axial_loads.h"
#include "truss/half.h"

namespace lignara {
namespace {

void HoweHalf(TrussJob& job, TrussHalf& half) {
  const Number a = job.model.ANG_A;
  half.AX_T[1] = 0;
  half.AX_V[1] = half.P[1];
  const Float32 v = Abs(half.NODE_R - half.AX_V[1]);
  const Float32 h = v / Tan(a);
  half.AX_D[1] = Abs(Sqrt(Square(h) + Square(v)));
  half.AX_C[1] = h;
  for (int i = 2; i <= job.HalfSpans(); ++i) {
    half.AX_T[i] = Abs(half.AX_T[i - 1] + half.AX_D[i - 1] * Cos(a));
    half.AX_V[i] = Abs(half.P[i] - half.AX_D[i - 1] * Sin(a));
    half.AX_D[i] = Abs(half.AX_V[i] / Sin(a));
    half.AX_C[i] = Abs(half.AX_C[i - 1] + half.AX_D[i] * Cos(a));
  }
}

}  // namespace

void HOWE_LOADS(TrussJob& job) {
  const SessionState& s = job.session;
  if (!(s.PanelLength > 0)) return FailRun(job, "ERROR L=0");
  job.model.ANG_A = Atan(s.TrussHeight / s.PanelLength);
  if (!(Tan(job.model.ANG_A) > 0)) return FailRun(job, "TAN(A) IS 0, ERROR");
  for (TrussHalf& half : HalvesOf(job.model)) HoweHalf(job, half);
  job.model.AX_CV[1] = 0;
}

}  // namespace lignara
