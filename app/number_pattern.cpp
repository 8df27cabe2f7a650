#include "app/number_pattern.h"

#include <algorithm>
#include <cstdlib>

namespace lignara {
namespace {

/// The digit with the weight 10^power.
char DigitAt(const Decimal& d, int power) {
  const int index = d.point - 1 - power;
  const bool has = index >= 0 && index < static_cast<int>(d.digits.size());
  return has ? d.digits[static_cast<std::size_t>(index)] : '0';
}

/// The parts of a pattern.
struct Pattern {
  int wholeZeros = 0;    // digits before the point that are always printed
  int decimals = 0;      // the most decimals
  int decimalZeros = 0;  // decimals that are always printed
  bool point = false;
  int exponentDigits = 0;  // 0: no exponent
  char exponentMark = 'E';
};

Pattern ReadPattern(std::string_view text) {
  Pattern p;
  const std::size_t mark = text.find_first_of("Ee");
  if (mark != std::string_view::npos) {
    p.exponentMark = text[mark];
    p.exponentDigits =
        static_cast<int>(std::count(text.begin() + static_cast<long>(mark), text.end(), '0'));
    text = text.substr(0, mark);
  }
  const std::size_t point = text.find('.');
  p.point = point != std::string_view::npos;
  const std::string_view whole = text.substr(0, point);
  p.wholeZeros = static_cast<int>(std::count(whole.begin(), whole.end(), '0'));
  if (p.point) {
    const std::string_view part = text.substr(point + 1);
    p.decimals = static_cast<int>(part.size());
    const std::size_t last = part.rfind('0');
    p.decimalZeros = last == std::string_view::npos ? 0 : static_cast<int>(last) + 1;
  }
  return p;
}

/// How many digits of a number a pattern shows, from its first digit that counts.
int DigitsShown(const Decimal& d, const Pattern& p) {
  return (p.exponentDigits > 0 ? 1 : d.point) + p.decimals;
}

std::string Mantissa(const Decimal& d, const Pattern& p) {
  std::string text;
  for (int power = std::max(d.point, p.wholeZeros) - 1; power >= 0; --power) {
    if (text.empty() && DigitAt(d, power) == '0' && power >= p.wholeZeros) continue;
    text += DigitAt(d, power);
  }
  if (!p.point) return text;
  text += '.';
  int last = p.decimals;
  while (last > p.decimalZeros && DigitAt(d, -last) == '0') --last;
  for (int place = 1; place <= last; ++place) text += DigitAt(d, -place);
  return text;
}

std::string ExponentText(int exponent, const Pattern& p) {
  const auto digits = static_cast<std::size_t>(p.exponentDigits);
  std::string text = std::to_string(std::abs(exponent));
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return p.exponentMark + ((exponent < 0 ? "-" : "+") + text);
}

}  // namespace

std::string FormatDecimal(Decimal d, std::string_view pattern) {
  const Pattern p = ReadPattern(pattern);
  int exponent = 0;
  if (p.exponentDigits > 0) {
    exponent = d.point - 1;
    d.point = 1;
    RoundDigits(d, 1 + p.decimals);
    if (d.point > 1) {  // 9.999 became 10.00
      ++exponent;
      d.point = 1;
    }
  } else {
    RoundDigits(d, d.point + p.decimals);
  }
  std::string text = Mantissa(d, p);
  if (p.exponentDigits > 0) text += ExponentText(exponent, p);
  return d.negative && !IsZero(d) ? "-" + text : text;
}

std::string FormatNumber(double number, std::string_view pattern) {
  return FormatDecimal(ToDecimal(number, kDigits64), pattern);
}

std::string FormatNumber(float number, std::string_view pattern) {
  const Decimal d = ToDecimal(static_cast<double>(number), kDigits32);
  // Cents of 123456.79 lie behind the seventh digit, but are in the number all the same.
  const bool all = DigitsShown(d, ReadPattern(pattern)) >= kDigits32;
  return FormatDecimal(all ? ShortestDecimal(number) : d, pattern);
}

std::string FormatNumber(const Float32& number, std::string_view pattern) {
  return FormatNumber(number.value(), pattern);
}

std::string FormatNumber(const Float64& number, std::string_view pattern) {
  return FormatNumber(number.value(), pattern);
}

}  // namespace lignara
