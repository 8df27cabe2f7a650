#include "beam/load_lanes.h"

#include <algorithm>

#include "beam/load_kinds.h"

namespace lignara {
namespace {

/// The first lane that is free where a load begins, which then takes it.
int TakeLane(std::vector<double>& ends, double start, double end) {
  std::size_t lane = 0;
  while (lane < ends.size() && start < ends[lane]) ++lane;
  if (lane == ends.size()) ends.push_back(end);
  ends[lane] = std::max(ends[lane], end);
  return static_cast<int>(lane);
}

}  // namespace

LoadLanes FindLanes(const SingleSpanBeam& beam) {
  std::vector<double> above, below;
  LoadLanes lanes;
  lanes.laneOf.assign(static_cast<std::size_t>(beam.loadCount.value()) + 1, 0);
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    if (!IsDistributed(beam.KindOf(load))) continue;
    const double start = beam.loadA[load].value();
    const double end = start + beam.loadB[load].value();
    lanes.laneOf[static_cast<std::size_t>(load)] =
        TakeLane(beam.loadW[load] < 0 ? below : above, start, end);
  }
  lanes.above = static_cast<int>(above.size());
  lanes.below = static_cast<int>(below.size());
  return lanes;
}

}  // namespace lignara
