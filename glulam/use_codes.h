#pragma once

#include <string_view>

namespace lignara {

/// A use code of a combination: what is noted of it, and whether it is published for wet use.
struct GlulamUseCode {
  std::string_view code;
  const char* note;
  bool wetOffered;
};
inline constexpr GlulamUseCode kGlulamUseCodes[] = {
    {"1", "Not balanced, for dry or wet use.", true},
    {"2", "Straight or slightly cambered member for dry use and industrial appearance.", false},
    {"3", "Balanced, equal capacity in both pos. and neg. bending.", true},
};

}  // namespace lignara
