#pragma once

#include <vector>

#include "truss/truss_window.h"

namespace lignara {

/// All numbers of a run that a user can change after it: the node loads, and of each member group
/// section, stresses and modulus.
std::vector<double> InputsOf(const ActiveModel& model, const SessionState& session);

/// True after a run whose loads or members have been changed since.
bool IsOutOfDate(const TrussWindow& window, const SessionState& session);

/// True where the stresses, the deflections shown are not of the last run, which lacked members, or
/// that run is out of date itself.
bool AreStressesOlder(const TrussWindow& window);
bool AreDeflectionsOlder(const TrussWindow& window);

}  // namespace lignara
