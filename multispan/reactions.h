#pragma once

#include "multispan/beam_case.h"
#include "multispan/distribution_result.h"

namespace lignara {

/// The last step of the distribution: end shears of each span and the reactions, from the final
/// moments. A far end without support keeps its place in the list, with the reaction 0.
void FindReactions(const BeamCase& beam, DistributionResult& result);

}  // namespace lignara
