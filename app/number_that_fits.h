#pragma once

#include <optional>

#include "app/stored_number.h"

namespace lignara {

/// A number of the user's as the model keeps it; nothing where it is too large for that, which is
/// shown as a fault, so that no load changes on it.
std::optional<Float32> NumberThatFits(const Number& number);

}  // namespace lignara
