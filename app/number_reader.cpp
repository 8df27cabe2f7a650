#include "app/number_reader.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace lignara {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

/// The end of an exponent at `at`, or `at` itself where none stands there.
std::size_t SkipExponent(std::string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t end = SkipDigits(text, digits);
  return end > digits ? end : at;
}

/// The longest prefix of an unsigned text that is a number; empty where there is none.
std::string_view UnsignedPrefix(std::string_view text) {
  std::size_t at = SkipDigits(text, 0);
  std::size_t digits = at;
  if (at < text.size() && text[at] == '.') {
    const std::size_t end = SkipDigits(text, at + 1);
    digits += end - at - 1;
    at = end;
  }
  return digits == 0 ? std::string_view() : text.substr(0, SkipExponent(text, at));
}

/// The exponent behind the mark at `mark`; one too long to be read is very large or very small.
long ExponentAt(std::string_view number, std::size_t mark) {
  if (mark >= number.size()) return 0;
  std::string_view text = number.substr(mark + 1);
  if (text.front() == '+') text.remove_prefix(1);
  int exponent = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), exponent);
  if (result.ec == std::errc()) return exponent;
  return text.front() == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

/// Of a number outside the range of 64 bits: is it too near to zero, and not too far from it?
bool IsTiny(std::string_view number) {
  const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
  const std::string_view digits = number.substr(0, mark);
  const auto point = static_cast<long>(std::min(digits.find('.'), digits.size()));
  const auto first = static_cast<long>(digits.find_first_of("123456789"));
  return point - first + ExponentAt(number, mark) < 0;
}

}  // namespace

Number ReadNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return 0.0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  const std::string_view number = UnsignedPrefix(text);
  double value = 0.0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    return IsTiny(number) ? Number(0.0) : Number::Faulted(Fault::Overflow);
  }
  return negative ? Number(-value) : Number(value);
}

bool StartsWithNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  return !UnsignedPrefix(text).empty();
}

std::string ReadingNote(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return "";
  text.remove_prefix(start);
  const std::size_t sign = text.front() == '-' || text.front() == '+' ? 1 : 0;
  const std::size_t digits = UnsignedPrefix(text.substr(sign)).size();
  if (digits == 0) return "read as 0";
  const std::size_t end = sign + digits;
  if (text.find_first_not_of(" \t", end) == std::string_view::npos) return "";
  return "read as " + std::string(text.substr(0, end));
}

}  // namespace lignara
