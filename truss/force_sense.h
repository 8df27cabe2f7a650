#pragma once

#include "app/stored_number.h"

namespace lignara {

/// How the sense of an axial force is told: beside a figure, and read out.
struct ForceSense {
  const char* letter;
  const char* spoken;
};

/// "T" where the force pulls, "C" where it presses, empty for none.
inline ForceSense SenseOf(const Number& axial) {
  if (axial > 0) return {"T", "tension"};
  if (axial < 0) return {"C", "compression"};
  return {"", ""};
}

}  // namespace lignara
