#pragma once

#include <vector>

#include "truss/active_model.h"

namespace lignara {

/// All numbers of a run that a user can change after it: the node loads, and of each member group
/// section, stresses and modulus.
std::vector<double> InputsOf(const ActiveModel& model, const SessionState& session);

}  // namespace lignara
