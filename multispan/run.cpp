#include "app/window_names.h"
#include "multispan/multi_span_solution.h"
#include "multispan/multi_span_window.h"

namespace lignara {
namespace {

bool HasLoad(const MultiSpanModel& model) {
  for (int j = 1; j <= model.spanCount.value(); ++j) {
    if (!(model.spanUniform[j] == 0) || model.pointCount[j] > 0) return true;
  }
  return false;
}

bool IsComplete(const MultiSpanModel& model) {
  for (int j = 1; j <= model.spanCount.value(); ++j) {
    if (!(model.spanLength[j] > 0 && model.spanI[j] > 0 && model.spanE[j] > 0)) return false;
  }
  return true;
}

}  // namespace

void RunMultiSpan(SessionState& session, Platform& platform) {
  const MultiSpanModel& model = session.MultiSpan;
  if (!HasMultiSpan(model.spanCount.value())) return;
  if (!HasLoad(model)) {
    platform.ShowMessage({"NO LOAD ON ANY BEAM, NOTHING TO DO!"});
  } else if (!IsComplete(model)) {
    platform.ShowMessage({"YOU ARE MISSING L,I OR E FOR ONE OR MORE OF YOUR SPANS!"});
  } else {
    const BusyPointer busy(platform);
    session.MultiSpanRun = std::make_shared<const MultiSpanSolution>(solveMultiSpan(model));
    platform.OpenWindow(window_name::kMultiSpanResults);
  }
}

}  // namespace lignara
