#pragma once

#include <array>
#include <string_view>

#include "app/stored_number.h"

namespace lignara {

/// The nominal widths and depths that the buttons offer, in.
inline constexpr std::array<int, 14> kNominalSizes = {1,  2,  3,  4,  6,  8,  10,
                                                      12, 14, 16, 18, 20, 22, 24};

/// Dressed width of a nominal size, or why there is none.
struct DressedWidth {
  float inches = 0;
  std::string_view refusal;  ///< empty where the pair is accepted
};

/// The dressed width for a nominal width and depth in inches. Width and depth have to be among the
/// nominal sizes: another width gives 0 without a refusal.
DressedWidth FindDressedWidth(int width, int depth);

/// The dressed depth for a nominal depth and width in inches; 0 for a depth that is no nominal
/// size.
float FindDressedDepth(int depth, int width);

}  // namespace lignara
