#include "truss/axial_loads.h"
#include "truss/canvas.h"
#include "truss/changed_since_run.h"
#include "truss/force_and_length_lists.h"
#include "truss/reactions.h"
#include "truss/stress_check.h"
#include "truss/truss_statics.h"
#include "truss/truss_types.h"

namespace lignara {

void RunTruss(TrussWindow& window, SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  const BusyPointer busy(platform);
  ActiveModel& model = window.model;
  TrussJob job{model, session, platform};
  model.ErrorFlag = 0;
  model.RunState = 1;
  window.ranWith = InputsOf(model, session);
  window.stresses.clear();

  AnalyseTruss(job);
  SHOW_REACTIONS(window);
  SHOW_AXIAL(window, session);
  const TrussReactions reactions = ReactionsOf(model);

  const DeflectionStep deflections = job.type.deflections;
  if (deflections != nullptr) deflections(job, window.deflectionRows);
  if (HasAreas(session.Member)) {
    window.stresses = CheckStresses(job, window.stressRows);
  } else {
    platform.ShowMessage({"NO STRESS WILL BE CALCULATED, NEED WOOD TYPE & SIZE"});
  }

  model.RunState = model.ErrorFlag.value() != 0 ? 0 : 1;
  CheckTrussStatics(window, session, reactions);
  window.view.resultsShown = true;
  RecolourTruss(window, session, platform);
}

}  // namespace lignara
