#include "truss/geometry.h"
#include "truss/half.h"

namespace lignara {

void VERT_LENGTH_SCI(TrussJob& job) {
  ActiveModel& m = job.model;
  if (!(Sin(m.ANG_AB) > 0)) return FailRun(job, "SIN(AB)=0, ERROR");
  for (TrussHalf& half : HalvesOf(m)) {
    half.LEN_V[1] = m.SCI_RISE / Sin(m.ANG_AB) - m.SCI_BOTTOM;
  }
  m.LEN_CV[1] = job.session.TrussHeight - job.session.TrussInnerHeight;
}

void TOP_LENGTH_SCI(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    half.LEN_T[1] = job.model.SCI_TOP1;
    half.LEN_T[2] = job.model.SCI_TOP2;
  }
}

void BOTTOM_LENGTH_SCI(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) half.LEN_C[1] = job.model.SCI_BOTTOM;
}

void ScissorsDrawnGeometry(TrussJob& job) {
  ActiveModel& m = job.model;
  const SessionState& s = job.session;
  m.ANG_A = Atan(s.TrussHeight / (0.5 * s.TrussLength));
  m.ANG_AB = Atan(s.TrussInnerHeight / (s.TrussLength / 2));

  // The angles of the triangle between heel, web and rafter. Three roundings of pi meet here; the
  // printed lengths follow from them, so none may be made more exact.
  const Float32 a1 = m.ANG_A - m.ANG_AB;
  const Float32 a2 = kRightAngle - m.ANG_A;
  const Float32 a3 = 3.1416 - (m.ANG_A + m.ANG_AB + a2);
  const Float32 a4 = 3.14159 - a2 - a3;
  m.SCI_A5 = kRightAngle - a4;
  m.SCI_A7 = kRightAngle - a1 - m.SCI_A5;
  m.SCI_A8 = kRightAngle - m.ANG_A - m.ANG_AB;

  m.SCI_BOTTOM = s.TrussInnerHeight / Sin(m.ANG_AB);
  m.SCI_ARM = m.SCI_BOTTOM * Sin(m.SCI_A7);
  m.SCI_TOP1 = m.SCI_ARM / Cos(m.SCI_A8);
  m.SCI_RISE = m.SCI_TOP1 * Sin(m.ANG_A);
  m.SCI_RUN = m.SCI_RISE / Tan(m.ANG_A);
  m.SCI_TOP2 = s.TrussLength * 0.5 / Cos(m.ANG_A) - m.SCI_TOP1;
  m.SCI_WEB = m.SCI_RISE / Sin(m.ANG_AB) - m.SCI_BOTTOM;
}

}  // namespace lignara
