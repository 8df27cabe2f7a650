#pragma once

#include <array>

#include "app/stored_number.h"

namespace lignara {

/// The fields of the frame "Loads".
enum class LoadField { A, B, P, M, W, Disp };
inline constexpr int kLoadFields = 6;
inline constexpr std::array<const char*, kLoadFields> kLoadFieldCaptions = {
    "A(ft)", "B(ft)", "P(lbs)", "M(ft-lb)", "W(lbs/ft)", "Disp (in)"};

/// The numbers read from the six fields.
using LoadInput = std::array<Float32, kLoadFields>;

}  // namespace lignara
