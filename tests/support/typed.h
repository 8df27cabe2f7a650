#pragma once

#include <array>
#include <charconv>
#include <string>

namespace lignara {

/// A number as a user types it: with a decimal point whatever the locale (std::to_string heeds it).
inline std::string Typed(double number) {
  std::array<char, 64> text{};
  const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(), number);
  return {text.data(), end.ptr};
}

}  // namespace lignara
