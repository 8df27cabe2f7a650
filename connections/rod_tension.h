#pragma once

#include "app/stored_number.h"
#include "connections/rod_table.h"

namespace lignara {

/// What a rod in tension carries, and the square bearing plate that it needs.
struct RodTension {
  Float32 load;       ///< lbs
  Float32 plateSide;  ///< in
};

/// What the user reads where a rod cannot be computed with these stresses; null where it can.
const char* TensionRefusal(const Number& boltStress, const Number& woodStress);

/// The load of the whole tensile area at `boltStress` (ksi), and the side of the plate that bears
/// it on the wood at `woodStress` (psi), both above 0. The hole in the plate is not taken off.
RodTension TensionOf(const RodSize& rod, const Number& boltStress, const Number& woodStress);

}  // namespace lignara
