#pragma once

#include <vector>

#include "statics/polynomial.h"

namespace lignara {

// Loads of a span. Lengths in ft from the left end of the span, forces in lbs, downward positive.

struct PointForce {
  double force = 0;  ///< lbs
  double x = 0;      ///< ft
};

struct PointMoment {
  double moment = 0;  ///< ft-lbs, clockwise
  double x = 0;       ///< ft
};

/// A load spread over a part of a span; it changes evenly from its start to its end.
struct SpreadLoad {
  double start = 0, end = 0;      ///< ft
  double atStart = 0, atEnd = 0;  ///< lbs/ft
};

/// A prismatic span and its loads. What of them lies beyond its ends is left out: there is no beam.
struct LoadedSpan {
  double length = 0;     ///< ft
  double stiffness = 0;  ///< E I, lbs ft^2

  std::vector<PointForce> forces;
  std::vector<PointMoment> moments;
  std::vector<SpreadLoad> spreads;
};

/// What a section of a beam carries and how it lies.
struct SectionState {
  double shear = 0;       ///< lbs; positive where the left part pushes upward
  double moment = 0;      ///< ft-lbs, sagging positive
  double slope = 0;       ///< rad, positive where the beam falls to the right
  double deflection = 0;  ///< ft, downward
};

/// A stretch of a span between two places at which something acts: all four curves are polynomials
/// in the distance from its start.
struct BeamStretch {
  double start = 0;      ///< ft from the left end of the span
  double length = 0;     ///< ft, above 0
  double stiffness = 0;  ///< lbs ft^2
  SectionState first;    ///< at its start
  double intensity = 0;  ///< of the spread loads at its start, lbs/ft
  double growth = 0;     ///< lbs/ft^2

  Polynomial Shear() const;
  Polynomial Moment() const;
  Polynomial Slope() const;
  Polynomial Deflection() const;
  SectionState At(double u) const;
};

/// The curves of a whole span.
struct SpanCurves {
  SectionState first;                  ///< ahead of all that acts at the left end
  std::vector<BeamStretch> stretches;  ///< from left to right, without gaps
  SectionState last;                   ///< behind all that acts at the right end
};

/// Goes through a span from left to right, from what its left end carries, and takes up its loads
/// one after the other.
SpanCurves WalkSpan(const LoadedSpan& span, const SectionState& first);

}  // namespace lignara
