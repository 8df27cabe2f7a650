#pragma once

#include <vector>

#include "beam/single_span_beam.h"

namespace lignara {

/// Where the distributed loads of a picture stand: those that lie over each other are stacked, on
/// the side of the beam from which they act. Lanes count from 0, the one next to the beam.
struct LoadLanes {
  std::vector<int> laneOf;  ///< by load; 0 for other kinds
  int above = 0;            ///< lanes of loads that act downward
  int below = 0;            ///< and upward
};

LoadLanes FindLanes(const SingleSpanBeam& beam);

}  // namespace lignara
