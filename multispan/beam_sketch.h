#pragma once

#include "app/drawing.h"
#include "app/multi_span_model.h"

namespace lignara {

/// The beam as an engineer would sketch it: spans to scale with their numbers and lengths,
/// supports, loads with arrows to scale and their values where there is room. The current span
/// stands out; spans without a length yet are grey and as long as the others are on average. Point
/// loads that the solver leaves out, since the entries ahead of them are free, are grey too.
Drawing DrawBeamSketch(const MultiSpanModel& model, int currentSpan);

}  // namespace lignara
