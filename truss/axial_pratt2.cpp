#include "truss/axial_loads.h"
#include "truss/half.h"

namespace lignara {
namespace {

void Pratt2Half(TrussJob& job, TrussHalf& half) {
  const Number a = job.model.ANG_A;
  Float32 v;  // shear that the diagonal takes
  Float32 h;  // its horizontal component
  half.AX_V[1] = half.NODE_R;
  half.AX_C[1] = 0;
  v = Abs(half.NODE_R - half.P[1]);
  h = v / Tan(a);
  half.AX_T[1] = h;
  half.AX_D[1] = Abs(Sqrt(Square(h) + Square(v)));
  for (int i = 2; i <= job.HalfSpans(); ++i) {
    half.AX_V[i] = Abs(Sin(a) * half.AX_D[i - 1]);
    v = Abs(half.AX_V[i] - half.P[i]);
    h = v / Tan(a);
    half.AX_D[i] = Abs(Sqrt(Square(h) + Square(v)));
    half.AX_T[i] = Abs(half.AX_T[i - 1] + h);
    half.AX_C[i] = Abs(half.AX_C[i - 1] + half.AX_D[i - 1] * Cos(a));
  }
}

}  // namespace

void PRATT2_LOADS(TrussJob& job) {
  if (!(Tan(job.model.ANG_A) > 0)) return FailRun(job, "TAN(A)=0, ERROR");
  for (TrussHalf& half : HalvesOf(job.model)) Pratt2Half(job, half);
  job.model.AX_CV[1] = job.model.PT;
}

}  // namespace lignara
