#pragma once

#include <cstdint>
#include <string>

// The three ways between numbers and texts: reading, showing by a pattern, labels.
#include "app/number_pattern.h"
#include "app/number_reader.h"

namespace lignara {

/// A whole number as it stands in a row label: one leading blank where it is not negative, so that
/// a row reads "PL 1 = 0.00".
std::string NumberText(std::int32_t number);

}  // namespace lignara
