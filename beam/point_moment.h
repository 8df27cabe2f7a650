#pragma once

#include "beam/single_span_beam.h"

namespace lignara {

/// A moment acts as a couple, which needs room on both sides: one at an end of the beam is moved
/// inward. `load` counts from 1.
void PullMomentFromEnds(SingleSpanBeam& beam, int load);

}  // namespace lignara
