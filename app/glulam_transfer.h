#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "app/stored_number.h"

namespace lignara {

/// The fourteen allowable values of a glued-laminated member, in the order of all their lists.
enum class GlulamValue {
  FbxTensionZone,      ///< bending about X, tension zone stressed in tension
  FbxCompressionZone,  ///< bending about X, compression zone stressed in tension
  FcxTensionFace,      ///< compression across the grain, tension face
  FcxCompressionFace,  ///< compression across the grain, compression face
  Fv,                  ///< horizontal shear
  Ex,                  ///< modulus of elasticity, bending about X
  Fby,                 ///< bending about Y
  Fcy,                 ///< compression across the grain, Y axis
  Fvy,                 ///< horizontal shear, Y axis
  FvyNoEdgeGlue,       ///< the same, several pieces without edge glue
  Ey,                  ///< modulus of elasticity, bending about Y
  Ft,                  ///< tension along the grain
  Fc,                  ///< compression along the grain
  Ea                   ///< modulus of elasticity, axial load
};
inline constexpr std::size_t kGlulamValues = 14;

/// What the glulam data base hands to the beams besides the chosen member: allowables that hold for
/// the conditions of use told by the codes. It lives as long as the program; all is 0 or empty
/// until the first transfer.
struct GlulamTransfer {
  Float32 UnbracedLength;                     ///< ft
  std::array<Float32, kGlulamValues> Values;  ///< psi, in the order of GlulamValue
  Int16 MoistureCode;                         ///< 1 dry, 2 wet
  Int16 DurationCode;  ///< 1 over 10 years, 2 two months, 3 wind or earthquake, 4 seven days, 5
                       ///< impact; 0 where none was ever chosen
  Int16 LoadCode;      ///< 1 single concentrated, 2 uniform, 3 third points; 0 as above
  std::string UseNote;

  const Float32& Value(GlulamValue value) const { return Values[static_cast<std::size_t>(value)]; }
  Float32& Value(GlulamValue value) { return Values[static_cast<std::size_t>(value)]; }
};

}  // namespace lignara
