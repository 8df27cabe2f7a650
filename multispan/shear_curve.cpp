#include "multispan/shear_curve.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lignara {
namespace {

/// The places of the jumps: where spans start, point loads stand, and the beam ends.
std::vector<double> Breaks(const BeamCase& beam) {
  std::vector<double> breaks;
  double start = 0;
  for (int j = 1; j <= beam.count; ++j) {
    const BeamSpan& span = beam.Span(j);
    breaks.push_back(start);
    if (span.HasPointLoads()) {
      for (const SpanPointLoad& load : span.points) breaks.push_back(start + load.x);
    }
    start += span.length;
  }
  breaks.push_back(start);
  return breaks;
}

/// The shears of the polyline, one after the other.
class ShearWalk {
 public:
  explicit ShearWalk(double firstReaction) : shears_{0, firstReaction} {}

  void Fall(double force) { shears_.push_back(Guarded<double>(shears_.back() - force)); }

  /// From behind the left reaction of a span to ahead of its right one.
  void Cross(const BeamSpan& span) {
    const double w = span.uniform;
    const std::vector<SpanPointLoad>& points = span.points;
    // A first load at 0 counts as none here, so the uniform load falls over the whole span.
    const bool toFirstLoad = points.front().x != 0;
    Fall(w * (toFirstLoad ? points.front().x : span.length));
    if (!span.HasPointLoads()) return;
    Fall(points.front().force);
    for (std::size_t k = 1; k < points.size(); ++k) {
      Fall((points[k].x - points[k - 1].x) * w);
      Fall(points[k].force);
    }
    Fall((span.length - points.back().x) * w);
  }

  std::size_t last() const { return shears_.size() - 1; }
  const std::vector<double>& shears() const { return shears_; }

 private:
  std::vector<double> shears_;
};

void Trace(const BeamCase& beam, const DistributionResult& result, ShearWalk& walk,
           std::vector<ShearDiagram::Range>& spans) {
  for (int j = 1; j <= beam.count; ++j) {
    const std::size_t first = walk.last();
    walk.Cross(beam.Span(j));
    spans.push_back({first, walk.last()});
    walk.Fall(-result.reaction[j + 1]);
  }
}

}  // namespace

double ShearDiagram::ShearAt(double x) const {
  Guarded<double> shear;
  for (std::size_t i = 1; i + 1 < vertices.size(); i += 2) {
    const ShearVertex& left = vertices[i];
    const ShearVertex& right = vertices[i + 1];
    // Two vertices at one place have no line between them.
    if (left.x == right.x || x < left.x || x > right.x) continue;
    RunStep([&] {
      shear = left.shear + (right.shear - left.shear) * (x - left.x) / (right.x - left.x);
    });
  }
  return shear;
}

ShearDiagram FindShear(const BeamCase& beam, const DistributionResult& result) {
  ShearDiagram diagram;
  diagram.spans.emplace_back();
  ShearWalk walk(result.reaction[1]);
  RunStep([&] { Trace(beam, result, walk, diagram.spans); });
  // A shear that is too large ends the walk; what was found before stands.
  const std::vector<double> breaks = Breaks(beam);
  for (std::size_t i = 0; i < walk.shears().size(); ++i) {
    diagram.vertices.push_back({breaks[i / 2], walk.shears()[i]});
  }
  return diagram;
}

std::vector<float> LargestShears(const ShearDiagram& diagram) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  std::vector<float> largest(diagram.spans.size());
  for (std::size_t j = 1; j < diagram.spans.size(); ++j) {
    for (std::size_t i = diagram.spans[j].first; i <= diagram.spans[j].last; ++i) {
      const double shear = std::fabs(diagram.vertices[i].shear);
      largest[j] = std::max(largest[j], static_cast<float>(std::min(shear, kLargest)));
    }
  }
  return largest;
}

}  // namespace lignara
