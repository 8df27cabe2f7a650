#pragma once

#include <string>

#include "beam/diagrams.h"

namespace lignara {

// What the pictures of single-span beams show, in words for screen readers.

/// The picture of the loads: "beam of 10 ft, left support pinned, right support free, 2 loads".
std::string DescribeLoads(const SingleSpanBeam& beam);
/// A diagram: "largest value 2500.00 at 5.000 ft", or "before a run".
std::string DescribeDiagram(const BeamWindow& window, Diagram diagram);

}  // namespace lignara
