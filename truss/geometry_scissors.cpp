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

}  // namespace lignara
