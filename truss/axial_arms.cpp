#include "truss/axial_arms.h"

#include "truss/geometry.h"
#include "truss/half.h"

namespace lignara {
namespace {

/// ANG_V, ANG_D and ANG_T of PRATT1; false at a vertical without length.
bool WebAngles(TrussJob& job) {
  ActiveModel& m = job.model;
  const Number panel = job.session.PanelLength;
  for (int i = 2; i <= job.HalfSpans(); ++i) {
    if (!(m.LEN_VL[i] > 0)) {
      FailRun(job, "VL(N)=0, ERROR");
      return false;
    }
    m.ANG_V[i] = Atan(panel / m.LEN_VL[i]);
    m.ANG_D[i] = Atan(m.LEN_VL[i] / panel);
    m.ANG_T[i] = m.ANG_AC - m.ANG_V[i];
  }
  return true;
}

}  // namespace

void ARMS_PRATT1(TrussJob& job) {
  ActiveModel& m = job.model;
  const int n = job.HalfSpans();
  if (!ResetDiagonals(job)) return;
  for (TrussHalf& half : HalvesOf(m)) {
    for (int i = 1; i < n; ++i) half.ARM[i] = (i + 1) * half.LEN_T[1];
  }
  if (!WebAngles(job)) return;
  for (int i = 2; i <= n; ++i) m.ARM_D[i] = m.ARM_L[i - 1] * Sin(m.ANG_T[i]);
}

void ARMS_ENGLISH(TrussJob& job) {
  ActiveModel& m = job.model;
  const Number panel = job.session.PanelLength;
  const int n = job.HalfSpans();
  if (!ResetDiagonals(job)) return;
  for (TrussHalf& half : HalvesOf(m)) {
    for (int i = 1; i < n; ++i) half.ARM[i] = panel * i;
  }
  for (int i = 2; i <= n; ++i) {
    m.ANG_D[i] = Atan(m.LEN_VL[i - 1] / panel);
    m.ARM_D[i] = i * panel * Sin(m.ANG_D[i]);
  }
}

void ARMS_FINK(TrussJob& job) {
  ActiveModel& m = job.model;
  const int n = job.HalfSpans();
  for (TrussHalf& half : HalvesOf(m)) {
    for (int i = 1; i < n; ++i) half.ARM[i] = i * job.session.PanelLength * Cos(m.ANG_A);
    half.ARM[n] = job.session.TrussHeight / Sin(m.ANG_A);
  }
  for (int i = 2; i <= n; ++i) {
    m.ANG_T[i] = Atan(m.LEN_VL[i - 1] / m.LEN_TL[i]);
    m.ARM_D[i] = m.ARM_L[i] * Sin(m.ANG_T[i]);
  }
}

void ARMS_SCI(TrussJob& job) {
  ActiveModel& m = job.model;
  for (TrussHalf& half : HalvesOf(m)) half.ARM[1] = m.SCI_ARM;
  m.ARM_D[1] = Cos(m.ANG_A) * m.SCI_TOP1;
  m.SCI_TOPARM = m.SCI_WEB * Cos(m.SCI_A5);
}

}  // namespace lignara
