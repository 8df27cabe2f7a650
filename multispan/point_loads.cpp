#include "app/fault.h"
#include "app/number_reader.h"
#include "app/plain_number.h"
#include "multispan/multi_span_window.h"

namespace lignara {
namespace {

/// A load about to be stored.
struct LoadEntry {
  const MultiSpanModel& model;
  int span, number;
  Float32 x;  ///< ft

  bool OnLastSpan() const { return model.spanCount == span; }
  Number Length() const { return model.spanLength[span]; }
  Number PlaceOf(int load) const { return model.pointX[static_cast<std::size_t>(span)][load]; }

  bool IsTaken() const {
    for (int k = 1; k < number; ++k) {
      if (x == PlaceOf(k)) return true;
    }
    return false;
  }
};

struct LoadRefusal {
  bool (*applies)(const LoadEntry& load);
  const char* message;
};

/// The first that applies is told. An end without support is a free tip: a load may stand there.
constexpr LoadRefusal kLoadRefusals[] = {
    {[](const LoadEntry& load) {
       return load.x == load.Length() && load.model.spanCount > load.span;
     },
     "YOUR LOAD IS DIRECTLY ON SUPPORT, NO AFFECT ON BEAM!"},
    {[](const LoadEntry& load) { return load.x == 0 && load.span >= 2; },
     "YOU LOAD IS DIRECTLY ON SUPPORT, NO AFFECT ON BEAM"},
    {[](const LoadEntry& load) {
       return load.x == load.Length() && load.OnLastSpan() &&
              load.model.farRightSupport != EndSupport::None;
     },
     "YOUR LOAD IS DIRECTLY ON THE RIGHT END SUPPORT, NO AFFECT!"},
    {[](const LoadEntry& load) {
       return load.x == 0 && load.span == 1 && load.model.farLeftSupport != EndSupport::None;
     },
     "YOUR LOAD IS DIRECTLY ON THE LEFT END SUPPORT, NO AFFECT!"},
    {[](const LoadEntry& load) { return load.x < 0 || load.x > load.Length(); },
     "LOCATION OFF OF SPAN"},
    {[](const LoadEntry& load) {
       return load.number >= 2 && load.x < load.PlaceOf(load.number - 1);
     },
     "Warning ! You must enter loads in order from left to right."},
    {[](const LoadEntry& load) { return load.number >= 2 && load.IsTaken(); },
     "You already have a point load at this location, increase your first point load by the amount "
     "of this load, since only one point load may be applied at any one point."},
};

const char* RefusalOf(const LoadEntry& load) {
  for (const LoadRefusal& refusal : kLoadRefusals) {
    if (refusal.applies(load)) return refusal.message;
  }
  return nullptr;
}

void CountLoads(MultiSpanModel& model, int span) {
  int count = 0;
  for (int k = 1; k <= kCountedPointLoads; ++k) {
    if (!(model.pointLoad[static_cast<std::size_t>(span)][k] == 0)) ++count;
  }
  model.pointCount[span] = count;
}

}  // namespace

void UpdatePointLoad(MultiSpanWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  MultiSpanModel& model = session.MultiSpan;
  const int span = window.currentSpan.value();
  const int number = window.currentLoad.value();
  if (!HasMultiSpan(span)) return;
  Float32& x = model.pointX[static_cast<std::size_t>(span)][number];
  Float32& force = model.pointLoad[static_cast<std::size_t>(span)][number];
  LoadEntry load{model, span, number, x};
  load.x = ReadNumber(window.pointX);
  if (const char* refusal = RefusalOf(load)) {
    platform.ShowMessage({refusal});
    return;
  }
  force = ReadNumber(window.pointLoad);
  x = load.x;
  CountLoads(model, span);
  window.loadCount = std::to_string(model.pointCount[span].value());
  ShowBeamSketch(window, session);
}

void ShowPreviousLoad(MultiSpanWindow& window, SessionState& session) {
  if (window.currentLoad > 1) window.currentLoad -= 1;
  ShowPointLoad(window, session);
}

void ShowNextLoad(MultiSpanWindow& window, SessionState& session) {
  const int span = window.currentSpan.value();
  const int number = window.currentLoad.value();
  if (!HasMultiSpan(span) || number >= MultiSpanModel::kLoads) return;
  if (session.MultiSpan.pointLoad[static_cast<std::size_t>(span)][number] == 0) return;
  window.currentLoad += 1;
  ShowPointLoad(window, session);
}

void ShowPointLoad(MultiSpanWindow& window, const SessionState& session) {
  const MultiSpanModel& model = session.MultiSpan;
  window.spanNumber = std::to_string(window.currentSpan.value());
  window.loadNumber = std::to_string(window.currentLoad.value());
  if (!HasMultiSpan(window.currentSpan.value())) return;
  const auto span = static_cast<std::size_t>(window.currentSpan.value());
  window.pointX = PlainNumber(model.pointX[span][window.currentLoad.value()]);
  window.pointLoad = PlainNumber(model.pointLoad[span][window.currentLoad.value()]);
  window.loadCount = std::to_string(model.pointCount[window.currentSpan.value()].value());
}

}  // namespace lignara
