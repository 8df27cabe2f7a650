#include "beam/beam_solver.h"

#include <cmath>

#include "beam/load_components.h"

namespace lignara {
namespace {

constexpr double kInchesPerFoot = 12;

/// E and I in the units of the run, lb/ft^2 and ft^4, and inches (or centimetres) for one unit of
/// length in deflections.
struct Stiffness {
  Float32 stiffE, stiffI;
  double lengthFactor = 0;

  double EI() const { return static_cast<double>(stiffE.value()) * stiffI.value(); }
};

Stiffness EnglishStiffness(const SingleSpanBeam& beam, const SessionState& session) {
  Stiffness s;
  s.stiffE = youngsModulus(session) * 144;
  s.stiffI = beam.momentOfInertia / 20736;  // 12^4
  s.lengthFactor = kInchesPerFoot;
  return s;
}

/// The deflection pass alone heeds the unit flag.
Stiffness DeflectionStiffness(const SingleSpanBeam& beam, const SessionState& session) {
  if (session.unitSystem == 0) return EnglishStiffness(beam, session);
  Stiffness s;
  if (session.unitSystem != 1) return s;
  s.stiffE = youngsModulus(session) * 1000;
  s.stiffI = beam.momentOfInertia / 1e8;  // 100^4
  s.lengthFactor = 100;
  return s;
}

/// The sums of one run over all loads.
class Superposition {
 public:
  Superposition(const SingleSpanBeam& beam, const ClassFormulas& formulas, const StationGrid& grid,
                double forceEI, const Stiffness& stiffness)
      : beam_(beam),
        formulas_(formulas),
        grid_(grid),
        forceEI_(forceEI),
        stiffness_(stiffness),
        shear(grid, formulas.leftOfLoad, formulas.rightOfLoad),
        moment(grid, formulas.leftOfLoad, formulas.rightOfLoad),
        deflection(grid, formulas.leftOfLoad, formulas.rightOfLoad) {}

  void AddLoad(int load, const std::vector<PointComponent>& components);

 private:
  void AddDisplacement(int load);
  int SplitOf(const PointComponent& p) const;
  void AddReactions(const EndReactions& r);
  void AddMoments(const PointComponent& p, int split);
  void AddForce(const PointComponent& p);
  void AddCouple(const PointComponent& first, const PointComponent& second);
  template <std::size_t N>
  void AddLevelled(StationSums<N>& sums, const Coefficients<N>& left, const Coefficients<N>& right,
                   int first, int last);

  const SingleSpanBeam& beam_;
  const ClassFormulas& formulas_;
  const StationGrid& grid_;
  const double forceEI_;  ///< of the shear and moment passes
  const Stiffness& stiffness_;

 public:
  StationSums<1> shear;
  StationSums<2> moment;
  StationSums<4> deflection;  ///< x EI, in feet
  EndReactions reactions{0, 0};
};

/// The last station left of a force. One that stands exactly on a station has it on its left.
int Superposition::SplitOf(const PointComponent& p) const {
  const double split = std::floor(p.a / grid_.span * grid_.steps);
  return static_cast<int>(std::clamp(split, -1e6, 1e6));
}

void Superposition::AddReactions(const EndReactions& r) {
  reactions.left += r.left;
  reactions.right += r.right;
}

void Superposition::AddMoments(const PointComponent& p, int split) {
  moment.AddUpTo(split, formulas_.momentLeft(p, grid_.span));
  moment.AddFrom(split + 1, formulas_.momentRight(p, grid_.span));
}

void Superposition::AddForce(const PointComponent& p) {
  const int split = SplitOf(p);
  const EndReactions r = formulas_.reactions(p, grid_.span);
  AddReactions(r);
  shear.AddUpTo(split, {r.left});
  shear.AddFrom(split + 1, {formulas_.rightShear * r.right});
  AddMoments(p, split);
  deflection.AddUpTo(split, formulas_.deflectionLeft(p, grid_.span));
  deflection.AddFrom(split + 1, formulas_.deflectionRight(p, grid_.span));
}

/// The piece `left` ahead of station `first`, its last value there up to `last`, `right` behind.
template <std::size_t N>
void Superposition::AddLevelled(StationSums<N>& sums, const Coefficients<N>& left,
                                const Coefficients<N>& right, int first, int last) {
  sums.AddUpTo(first - 1, left);
  sums.AddLevel(first, last, sums.LeftValue(left, first - 1));
  sums.AddFrom(last + 1, right);
}

template <std::size_t N>
Coefficients<N> Sum(Coefficients<N> a, const Coefficients<N>& b) {
  AddTo(a, b);
  return a;
}

/// The two forces of a couple stand one station off the moment: shear and deflection between them
/// are no beam's, so the value of the station before goes on over them. Near the left end there is
/// no such station; the plain sums stay then, and the user is told.
void Superposition::AddCouple(const PointComponent& p1, const PointComponent& p2) {
  const int first = SplitOf(p1);
  const int last = SplitOf(p2);
  if (first < 1) {
    ReportFault(Fault::IndexOutOfBounds);
    AddForce(p1);
    AddForce(p2);
    return;
  }
  const double L = grid_.span;
  const EndReactions r1 = formulas_.reactions(p1, L);
  const EndReactions r2 = formulas_.reactions(p2, L);
  AddReactions(r1);
  AddReactions(r2);
  AddLevelled<1>(shear, {r1.left + r2.left}, {formulas_.rightShear * (r1.right + r2.right)}, first,
                 last);
  AddMoments(p1, first);
  AddMoments(p2, last);
  AddLevelled<4>(deflection, Sum(formulas_.deflectionLeft(p1, L), formulas_.deflectionLeft(p2, L)),
                 Sum(formulas_.deflectionRight(p1, L), formulas_.deflectionRight(p2, L)), first,
                 last);
}

void Superposition::AddLoad(int load, const std::vector<PointComponent>& components) {
  if (beam_.KindOf(load) == LoadKind::PointMoment) {
    AddCouple(components[0], components[1]);
  } else {
    for (const PointComponent& p : components) AddForce(p);
    AddDisplacement(load);
  }
}

void Superposition::AddDisplacement(int load) {
  const DisplacementFormulas* f =
      FindDisplacementFormulas(formulas_.supportClass, beam_.KindOf(load));
  if (f == nullptr) return;
  const double L = grid_.span;
  const double disp = beam_.loadDisp[load].value();
  const double D = disp / kInchesPerFoot * f->stiffness * forceEI_ / (L * L * L);
  AddReactions({f->shear * D, -f->shear * D});
  shear.AddWhole(formulas_.leftOfLoad, {f->shear * D});
  moment.AddWhole(f->measuredFrom, {f->momentAtEnd * D * L, f->momentSlope * D});
  // The sums hold EI x deflection in feet. The form of the beam fixed at both ends divides by 12
  // whatever the unit.
  double scale = disp * stiffness_.EI() / stiffness_.lengthFactor;
  if (formulas_.supportClass == SupportClass::FixedBothEnds) {
    scale *= stiffness_.lengthFactor / kInchesPerFoot;
  }
  const Cubic& d = f->deflection;
  deflection.AddWhole(f->measuredFrom, {scale * d[0], scale * d[1] / L, scale * d[2] / (L * L),
                                        scale * d[3] / (L * L * L)});
}

void TellWhyNotBroken(BreakUp outcome, Platform& platform) {
  if (outcome == BreakUp::NoLength) platform.ShowMessage({"YOUR LENGTH IS 0"});
  if (outcome == BreakUp::Fault) {
    platform.ShowMessage({"An anomoly has occurred, restart the program!"});
  }
}

bool IsUsable(const Stiffness& s) { return s.lengthFactor > 0 && s.stiffE > 0 && s.stiffI > 0; }

/// Stores a curve and returns its value of largest magnitude.
Float32 StoreCurve(Float32Array& total, const std::vector<double>& values, double factor) {
  total.Allocate(static_cast<int>(values.size()) + 1);
  Float32 peak;
  for (int i = 0; i < static_cast<int>(values.size()); ++i) {
    total[i] = values[static_cast<std::size_t>(i)] * factor;
    if (Abs(total[i]) > Abs(peak)) peak = total[i];
  }
  return peak;
}

void StoreResults(const Superposition& sums, const StationGrid& grid, const Stiffness& stiffness,
                  BeamResults& results) {
  results = BeamResults();
  results.grid = grid;
  results.reaction1 = sums.reactions.left;
  results.reaction2 = sums.reactions.right;
  results.maxShear = StoreCurve(results.shearTotal, sums.shear.Values(), 1);
  results.maxMoment = StoreCurve(results.momentTotal, sums.moment.Values(), 1);
  results.maxDeflection = StoreCurve(results.deflTotal, sums.deflection.Values(),
                                     stiffness.lengthFactor / stiffness.EI());
}

/// Breaks up each load and adds it. The first pass goes through all loads even where nothing can be
/// added, so that the user is told of each that does not break.
void AddAllLoads(SingleSpanBeam& beam, Superposition& sums, Platform& platform) {
  std::vector<PointComponent> components;
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    const BreakUp outcome = BreakIntoComponents(beam, load, components);
    TellWhyNotBroken(outcome, platform);
    if (outcome != BreakUp::Done) beam.abortRun = -1;
    if (beam.abortRun == 0) sums.AddLoad(load, components);
  }
}

}  // namespace

SolveOutcome SolveBeam(SingleSpanBeam& beam, const SessionState& session, BeamResults& results,
                       Platform& platform) {
  const FaultsOnce once;
  Int16 stations = -1;
  stations = beam.accuracySteps;
  if (stations < 0) return SolveOutcome::NoStations;
  const StationGrid grid{beam.spanLength.value(), beam.accuracySteps.value(), stations.value()};
  const Stiffness forces = EnglishStiffness(beam, session);
  const Stiffness stiffness = DeflectionStiffness(beam, session);
  beam.abortRun = 0;
  Superposition sums(beam, FormulasOf(beam.supportClass), grid, forces.EI(), stiffness);
  AddAllLoads(beam, sums, platform);
  const bool constants = grid.span > 0 && grid.steps > 0 && IsUsable(stiffness);
  if (!constants) beam.abortRun = -1;
  if (beam.abortRun != 0) return SolveOutcome::Stopped;
  StoreResults(sums, grid, stiffness, results);
  return SolveOutcome::Solved;
}

void FillRotations(BeamResults& results, const SessionState& session) {
  const double unit = session.unitSystem == 1 ? 100 : 12;
  const Number width = unit * results.grid.span / results.grid.steps;
  const Float32Array& defl = results.deflTotal;
  results.rotationTotal.Allocate(results.grid.last);
  results.rotationTotal[0] = Atan(defl[1] / width);
  for (int i = 1; i <= results.grid.last; ++i) {
    results.rotationTotal[i] = Atan((defl[i] - defl[i - 1]) / width);
  }
}

}  // namespace lignara
