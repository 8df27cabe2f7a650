#include "multispan/beam_case.h"

#include <algorithm>

namespace lignara {
namespace {

/// The entries 1 to the count of a span. The count does not look for gaps, so an entry freed ahead
/// of others costs the last one its place.
std::vector<SpanPointLoad> PointsOf(const MultiSpanModel& model, int j) {
  const auto span = static_cast<std::size_t>(j);
  const int last = std::max<int>(1, model.pointCount[j].value());
  std::vector<SpanPointLoad> points;
  for (int k = 1; k <= last; ++k) {
    points.push_back({static_cast<double>(model.pointLoad[span][k].value()),
                      static_cast<double>(model.pointX[span][k].value())});
  }
  return points;
}

BeamSpan SpanOf(const MultiSpanModel& model, int j) {
  BeamSpan span;
  span.length = static_cast<double>(model.spanLength[j].value());
  span.e = static_cast<double>(model.spanE[j].value());
  span.i = static_cast<double>(model.spanI[j].value());
  span.uniform = model.spanUniform[j].value();
  span.points = PointsOf(model, j);
  return span;
}

}  // namespace

double BeamCase::StartOf(int j) const {
  double start = 0;
  for (int i = 1; i < j; ++i) start += Span(i).length;
  return start;
}

double BeamCase::TotalLength() const { return StartOf(count + 1); }

BeamCase RealLoads(const MultiSpanModel& model) {
  BeamCase beam;
  beam.count = std::min<int>(model.spanCount.value(), kMultiSpanLimit);
  beam.left = model.farLeftSupport;
  beam.right = model.farRightSupport;
  beam.spans.emplace_back();
  for (int j = 1; j <= beam.count; ++j) beam.spans.push_back(SpanOf(model, j));
  return beam;
}

BeamCase WithoutLoads(const BeamCase& beam) {
  BeamCase bare = beam;
  for (BeamSpan& span : bare.spans) {
    span.uniform = 0;
    span.points.assign(1, SpanPointLoad{});
  }
  return bare;
}

}  // namespace lignara
