#include <initializer_list>

#include "truss/axial_arms.h"
#include "truss/axial_loads.h"
#include "truss/geometry.h"
#include "truss/member_signs.h"
#include "truss/reactions.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

using Step = void (*)(TrussJob& job);

/// Empty arrays, then the steps in order, whatever one of them meets.
void Analyse(TrussJob& job, std::initializer_list<Step> steps) {
  TRUSS_ALLOC(job);
  for (const Step step : steps) step(job);
}

}  // namespace

void PRATT1_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH, ARMS_PRATT1,
                REACTIONS, DIAG_LOADS, END_PANEL_LOADS, VERT_LOADS, TOP_LOADS, BOTTOM_LOADS});
}

void ENGLISH_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH, ARMS_ENGLISH,
                REACTIONS, DIAG_LOADS, END_PANEL_LOADS, VERT_LOADS_ENGLISH, TOP_LOADS_ENGLISH,
                BOTTOM_LOADS_ENGLISH});
}

void FINK_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_PEAK, VERT_LENGTH_FINK, TOP_LENGTH_FINK, BOTTOM_LENGTH, DIAG_LENGTH_FINK,
                ARMS_FINK, REACTIONS_FINK, DIAG_LOADS_FINK, END_PANEL_LOADS, VERT_LOADS_FINK,
                TOP_LOADS_FINK, BOTTOM_LOADS_FINK});
}

void KINGPOST_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, REACTIONS_KINGPOST,
                END_PANEL_LOADS, TOP_LOADS_KINGPOST, VERT_LOADS_KINGPOST});
}

void SCI_AXIAL(TrussJob& job) {
  Analyse(job,
          {VERT_LENGTH_SCI, TOP_LENGTH_SCI, BOTTOM_LENGTH_SCI, ARMS_SCI, REACTIONS_SCI, SCI_LOADS});
}

void PRATT2_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_FLAT, FLAT_LENGTH, REACTIONS_FLAT, PRATT2_LOADS});
}

void HOWE_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_FLAT, FLAT_LENGTH, REACTIONS_FLAT, HOWE_LOADS});
}

void WARREN_AXIAL(TrussJob& job) {
  Analyse(job, {SLOPE_FLAT, WARREN_LENGTH, REACTIONS_WARREN, WARREN_LOADS});
}

void AnalyseTruss(TrussJob& job) {
  const TrussStep chain = job.type.chain;
  if (chain != nullptr) chain(job);
  MEMBER_SIGNS(job);
  APPLY_SIGNS(job);
}

}  // namespace lignara
