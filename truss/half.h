#pragma once

#include <array>

#include "truss/active_model.h"

namespace lignara {

/// The arrays of one half of a truss. Both halves follow the same rules, so a rule is written once
/// over this and applied to each.
struct TrussHalf {
  Float32Array &LEN_T, &LEN_C, &LEN_V, &LEN_D;
  Float32Array &AX_T, &AX_C, &AX_V, &AX_D;
  Int16Array &SGN_T, &SGN_C, &SGN_V, &SGN_D;
  Float32Array &TH, &TV, &DH, &DV;
  Float32Array& ARM;
  Float32Array &FinkWebV, &FinkWebH;
  Float32Array& P;
  Float32& NODE_R;
};

/// The left and the right half, in this order.
std::array<TrussHalf, 2> HalvesOf(ActiveModel& model);

}  // namespace lignara
