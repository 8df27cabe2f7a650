#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "beam/beam_statics.h"
#include "beam/beam_window.h"
#include "beam/diagrams.h"
#include "beam/support_class.h"

namespace lignara {
namespace {

bool HasDisplacedSupport(const SingleSpanBeam& beam) {
  return HasLoadOf(beam, LoadKind::LeftDisplacement) ||
         HasLoadOf(beam, LoadKind::RightDisplacement);
}

void ShowResults(BeamWindow& window) {
  const BeamResults& results = window.results;
  window.reaction1 = FormatNumber(results.reaction1, kTwoDecimals);
  window.reaction2 = FormatNumber(results.reaction2, kTwoDecimals);
  window.maxMoment = FormatNumber(results.maxMoment, kTwoDecimals);
  window.maxShear = FormatNumber(results.maxShear, kTwoDecimals);
  window.maxDeflection = FormatNumber(results.maxDeflection, "0.0000");
}

/// All that a run depends on, as plain numbers.
std::vector<float> RunInputs(const BeamWindow& window) {
  const SilentFaults faults;
  const SingleSpanBeam& beam = window.beam;
  std::vector<float> inputs;
  for (const std::string* field : {&window.length, &window.modulus.text, &window.inertia.text}) {
    inputs.push_back(Float32(ReadNumber(*field)).value());
  }
  inputs.insert(inputs.end(),
                {beam.accuracySteps.value(), beam.equivalentLoads.value(),
                 static_cast<float>(beam.leftSupport), static_cast<float>(beam.rightSupport)});
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    inputs.push_back(static_cast<float>(beam.loadKind[load].value()));
    for (const LoadValue& value : LoadKindOf(beam.KindOf(load)).values) {
      inputs.push_back((beam.*value.array)[load].value());
    }
  }
  return inputs;
}

void TakeAxialLoad(BeamWindow& window) {
  window.beam.axialLoad = AxialLoadOf(window.beam);
  window.axial = FormatNumber(window.beam.axialLoad, kTwoDecimals);
}

}  // namespace

void ReadConstants(BeamWindow& window, SessionState& session, Platform& platform) {
  SingleSpanBeam& beam = window.beam;
  beam.spanLength = ReadNumber(window.length);
  youngsModulus(session) = ReadNumber(window.modulus.text);
  beam.momentOfInertia = ReadNumber(window.inertia.text);
  if (beam.spanLength > 0 && youngsModulus(session) > 0 && beam.momentOfInertia > 0) {
    beam.unbracedLength = UnbracedLength(window);
  } else {
    platform.ShowMessage({"YOU NEED A CONSTANT VALUE FOR L,E OR I !"});
  }
}

Float32 AxialLoadOf(const SingleSpanBeam& beam) {
  Float32 axial;
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    if (beam.KindOf(load) == LoadKind::AxialLoad) axial = beam.loadAxial[load];
  }
  return axial;
}

bool IsOutOfDate(const BeamWindow& window) {
  return !window.runInputs.empty() && window.runInputs != RunInputs(window);
}

void RunBeam(BeamWindow& window, SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  const BusyPointer busy(platform);
  SingleSpanBeam& beam = window.beam;
  beam.hasRun = -1;
  ReadConstants(window, session, platform);
  ClassifySupports(beam, session);
  if (IsUnstable(beam.supportClass)) {
    platform.ShowMessage({"YOUR SUPPORT CONDITION IS UNSTABLE !"});
    return;
  }
  const SolveOutcome outcome = SolveBeam(beam, session, window.results, platform);
  if (outcome == SolveOutcome::Stopped) return;
  if (outcome == SolveOutcome::Solved) ShowResults(window);
  if (beam.supportClass == SupportClass::SimpleSpan && HasDisplacedSupport(beam)) {
    platform.ShowMessage(
        {"SINCE BOTH SUPPORTS ARE PINNED, THE PROGRAM IGNORED YOUR SUPPORT DISPLACEMENT LOADS !"});
  }
  TakeAxialLoad(window);
  if (outcome != SolveOutcome::Solved) return;
  window.runInputs = RunInputs(window);
  ShowDiagrams(window, session);
  CheckBeamStatics(window, session);
}

}  // namespace lignara
