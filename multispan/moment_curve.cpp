#include "multispan/moment_curve.h"

#include <algorithm>
#include <cmath>

namespace lignara {
namespace {

/// Adds the stations of one segment of the shear diagram behind those found before.
void AddSegment(const ShearVertex& from, const ShearVertex& to, MomentCurve& curve,
                double& moment) {
  const double width = to.x - from.x;
  if (width == 0) return;
  const double steps = std::floor(curve.integrations * width / curve.length);
  const double fall = (from.shear - to.shear) / steps;
  const auto room = static_cast<std::size_t>(2 * curve.integrations);
  for (double k = 0; k < steps; ++k) {
    if (curve.stations.size() > room) throw StepFault();
    // The shear is a straight line, so its integral is that of its middle.
    moment += (from.shear - fall * (k + 0.5)) * width / steps;
    curve.stations.push_back(Guarded<float>(moment).value());
  }
}

bool IsWithin(double place, double from, double to) { return place >= from && place <= to; }

}  // namespace

float MomentCurve::At(int station) const {
  const bool has = station >= 0 && station < static_cast<int>(stations.size());
  return has ? stations[static_cast<std::size_t>(station)] : 0;
}

float MomentCurve::MomentAt(double x) const {
  const double station = std::floor(x / length * integrations);
  return station >= 0 && station <= integrations ? At(static_cast<int>(station)) : 0;
}

MomentCurve IntegrateShear(const ShearDiagram& shear, double firstMoment, double length,
                           int integrations) {
  MomentCurve curve{integrations, length, {}};
  if (integrations < 0 || !(length > 0)) return curve;
  curve.stations.push_back(static_cast<float>(firstMoment));
  double moment = firstMoment;
  RunStep([&] {
    for (std::size_t i = 0; i + 1 < shear.vertices.size(); ++i) {
      AddSegment(shear.vertices[i], shear.vertices[i + 1], curve, moment);
    }
  });
  return curve;
}

MaximumMoment FindMaximumMoment(const BeamCase& beam, const DistributionResult& result,
                                const MomentCurve& curve) {
  MaximumMoment most{std::fabs(result.finalMoment(1, kLeftEnd).value()), 0};
  double location = 0;
  for (int j = 1; j <= beam.count; ++j) {
    for (const int end : {kLeftEnd, kRightEnd}) {
      const float moment = std::fabs(result.finalMoment(j, end).value());
      if (moment <= most.moment) continue;
      location += beam.Span(j).length;
      most = {moment, location};
    }
  }
  for (int s = 0; s <= curve.integrations && curve.integrations > 0; ++s) {
    const float moment = std::fabs(curve.At(s));
    if (moment >= most.moment) most = {moment, curve.PlaceOf(s)};
  }
  return most;
}

std::vector<float> LargestMoments(const BeamCase& beam, const MomentCurve& curve) {
  std::vector<float> largest(static_cast<std::size_t>(beam.count) + 1);
  int s = 0;
  double start = 0;
  for (int j = 1; j <= beam.count; ++j) {
    const double end = start + beam.Span(j).length;
    while (s < curve.integrations && curve.PlaceOf(s) < start) ++s;
    float& most = largest[static_cast<std::size_t>(j)];
    for (; s <= curve.integrations && IsWithin(curve.PlaceOf(s), start, end); ++s) {
      most = std::max(most, std::fabs(curve.At(s)));
    }
    s = std::max(s - 1, 0);  // the station on the joint counts for the next span too
    start = end;
  }
  return largest;
}

}  // namespace lignara
