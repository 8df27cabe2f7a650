#pragma once

#include <cstdint>
#include <string>

namespace lignara {

/// A whole number as it stands in a row label: one leading blank where it is not negative, so that
/// a row reads "PL 1 = 0.00".
std::string NumberText(std::int32_t number);

}  // namespace lignara
