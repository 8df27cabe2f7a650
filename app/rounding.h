#pragma once

#include <string>

namespace lignara {

/// A number as decimal digits: 0.d1d2d3... x 10^point.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;
};

/// The significant digits that a number of so many bits shows.
inline constexpr int kDigits32 = 7;
inline constexpr int kDigits64 = 15;

/// A number to so many significant digits.
Decimal ToDecimal(double number, int significant);

inline bool IsZero(const Decimal& d) {
  return d.digits.find_first_not_of('0') == std::string::npos;
}

/// The shortest decimal that reads back as the same number.
Decimal ShortestDecimal(float number);

/// Keeps `keep` digits (none where negative), rounding half away from zero.
void RoundDigits(Decimal& d, int keep);

}  // namespace lignara
