#include "app/plain_number.h"

#include "app/number_pattern.h"
#include "app/rounding.h"

namespace lignara {
namespace {

std::string PlainDecimal(Decimal d, int significant) {
  if (IsZero(d)) return "0";
  while (d.digits.back() == '0') d.digits.pop_back();
  const bool fixed = d.point > -4 && d.point <= significant;
  const int decimals =
      fixed ? static_cast<int>(d.digits.size()) - d.point : static_cast<int>(d.digits.size()) - 1;
  std::string pattern = "0";
  if (decimals > 0) pattern += "." + std::string(static_cast<std::size_t>(decimals), '0');
  if (!fixed) pattern += "E+00";
  return FormatDecimal(d, pattern);
}

}  // namespace

std::string PlainNumber(const Float32& number) {
  return PlainDecimal(ToDecimal(static_cast<double>(number.value()), kDigits32), kDigits32);
}

std::string PlainNumber(const Float64& number) {
  return PlainDecimal(ToDecimal(number.value(), kDigits64), kDigits64);
}

}  // namespace lignara
