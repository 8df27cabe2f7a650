#include "statics/beam.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "statics/three_moments.h"

namespace lignara {
namespace {

/// Takes a curve of a stretch into its range: the ends, and where the curve is level.
void Take(const Polynomial& curve, double length, CurveRange& range) {
  const auto take = [&](double value) {
    range.most = std::max(range.most, value);
    range.least = std::min(range.least, value);
  };
  take(curve.At(0));
  take(curve.At(length));
  for (const double place : SignChanges(curve.Derivative(), length)) take(curve.At(place));
}

template <typename CurveOf>
CurveRange RangeOf(const SpanCurves& curves, const CurveOf& curveOf) {
  const double start = curveOf(curves.stretches.front()).At(0);
  CurveRange range{start, start};
  for (const BeamStretch& stretch : curves.stretches) {
    Take(curveOf(stretch), stretch.length, range);
  }
  return range;
}

SpanStatics StaticsOf(SpanCurves&& curves) {
  SpanStatics span;
  span.shear = RangeOf(curves, [](const BeamStretch& s) { return s.Shear(); });
  span.moment = RangeOf(curves, [](const BeamStretch& s) { return s.Moment(); });
  span.deflection = RangeOf(curves, [](const BeamStretch& s) { return s.Deflection(); });
  span.curves = std::move(curves);
  return span;
}

bool IsHeld(const ContinuousBeam& beam) {
  const bool fixed = beam.left == BeamHold::Fixed || beam.right == BeamHold::Fixed;
  const int free = (beam.left == BeamHold::Free) + (beam.right == BeamHold::Free);
  return fixed || static_cast<int>(beam.spans.size()) + 1 - free >= 2;
}

bool IsWhole(const LoadedSpan& span) { return span.length > 0 && span.stiffness > 0; }

bool IsMechanism(const ContinuousBeam& beam) {
  return beam.spans.empty() || !IsHeld(beam) ||
         !std::all_of(beam.spans.begin(), beam.spans.end(), IsWhole);
}

/// What a support takes is the jump of the shear across it.
void FindReactions(BeamStatics& statics) {
  double shear = 0;
  for (const SpanStatics& span : statics.spans) {
    statics.reactions.push_back(span.curves.first.shear - shear);
    shear = span.curves.last.shear;
  }
  statics.reactions.push_back(-shear);
}

}  // namespace

CurveRange Union(const CurveRange& a, const CurveRange& b) {
  return {std::max(a.most, b.most), std::min(a.least, b.least)};
}

CurveRange Negated(const CurveRange& range) { return {-range.least, -range.most}; }

CurveRange RangeOver(const BeamStatics& statics, CurveRange SpanStatics::*curve) {
  CurveRange range = statics.spans.front().*curve;
  for (const SpanStatics& span : statics.spans) range = Union(range, span.*curve);
  return range;
}

double MagnitudeOf(const CurveRange& range) {
  return std::max(std::fabs(range.most), std::fabs(range.least));
}

BeamStatics SolveStatics(const ContinuousBeam& beam) {
  BeamStatics statics;
  statics.mechanism = IsMechanism(beam);
  if (statics.mechanism) return statics;
  for (SpanCurves& curves : SolveThreeMoments(beam)) {
    statics.spans.push_back(StaticsOf(std::move(curves)));
  }
  FindReactions(statics);
  statics.leftFixing = statics.spans.front().curves.first.moment;
  statics.rightFixing = statics.spans.back().curves.last.moment;
  return statics;
}

}  // namespace lignara
