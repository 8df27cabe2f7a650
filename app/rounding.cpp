#include "app/rounding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace lignara {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The digits of a number in scientific form, such as "1.7250000e+00".
Decimal ToDecimal(bool negative, std::string_view scientific) {
  Decimal d;
  d.negative = negative;
  const std::size_t mark = scientific.find('e');
  for (const char c : scientific.substr(0, mark)) {
    if (IsDigit(c)) d.digits += c;
  }
  d.point = std::atoi(std::string(scientific.substr(mark + 1)).c_str()) + 1;
  return d;
}

/// Room for all digits that are asked for, with sign, point and exponent.
using DigitBuffer = std::array<char, 64>;

}  // namespace

Decimal ToDecimal(double number, int significant) {
  DigitBuffer buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                 std::chars_format::scientific, significant - 1);
  return ToDecimal(std::signbit(number), {buffer.data(), end.ptr});
}

Decimal ShortestDecimal(float number) {
  DigitBuffer buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                 std::chars_format::scientific);
  return ToDecimal(std::signbit(number), {buffer.data(), end.ptr});
}

void RoundDigits(Decimal& d, int keep) {
  if (keep >= static_cast<int>(d.digits.size())) return;
  const bool up = keep >= 0 && d.digits[static_cast<std::size_t>(keep)] >= '5';
  d.digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
  if (!up) return;
  for (auto digit = d.digits.rbegin(); digit != d.digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  d.digits.insert(d.digits.begin(), '1');
  ++d.point;
}

}  // namespace lignara
