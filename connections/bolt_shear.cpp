#include "connections/bolt_shear.h"

#include <algorithm>
#include <iterator>

namespace lignara {
namespace {

/// As many decimals as tables of the trade are worked out with.
constexpr double kPi = 3.14159;

/// A reason to refuse a bolt in a thickness.
struct BoltLimit {
  bool (*applies)(double L, int k);
  const char* message;
};

// Positions of bolts: 0 is 1/2 in, 2 is 3/4 in, 3 is 7/8 in, 5 is 1 1/4 in, 6 is 1 1/2 in. The
// first limit that applies is told.
constexpr BoltLimit kBoltLimits[] = {
    {[](double L, int k) { return 4.5 <= L && L < 9.5 && k == 0; },
     "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 1/2 in."},
    {[](double L, int k) { return 9.5 <= L && L < 11.5 && k < 2; },
     "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 5/8 in"},
    {[](double L, int k) { return 11.5 <= L && L < 13.5 && k < 3; },
     "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 3/4 in"},
    {[](double L, int k) { return L == 13.5 && k <= 3; },
     "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 7/8 in"},
    {[](double L, int) { return L > 13.5; },
     "THIS PROGRAM IS LIMITED TO AN L VALUE LESS THAN 13.5 in"},
    {[](double L, int k) { return L < 4.5 && k >= 5; }, "USE A BOLT DIA. SMALLER THAN 1 1/4 in"},
    {[](double L, int k) { return L < 9.5 && k >= 6; }, "USE A BOLT DIA. SMALLER THAN 1 1/2 in"},
};

/// A range of thickness and where its rows are: a bolt's position is added to the row numbers.
struct Band {
  double below;  ///< in; the band starts where the one before ends
  int lower;
  int upper;
  /// The bolt that the next thickness no longer has: the next size up stands in for it.
  int endingBolt = -1;
};

constexpr Band kBands[] = {
    {2.0, 1, 6},      {2.5, 6, 11},      {3.0, 11, 16},     {3.5, 16, 21},
    {4.0, 21, 26},    {4.5, 26, 30, 0},  {5.5, 30, 35},     {7.5, 35, 40},
    {9.5, 40, 44, 1}, {11.5, 44, 48, 2}, {13.5, 48, 51, 3},
};
constexpr double kThickest = 13.5;
constexpr BoltRows kThickestRows = {51, 51};

Number Lesser(Number a, Number b) { return b < a ? b : a; }

/// The load in a thickness between those of two rows. Where the upper row is of another bolt, its
/// load counts in the ratio of the diameters.
Number Between(const BoltRow& lower, const BoltRow& upper, Number thickness, Number atLower,
               Number atUpper) {
  if (lower.Ltable == upper.Ltable) return atLower;
  const Number s = lower.Dtable / upper.Dtable;
  return (thickness - lower.Ltable) / (upper.Ltable - lower.Ltable) * (s * atUpper - atLower) +
         atLower;
}

GrainLoads TableLoads(const ShearJoint& joint, const BoltValueTable& table) {
  GrainLoads loads;
  const Number thickness = EffectiveThickness(joint);
  const BoltRows rows = RowsBetween(thickness, joint.BoltIndex);
  const BoltRow* lower = table.Row(rows.lower);
  const BoltRow* upper = table.Row(rows.upper);
  if (lower == nullptr || upper == nullptr) {
    ReportFault(Fault::IndexOutOfBounds);
    return loads;
  }
  const auto wood = static_cast<BoltWood>(joint.options.WoodType);
  for (Float32 GrainLoads::*load : {&GrainLoads::parallel, &GrainLoads::perpendicular}) {
    loads.*load =
        Between(*lower, *upper, thickness, lower->Loads(wood).*load, upper->Loads(wood).*load);
  }
  return loads;
}

}  // namespace

Number EffectiveThickness(const ShearJoint& joint) {
  if (joint.options.IsSingleShear()) return Lesser(2 * Number(joint.L1), 2 * Number(joint.L2));
  return Lesser(joint.L1, Lesser(2 * Number(joint.L2), 2 * Number(joint.L3)));
}

const char* ShearRefusal(const ShearJoint& joint) {
  const bool single = joint.options.IsSingleShear();
  if (joint.L2 > joint.L1 || (!single && joint.L3 > joint.L1)) {
    return "YOUR L2 AND/OR L3 VALUE MUST BE LESS THAN L1";
  }
  const double thickness = EffectiveThickness(joint).value();
  if (thickness < 1.5) {
    return "YOUR MINIMUM WOOD THICKNESS NEEDS TO BE AT LEAST 1 1/2 in FOR DOUBLE SHEAR AND 1 in "
           "FOR "
           "SINGLE SHEAR";
  }
  const auto limit =
      std::find_if(std::begin(kBoltLimits), std::end(kBoltLimits),
                   [&](const BoltLimit& l) { return l.applies(thickness, joint.BoltIndex); });
  return limit == std::end(kBoltLimits) ? nullptr : limit->message;
}

BoltRows RowsBetween(Number thickness, int boltIndex) {
  if (thickness == kThickest) {
    return {kThickestRows.lower + boltIndex, kThickestRows.upper + boltIndex};
  }
  for (const Band& band : kBands) {
    if (!(thickness < band.below)) continue;
    const int standIn = boltIndex == band.endingBolt ? 1 : 0;
    return {band.lower + boltIndex, band.upper + boltIndex + standIn};
  }
  return {};
}

GrainLoads ShearLoads(const ShearJoint& joint, const BoltValueTable& table) {
  GrainLoads loads = TableLoads(joint, table);
  for (const JointOptionGroup& group : JointOptionGroups()) {
    const JointChoice& choice = ChosenOf(group, joint.options);
    loads.parallel = loads.parallel * choice.parallel;
    loads.perpendicular = loads.perpendicular * choice.perpendicular;
  }
  return loads;
}

Number Radians(const Float32& degrees) { return degrees * (kPi / 180); }

Number LoadAtAngle(const GrainLoads& loads, const Float32& theta) {
  const Number P = loads.parallel;
  const Number Q = loads.perpendicular;
  return P * Q / (P * Square(Sin(theta)) + Q * Square(Cos(theta)));
}

}  // namespace lignara
