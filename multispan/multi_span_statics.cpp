#include "multispan/multi_span_statics.h"

#include <algorithm>

#include "statics/beam_units.h"

namespace lignara {
namespace {

BeamHold HoldOf(EndSupport support) {
  if (support == EndSupport::Fixed) return BeamHold::Fixed;
  return support == EndSupport::Pinned ? BeamHold::Pinned : BeamHold::Free;
}

LoadedSpan SpanOf(const MultiSpanModel& model, int j, double stiffnessUnit) {
  LoadedSpan span;
  span.length = model.spanLength[j].value();
  span.stiffness = static_cast<double>(model.spanE[j].value()) *
                   static_cast<double>(model.spanI[j].value()) * stiffnessUnit;
  const double w = model.spanUniform[j].value();
  if (w != 0) span.spreads = {{0, span.length, w, w}};
  const auto at = static_cast<std::size_t>(j);
  for (int k = 1; k <= MultiSpanModel::kLoads; ++k) {
    const double force = model.pointLoad[at][k].value();
    if (force != 0) span.forces.push_back({force, model.pointX[at][k].value()});
  }
  return span;
}

std::string Numbered(const char* item, int number) { return item + std::to_string(number); }

void AddSpan(const MultiSpanSolution& run, const SpanStatics& exact, int j,
             std::vector<ComparedValue>& values) {
  const auto at = static_cast<std::size_t>(j);
  const auto end = [&](int side) { return run.moments.finalMoment(j, side).value(); };
  // The distribution counts clockwise moments on the ends of a span: on the right the sagging one
  // is negative.
  values.push_back({Numbered("Left Mom. ", j), ComparedKind::EndMoment, end(kLeftEnd),
                    exact.curves.first.moment});
  values.push_back({Numbered("Right Mom. ", j), ComparedKind::EndMoment, end(kRightEnd),
                    -exact.curves.last.moment});
  const auto largest = [at](const std::vector<float>& by) { return at < by.size() ? by[at] : 0; };
  values.push_back({Numbered("Max. Mom. ", j), ComparedKind::Moment, largest(run.spanMaxMoment),
                    MagnitudeOf(exact.moment)});
  values.push_back({Numbered("Max. Shear ", j), ComparedKind::Shear, largest(run.spanMaxShear),
                    MagnitudeOf(exact.shear)});
}

/// All that a run tells without its deflected shape; nothing where statics has nothing to tell.
std::vector<ComparedValue> ComparedValues(const MultiSpanResults& window) {
  std::vector<ComparedValue> values;
  const MultiSpanSolution& run = *window.run;
  const BeamStatics& exact = window.exact;
  if (exact.mechanism) return values;
  for (int j = 1; j <= run.beam.count; ++j) {
    AddSpan(run, exact.spans[static_cast<std::size_t>(j) - 1], j, values);
  }
  for (int r = 1; r <= run.beam.count + 1; ++r) {
    values.push_back({Numbered("Reaction ", r), ComparedKind::Reaction,
                      run.moments.reaction[r].value(),
                      exact.reactions[static_cast<std::size_t>(r) - 1]});
  }
  values.push_back({"Max Moment", ComparedKind::Moment, run.maximum.moment,
                    MagnitudeOf(RangeOver(exact, &SpanStatics::moment))});
  return values;
}

ComparedValue LargestDeflection(const MultiSpanResults& window, int unitSystem) {
  const double found = window.shape.shape.largest.value();
  const double exact = PeakOf(RangeOver(window.exact, &SpanStatics::deflection), found);
  return {"Max. Def.", ComparedKind::BeamDeflection, found,
          exact * BeamUnitsOf(unitSystem).deflection};
}

void ShowValues(MultiSpanResults& window, const std::vector<ComparedValue>& values) {
  std::vector<std::string> structure = std::move(window.statics.structure);
  std::vector<std::string> loads = std::move(window.statics.loads);
  if (window.exact.mechanism) {
    ShowMechanism(window.statics);
  } else {
    ShowStatics(window.statics, values);
  }
  window.statics.structure = std::move(structure);
  window.statics.loads = std::move(loads);
}

}  // namespace

ContinuousBeam StaticsBeamOf(const MultiSpanModel& model, int unitSystem) {
  ContinuousBeam beam;
  beam.left = HoldOf(model.farLeftSupport);
  beam.right = HoldOf(model.farRightSupport);
  const int spans = std::min<int>(model.spanCount.value(), kMultiSpanLimit);
  for (int j = 1; j <= spans; ++j) {
    beam.spans.push_back(SpanOf(model, j, BeamUnitsOf(unitSystem).stiffness));
  }
  return beam;
}

void CheckMultiSpanStatics(MultiSpanResults& window, const SessionState& session) {
  window.exact = SolveStatics(StaticsBeamOf(session.MultiSpan, session.unitSystem.value()));
  window.statics.structure = MultiSpanStructureLines(session.MultiSpan);
  window.statics.loads = MultiSpanLoadLines(session.MultiSpan);
  ShowValues(window, ComparedValues(window));
}

void CheckShapeStatics(MultiSpanResults& window, const SessionState& session) {
  std::vector<ComparedValue> values = ComparedValues(window);
  if (!values.empty()) values.push_back(LargestDeflection(window, session.unitSystem.value()));
  ShowValues(window, values);
}

}  // namespace lignara
