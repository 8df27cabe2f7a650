#pragma once

#include <string>

#include "app/stored_number.h"

namespace lignara {

/// A 32-bit number as a user would type it into a field: up to 7 digits, nothing behind the last
/// one that counts, an exponent only where the digits do not reach ("100", "0.5", "1.5E+09").
std::string PlainNumber(const Float32& number);
/// The same for a 64-bit number: up to 15 digits.
std::string PlainNumber(const Float64& number);

}  // namespace lignara
