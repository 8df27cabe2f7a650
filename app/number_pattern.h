#pragma once

#include <string>
#include <string_view>

#include "app/rounding.h"
#include "app/stored_number.h"

namespace lignara {

/// The pattern of most values: two decimals.
inline constexpr const char* kTwoDecimals = "0.00";

/// The number in a display pattern such as "0", "0.00", "##0.##", "0.00E+00" or
/// "0.00e+00".
///
/// The decimal value of the stored number is rounded half away from zero: 7 significant digits of
/// a 32-bit number (so that 1.15 x 1.5 shows 1.73), but where the pattern shows 7 digits or more
/// the shortest decimal that reads back as the same number (so that 123456.79 keeps its cents); 15
/// digits of a 64-bit number. '0' always prints a digit, '#' only where there is one; the
/// point stays. What rounds to zero has no sign.
std::string FormatNumber(const Float32& number, std::string_view pattern);
std::string FormatNumber(const Float64& number, std::string_view pattern);
std::string FormatNumber(double number, std::string_view pattern);
std::string FormatNumber(float number, std::string_view pattern);

/// The same for a number that has been rounded to the digits that count.
std::string FormatDecimal(Decimal decimal, std::string_view pattern);

}  // namespace lignara
