#include "multispan/beam_deflection.h"

#include <algorithm>
#include <cmath>

#include "multispan/moment_distribution.h"

namespace lignara {
namespace {

/// Lengths and moduli in the units of the deflection.
struct UnitFactors {
  double length;  ///< inches in a foot, centimetres in a metre
  double modulus;
};

UnitFactors FactorsOf(int unitSystem) {
  return unitSystem == 1 ? UnitFactors{100, 0.1} : UnitFactors{12, 1};
}

/// The first span that ends at x or behind it. What rounding puts behind the end of the beam
/// belongs to the last one.
int SpanAt(const BeamCase& beam, double x) {
  double end = 0;
  for (int j = 1; j < beam.count; ++j) {
    end += beam.Span(j).length;
    if (end >= x) return j;
  }
  return beam.count;
}

/// Half to even, as all whole numbers of the program.
int Station(double distance, double perFoot) {
  return static_cast<int>(std::nearbyint(distance * perFoot));
}

/// The moment curve of the same beam under a unit load alone.
MomentCurve UnitCurve(const MultiSpanSolution& solution, double x) {
  BeamCase unit = WithoutLoads(solution.beam);
  const int loaded = SpanAt(unit, x);
  unit.Span(loaded).points = {{1.0, x - unit.StartOf(loaded)}};
  const DistributionResult result = Distribute(unit);
  return IntegrateShear(FindShear(unit, result), result.finalMoment(1, kLeftEnd),
                        solution.curve.length, solution.curve.integrations);
}

/// The part of one span in the sum of M m / E I.
double SumOverSpan(const BeamSpan& span, int first, int last, const MomentCurve& real,
                   const MomentCurve& unit, const UnitFactors& units) {
  const double stiffness = span.e * units.modulus * span.i;
  double sum = 0;
  for (int s = first; s <= last; ++s) {
    sum += units.length * static_cast<double>(real.At(s)) * static_cast<double>(unit.At(s)) *
           units.length / stiffness;
  }
  return sum;
}

double SumOverBeam(const MultiSpanSolution& solution, const MomentCurve& unit,
                   const UnitFactors& units) {
  const MomentCurve& real = solution.curve;
  const double perFoot = real.integrations / real.length;
  double sum = 0;
  double start = 0;
  for (int j = 1; j <= solution.beam.count; ++j) {
    const BeamSpan& span = solution.beam.Span(j);
    const double end = start + span.length;
    const int first = j == 1 ? 1 : Station(start, perFoot);
    sum += SumOverSpan(span, first, Station(end, perFoot), real, unit, units);
    start = end;
  }
  return sum * (real.length * units.length / real.integrations);
}

void FindRotations(DeflectedShape& shape, double step) {
  for (int i = 1; i <= DeflectedShape::kStations; ++i) {
    shape.rotation[i] = Atan((shape.deflection[i] - shape.deflection[i - 1]) / step);
  }
  shape.rotation[0] = shape.rotation[1];
}

}  // namespace

int DeflectedShape::StationAt(double x) const {
  const double station = std::nearbyint(x / length * kStations);
  return static_cast<int>(std::clamp(station, 0.0, static_cast<double>(kStations)));
}

double deflectionAt(const MultiSpanSolution& solution, double x, int unitSystem) {
  Guarded<double> deflection;
  RunStep([&] {
    const MomentCurve unit = UnitCurve(solution, x);
    if (solution.curve.integrations > 0) {
      deflection = SumOverBeam(solution, unit, FactorsOf(unitSystem));
    }
  });
  return deflection;
}

DeflectedShape FindDeflectedShape(const MultiSpanSolution& solution, int unitSystem) {
  const SilentFaults silent;
  DeflectedShape shape;
  shape.length = solution.curve.length;
  for (int i = 1; i <= DeflectedShape::kStations; ++i) {
    shape.deflection[i] = deflectionAt(solution, shape.PlaceOf(i), unitSystem);
    if (Abs(shape.deflection[i]) > Abs(shape.largest)) {
      shape.largest = shape.deflection[i];
      shape.largestStation = i;
    }
  }
  FindRotations(shape, shape.PlaceOf(1) * FactorsOf(unitSystem).length);
  return shape;
}

}  // namespace lignara
