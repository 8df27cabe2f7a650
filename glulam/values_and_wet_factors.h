#pragma once

#include <array>

#include "app/glulam_transfer.h"

namespace lignara {

/// All in which one allowable value differs from the others.
struct GlulamColumn {
  const char* caption;  ///< in the window
  double wetFactor;
  bool takesAllDurations;   ///< false: only a load of more than ten years acts on it
  const char* reportLabel;  ///< in the report of the data base
  const char* beamLabel;    ///< in the stress check of a single-span beam
  const char* spanLabel;    ///< in the stress check of a multi-span beam
};

/// The fourteen values in the order of GlulamValue. Wet factors are those of the NDS Supplement for
/// glued-laminated timber at a moisture content of 16% and above.
///
/// Durations act on Ea and on both Fcx, but not on Ex, Ey and Fcy: so the users know these tables.
inline constexpr std::array<GlulamColumn, kGlulamValues> kGlulamColumns = {{
    {
        .caption = "Fbx, Ten. Zone in tension",
        .wetFactor = 0.8,
        .takesAllDurations = true,
        .reportLabel = "Allowable bending stress in tension zone = ",
        .beamLabel = "Bending stress, tension zone (psi) = ",
        .spanLabel = "Allowable Bending tension zone (psi) = ",
    },
    {
        .caption = "Fbx, Comp. Zone in tension",
        .wetFactor = 0.8,
        .takesAllDurations = true,
        .reportLabel = "Allowable bending stress in compression zone = ",
        .beamLabel = "Bending stress, compression zone (psi) = ",
        .spanLabel = "Allowable Bending compression zone (psi) = ",
    },
    {
        .caption = "Fcx, Comp. perp. to grain, Tension face",
        .wetFactor = 0.53,
        .takesAllDurations = true,
        .reportLabel = "Compression stress perp. to grain, tension face = ",
        .beamLabel = "Compression perp. to grain, tension face (psi) = ",
        .spanLabel = "Compression perp. to grain,tension face (psi) = ",
    },
    {
        .caption = "Fcx, Comp. perp. to grain, Comp. face",
        .wetFactor = 0.53,
        .takesAllDurations = true,
        .reportLabel = "Compression stress perp. to grain, compression face = ",
        .beamLabel = "Compression perp. to grain, compression face (psi) = ",
        .spanLabel = "Compression perp. to grain,compression face (psi) = ",
    },
    {
        .caption = "Fv, Horizontal Shear",
        .wetFactor = 0.875,
        .takesAllDurations = true,
        .reportLabel = "Horizontal Shear stress = ",
        .beamLabel = "Horizontal Shear (psi) = ",
        .spanLabel = "Horizontal Shear (psi) = ",
    },
    {
        .caption = "Ex, Mod. of Elasticity, Bending about X",
        .wetFactor = 0.833,
        .takesAllDurations = false,
        .reportLabel = "Modulus of Elasticity to be used for bending about strong axis = ",
        .beamLabel = "Mod. of elasticity for bending about X (psi) = ",
        .spanLabel = "Mod. of elasticity, bending about X (psi) = ",
    },
    {
        .caption = "Fby, Bending about Y-Y Axis",
        .wetFactor = 0.8,
        .takesAllDurations = true,
        .reportLabel = "Allowable bending stress about the weak axis = ",
        .beamLabel = "Bending stress about Y (psi) = ",
        .spanLabel = "Allowable Bending about Y axis (psi) = ",
    },
    {
        .caption = "Fcy, Comp. perp. to grain Y-Y Axis",
        .wetFactor = 0.53,
        .takesAllDurations = false,
        .reportLabel = "Allowable compression perp. to grain in the weak axis = ",
        .beamLabel = "Compression perp. to grain Y axis (psi) = ",
        .spanLabel = "Compression perp. to grain, Y axis (psi) = ",
    },
    {
        .caption = "Fvy, Horiz. Shear Y-Y Axis",
        .wetFactor = 0.875,
        .takesAllDurations = true,
        .reportLabel = "Horizontal Shear stress in the weak axis = ",
        .beamLabel = "Horiz. shear Y axis (psi) = ",
        .spanLabel = "Horizontal Shear, Y axis (psi) = ",
    },
    {
        .caption = "Fvy, Horiz. Shear, Mult. pc. no edg. glue",
        .wetFactor = 0.875,
        .takesAllDurations = true,
        .reportLabel = "Horizontal shear stress, when there is no edge glue = ",
        .beamLabel = "Horiz. shear, no edge glue (psi) = ",
        .spanLabel = "Horizontal Shear, no edge glue (psi) = ",
    },
    {
        .caption = "Ey, Mod. of Elasticity, Bending about Y",
        .wetFactor = 0.833,
        .takesAllDurations = false,
        .reportLabel = "Modulus of Elasticity to be used for bending about weak axis = ",
        .beamLabel = "Mod. of elasticity for bending about Y (psi) = ",
        .spanLabel = "Mod. of elasticity, bending about Y (psi) = ",
    },
    {
        .caption = "Ft, Tension Parallel to grain",
        .wetFactor = 0.8,
        .takesAllDurations = true,
        .reportLabel = "Allowable tension stress, parallel to grain = ",
        .beamLabel = "Axial Tension parallel to grain (psi) = ",
        .spanLabel = "Allowable tension parallel to grain (psi) = ",
    },
    {
        .caption = "Fc, Compression parallel to grain",
        .wetFactor = 0.73,
        .takesAllDurations = true,
        .reportLabel = "Allowable compression stress, parallel to grain = ",
        .beamLabel = "Axial Compression parallel to grain (psi) = ",
        .spanLabel = "Allowable compression parallel to grain (psi) = ",
    },
    {
        .caption = "Ea, Mod. of Elasticity, Axial Load",
        .wetFactor = 0.833,
        .takesAllDurations = true,
        .reportLabel = "Modulus of Elasticity to be used with axial loads = ",
        .beamLabel = "Mod. of elasticity for axial loading (psi) = ",
        .spanLabel = "Mod. of elasticity, axial loading (psi) = ",
    },
}};

}  // namespace lignara
