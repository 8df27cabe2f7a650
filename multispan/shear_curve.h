#pragma once

#include <vector>

#include "multispan/beam_case.h"
#include "multispan/distribution_result.h"

namespace lignara {

struct ShearVertex {
  double x = 0;      ///< along the beam, ft
  double shear = 0;  ///< lbs
};

/// The shear of the whole beam as a polyline. Vertices come in pairs at one place, ahead of a jump
/// and behind it: two at the left end of the beam, two for each point load and each support.
struct ShearDiagram {
  std::vector<ShearVertex> vertices;
  /// For each span, from 1: the vertex behind its left reaction and the one ahead of its right one.
  struct Range {
    std::size_t first = 0, last = 0;
  };
  std::vector<Range> spans;

  /// The shear at a place, read off the straight line between two vertices; on a joint that of the
  /// right side. 0 outside of the beam.
  double ShearAt(double x) const;
};

/// Builds the polyline from the loads and the reactions.
ShearDiagram FindShear(const BeamCase& beam, const DistributionResult& result);

/// The largest magnitude of shear within each span, from 1, lbs.
std::vector<float> LargestShears(const ShearDiagram& diagram);

}  // namespace lignara
