#include "beam/beam_statics.h"

#include "app/fault.h"
#include "beam/report.h"
#include "statics/beam_units.h"

namespace lignara {
namespace {

BeamHold HoldOf(SupportType support) {
  if (support == SupportType::Fixed) return BeamHold::Fixed;
  return support == SupportType::Pinned ? BeamHold::Pinned : BeamHold::Free;
}

/// A load as it was entered: ft, lbs, ft-lbs, lbs/ft, and inches or centimetres.
struct EnteredLoad {
  double a, b, p, m, w, displacement;
};

EnteredLoad LoadOf(const SingleSpanBeam& beam, int load) {
  return {beam.loadA[load].value(), beam.loadB[load].value(), beam.loadP[load].value(),
          beam.loadM[load].value(), beam.loadW[load].value(), beam.loadDisp[load].value()};
}

void AddSpread(const EnteredLoad& load, double atA, double atEnd, LoadedSpan& span) {
  const double end = load.a + load.b;
  span.spreads.push_back(load.b < 0 ? SpreadLoad{end, load.a, atEnd, atA}
                                    : SpreadLoad{load.a, end, atA, atEnd});
}

/// What a load of each kind is to statics. An axial load bends nothing.
struct StaticsOfKind {
  LoadKind kind;
  void (*add)(const EnteredLoad& load, double unit, ContinuousBeam& beam);
};

constexpr StaticsOfKind kStaticsOfKinds[] = {
    {LoadKind::PointLoad,
     [](const EnteredLoad& load, double, ContinuousBeam& beam) {
       beam.spans.front().forces.push_back({load.p, load.a});
     }},
    {LoadKind::LevelUniform,
     [](const EnteredLoad& load, double, ContinuousBeam& beam) {
       AddSpread(load, load.w, load.w, beam.spans.front());
     }},
    {LoadKind::SlopedLeftZero,
     [](const EnteredLoad& load, double, ContinuousBeam& beam) {
       AddSpread(load, 0, load.w, beam.spans.front());
     }},
    {LoadKind::SlopedRightZero,
     [](const EnteredLoad& load, double, ContinuousBeam& beam) {
       AddSpread(load, load.w, 0, beam.spans.front());
     }},
    {LoadKind::PointMoment,
     [](const EnteredLoad& load, double, ContinuousBeam& beam) {
       beam.spans.front().moments.push_back({load.m, load.a});
     }},
    {LoadKind::LeftDisplacement,
     [](const EnteredLoad& load, double unit, ContinuousBeam& beam) {
       beam.rises.front() += load.displacement / unit;
     }},
    {LoadKind::RightDisplacement,
     [](const EnteredLoad& load, double unit, ContinuousBeam& beam) {
       beam.rises.back() += load.displacement / unit;
     }},
};

void AddLoad(LoadKind kind, const EnteredLoad& load, double unit, ContinuousBeam& beam) {
  for (const StaticsOfKind& row : kStaticsOfKinds) {
    if (row.kind == kind) row.add(load, unit, beam);
  }
}

/// The signs of the window: moments of a cantilever are positive where it hogs, and the shear of
/// one that is fixed at the right bears the sign of its reaction.
struct WindowSigns {
  bool moment, shear;  ///< turned over
};

WindowSigns SignsOf(const ContinuousBeam& beam) {
  const bool leftFree = beam.left == BeamHold::Free;
  return {leftFree || beam.right == BeamHold::Free, leftFree};
}

CurveRange Turned(const CurveRange& range, bool over) { return over ? Negated(range) : range; }

std::vector<ComparedValue> ComparedValues(const BeamResults& results, const ContinuousBeam& beam,
                                          const BeamStatics& exact, double unit) {
  const WindowSigns signs = SignsOf(beam);
  const SpanStatics& span = exact.spans.front();
  const double moment = results.maxMoment.value(), shear = results.maxShear.value();
  const double deflection = results.maxDeflection.value();
  return {
      {"R1", ComparedKind::Reaction, results.reaction1.value(), exact.reactions.front()},
      {"R2", ComparedKind::Reaction, results.reaction2.value(), exact.reactions.back()},
      {"Max. Moment", ComparedKind::Moment, moment,
       PeakOf(Turned(span.moment, signs.moment), moment)},
      {"Max. Shear", ComparedKind::Shear, shear, PeakOf(Turned(span.shear, signs.shear), shear)},
      {"Max. Def.", ComparedKind::BeamDeflection, deflection,
       PeakOf(span.deflection, deflection) * unit}};
}

}  // namespace

ContinuousBeam StaticsBeamOf(const SingleSpanBeam& beam, double modulus, int unitSystem) {
  const BeamUnits units = BeamUnitsOf(unitSystem);
  ContinuousBeam exact;
  exact.left = HoldOf(beam.leftSupport);
  exact.right = HoldOf(beam.rightSupport);
  exact.spans = {{beam.spanLength.value(),
                  modulus * static_cast<double>(beam.momentOfInertia.value()) * units.stiffness,
                  {},
                  {},
                  {}}};
  exact.rises = {0, 0};
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    AddLoad(beam.KindOf(load), LoadOf(beam, load), units.deflection, exact);
  }
  return exact;
}

void CheckBeamStatics(BeamWindow& window, const SessionState& session) {
  const SilentFaults silent;  // the run has told of what cannot be read
  const int unitSystem = session.unitSystem.value();
  const ContinuousBeam beam =
      StaticsBeamOf(window.beam, youngsModulus(session).value(), unitSystem);
  const BeamStatics exact = SolveStatics(beam);
  if (exact.mechanism) {
    ShowMechanism(window.statics);
  } else {
    ShowStatics(window.statics,
                ComparedValues(window.results, beam, exact, BeamUnitsOf(unitSystem).deflection));
  }
  window.statics.structure = BeamStructureLines(window);
  window.statics.loads = BeamLoadLines(window.beam);
}

}  // namespace lignara
