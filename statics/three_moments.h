#pragma once

#include <vector>

#include "statics/beam.h"

namespace lignara {

/// The curves of all spans of a beam that is held.
std::vector<SpanCurves> SolveThreeMoments(const ContinuousBeam& beam);

}  // namespace lignara
