#pragma once

#include <string>

#include "app/multi_span_model.h"
#include "multispan/results_window.h"

namespace lignara {

// What the pictures of multi-span beams show, in words for screen readers.

/// The sketch of the beam: spans, far ends, loads.
std::string DescribeBeam(const MultiSpanModel& model);
/// The diagrams: the largest magnitude, and the value under the cursor where there is one.
std::string DescribeShear(const MultiSpanResults& window);
std::string DescribeMoment(const MultiSpanResults& window);
/// The deflected shape: the largest deflection, and that of the station.
std::string DescribeShape(const MultiSpanResults& window);

}  // namespace lignara
