#pragma once

#include "app/colour.h"
#include "app/scene.h"
#include "app/stored_number.h"

namespace lignara {

/// How the sense of an axial force is told.
struct ForceSense {
  const char* letter;   ///< beside a figure
  const char* spoken;   ///< read out
  const char* meaning;  ///< in the legend of a drawing
  Colour colour;
  Stroke stroke;
};

inline constexpr ForceSense kTension = {"T", "tension", "Tension", Colour::RoyalBlue, Stroke::Fine};
inline constexpr ForceSense kCompression = {"C", "compression", "Compression", Colour::DarkOrange,
                                            Stroke::Heavy};
inline constexpr ForceSense kNoForce = {"", "", "No force", Colour::Gray, Stroke::Dotted};

/// Tension where the force pulls, compression where it presses.
inline const ForceSense& SenseOf(const Number& axial) {
  if (axial > 0) return kTension;
  return axial < 0 ? kCompression : kNoForce;
}

}  // namespace lignara
