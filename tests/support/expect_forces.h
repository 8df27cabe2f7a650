#pragma once

#include <vector>

#include "app/bounded_array.h"

namespace lignara {

/// Compares the elements 1, 2, ... of an array of forces with values of a hand calculation that was
/// carried to two decimals.
void ExpectForces(const Float32Array& forces, const std::vector<double>& fromElement1);

}  // namespace lignara
