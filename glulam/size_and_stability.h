#pragma once

#include "app/stored_number.h"

namespace lignara {

/// Section and unbraced length of a glulam member. All three have to be above 0.
struct GlulamSection {
  Float32 feet;   ///< unbraced length, ft
  Float32 depth;  ///< in
  Float32 width;  ///< in

  /// The unbraced length, in.
  Float32 Length() const { return feet * 12; }
  /// The lesser of depth and width, in.
  const Float32& Least() const { return depth <= width ? depth : width; }
  /// Unbraced length by the lesser side.
  Float32 Slenderness() const { return Length() / Least(); }
};

/// What a stress becomes by stability.
struct StableStress {
  Float32 stress;        ///< psi
  bool tooLong = false;  ///< beyond the range of the rule; the stress is 0 then
};

/// What the window says of a member that is too long, as it always has.
inline constexpr const char* kTooLongForTensionZone =
    "You unbraced length is to large for bending in tension zone!";
inline constexpr const char* kTooLongForCompressionZone =
    "You unbraced length is to large for bending in compression zone!";
inline constexpr const char* kTooSlenderColumn = "You L/D ratio is to high for axial loading";

/// The size factor on bending stresses: the ninth root of 12 in. by the lesser side, with a
/// correction for the slenderness; 1 up to a depth of 12 in.
Float32 SizeFactor(const GlulamSection& section);

/// Lateral stability of a bending stress `f` with the modulus `e`, both in psi, by the square of
/// the slenderness of the beam: full up to 100, a parabola up to its meeting with Euler's curve,
/// that curve up to 2500. One length factor, 1.92, serves for all loads. A stress of 0 is a fault.
StableStress StableBending(const GlulamSection& section, Number f, Number e);

/// The greatest compression along the grain by Euler's curve with the modulus `e`, in psi. Its
/// slenderness is that of the depth, also where the width is less. Too long where the lesser side
/// goes into the length more than 50 times; 0 where that ratio is beyond 32 bits, a fault.
StableStress ColumnStress(const GlulamSection& section, Number e);

}  // namespace lignara
