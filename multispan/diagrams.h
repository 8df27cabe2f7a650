#pragma once

#include <optional>

#include "app/drawing.h"
#include "multispan/beam_deflection.h"
#include "multispan/multi_span_solution.h"

namespace lignara {

/// The diagrams of a solved beam: feet along the beam from left to right, values about a base line
/// at mid height, positive upward; a line at each joint, the peaks lettered, and a cursor line.
Drawing DrawShearDiagram(const MultiSpanSolution& run, std::optional<double> cursor);
Drawing DrawMomentDiagram(const MultiSpanSolution& run, std::optional<double> cursor);

/// The deflected shape of the same beam, downward as the beam goes.
Drawing DrawShapeDiagram(const MultiSpanSolution& run, const DeflectedShape& shape,
                         std::optional<double> cursor);

}  // namespace lignara
