#pragma once

#include "app/stored_number.h"
#include "connections/bolt_value_file.h"
#include "connections/joint_options.h"

namespace lignara {

/// The bolts of the shear section, by rising diameter; `BoltIndex` is the position.
inline constexpr const char* kShearBolts[] = {"1/2", "5/8", "3/4", "7/8", "1", "1 1/4", "1 1/2"};

/// A bolted joint: thicknesses in inches, the main member's first.
struct ShearJoint {
  Float32 L1;
  Float32 L2;
  Float32 L3;         ///< 0 in single shear, which has no third member
  Float32 theta;      ///< between load and grain, radians
  int BoltIndex = 0;  ///< 0 to 6
  JointOptions options;
};

/// The thickness of the main member, in, that the bolt table is entered with.
Number EffectiveThickness(const ShearJoint& joint);

/// Why the joint is outside of the tables; null where it is inside.
const char* ShearRefusal(const ShearJoint& joint);

/// Row numbers of the bolt table between which the loads lie. 0 and 0 outside of the bands.
struct BoltRows {
  int lower = 0;
  int upper = 0;
};
BoltRows RowsBetween(Number thickness, int boltIndex);

/// Loads of the joint's bolt, lbs, with all its factors. A row that the table lacks is shown as a
/// fault of the look-up, and the loads are 0.
GrainLoads ShearLoads(const ShearJoint& joint, const BoltValueTable& table);

/// An angle as it is entered, in the unit of `ShearJoint::theta`. Pi has five decimals.
Number Radians(const Float32& degrees);

/// The load at an angle to the grain, lbs, by Hankinson's formula.
Number LoadAtAngle(const GrainLoads& loads, const Float32& theta);

}  // namespace lignara
