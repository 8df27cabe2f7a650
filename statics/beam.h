#pragma once

#include <vector>

#include "statics/span_walk.h"

namespace lignara {

/// What a beam has at one of its far ends. Free: the span there is an overhang.
enum class BeamHold { Free, Pinned, Fixed };

/// A beam of one or many spans. Between two spans stands a support on which it can turn.
struct ContinuousBeam {
  std::vector<LoadedSpan> spans;
  BeamHold left = BeamHold::Pinned;
  BeamHold right = BeamHold::Pinned;

  std::vector<double> rises;  ///< of the supports, from the left end on, ft upward; none: all 0
  double leftTurn = 0;        ///< of a fixed end, rad clockwise
  double rightTurn = 0;
};

/// The largest and the smallest value of a curve, signs included.
struct CurveRange {
  double most = 0;
  double least = 0;
};

/// The exact answer for one span; units and signs are those of `SectionState`.
struct SpanStatics {
  SpanCurves curves;
  CurveRange shear;
  CurveRange moment;
  CurveRange deflection;
};

/// The exact answer for a beam.
struct BeamStatics {
  bool mechanism = false;         ///< no equilibrium is possible, and nothing else is told
  std::vector<double> reactions;  ///< at the ends of the spans from left to right, lbs upward
  double leftFixing = 0;          ///< what a fixed end holds: the moment there, sagging positive
  double rightFixing = 0;
  std::vector<SpanStatics> spans;
};

/// Solves a beam by the equation of three moments: continuity at each support gives one equation in
/// its own moment and those beside it. The cost grows with the number of spans and of loads. A beam
/// that can move, and one with a span that has no length or no stiffness, is a mechanism.
BeamStatics SolveStatics(const ContinuousBeam& beam);

/// The range of both.
CurveRange Union(const CurveRange& a, const CurveRange& b);
/// The range of the curve turned upside down.
CurveRange Negated(const CurveRange& range);
/// The range of a curve over all spans.
CurveRange RangeOver(const BeamStatics& statics, CurveRange SpanStatics::*curve);

/// The largest magnitude.
double MagnitudeOf(const CurveRange& range);

}  // namespace lignara
