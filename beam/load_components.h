#pragma once

#include <vector>

#include "beam/class_formulas.h"
#include "beam/single_span_beam.h"

namespace lignara {

enum class BreakUp { Done, NoLength, Fault };

/// Breaks a load of the kinds that act through forces (point load to point moment) into point
/// components: a distributed load into Q strips with their force at the middle, a moment into a
/// couple of two forces one station off its place on either side. Other kinds have none.
///
/// `components` is emptied first. A width or a force that does not fit 32 bits, or a count that
/// does not fit 16, is a fault.
BreakUp BreakIntoComponents(const SingleSpanBeam& beam, int load,
                            std::vector<PointComponent>& components);

/// True for the kinds that have components.
bool ActsThroughForces(LoadKind kind);

}  // namespace lignara
