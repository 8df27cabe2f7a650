#pragma once

#include "multispan/beam_case.h"
#include "multispan/distribution_result.h"

namespace lignara {

/// Solves a continuous beam by moment distribution, as by hand: fixed-end moments, factors from
/// E I / L, half of each balancing moment carried over, a fixed number of cycles. Ends with the
/// reactions. A fault ends the step in which it happens, not the solve.
///
/// The number of cycles is the square of the number of spans, whatever is left to distribute then.
DistributionResult Distribute(const BeamCase& beam);

}  // namespace lignara
