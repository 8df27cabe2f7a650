#include <array>

#include "truss/axial_loads.h"
#include "truss/half.h"

namespace lignara {
namespace {

/// One half; `far` is the other, whose reaction balances the rafter about the midspan joint.
void ScissorsHalf(TrussJob& job, TrussHalf& near, TrussHalf& far) {
  ActiveModel& m = job.model;
  const Number half = job.session.TrussLength / 2;
  const Number toMidspan = half - m.SCI_RUN;
  const Number farMoment = half * far.NODE_R - toMidspan * far.P[1];
  near.AX_T[2] = farMoment / m.SCI_TOPARM;
  near.AX_T[1] = (farMoment + toMidspan * near.P[1]) / m.SCI_TOPARM;
  near.TH[1] = near.AX_T[1] * Cos(m.ANG_A);
  near.AX_C[1] = near.TH[1] / Cos(m.ANG_AB);
}

}  // namespace

void SCI_LOADS(TrussJob& job) {
  ActiveModel& m = job.model;
  if (!(m.SCI_ARM > 0) || !(m.SCI_TOPARM > 0)) return FailRun(job, "TEMP2 OR TOPARM=0, ERROR");
  if (!(Cos(m.ANG_AB) > 0)) return FailRun(job, "COS(AB)=0,ERROR");
  std::array<TrussHalf, 2> halves = HalvesOf(m);
  for (TrussHalf& half : halves) half.AX_V[1] = m.SCI_RUN * half.P[1] / m.SCI_ARM;
  ScissorsHalf(job, halves[0], halves[1]);
  ScissorsHalf(job, halves[1], halves[0]);
  const Number sine = Sin(m.ANG_A);
  m.AX_CV[1] = m.AX_TL[2] * sine + m.AX_TR[2] * sine - m.PT;
}

}  // namespace lignara
