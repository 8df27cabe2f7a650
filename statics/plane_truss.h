#pragma once

#include <vector>

namespace lignara {

/// A joint of a plane truss. Lengths have one unit throughout, x to the right and y up; loads are
/// forces, to the right and downward.
struct PinJoint {
  double x = 0, y = 0;
  double loadRight = 0, loadDown = 0;
  bool heldX = false, heldY = false;  ///< pinned: both; on a roller: y alone
};

/// A straight bar between two joints, told by their places in the list. A bar without length bears
/// nothing.
struct PinBar {
  int from = 0, to = 0;
  double stiffness = 1;  ///< area x modulus, a force; above 0
};

/// A plane truss of bars that are hinged at frictionless joints and loaded at joints only.
struct PinTruss {
  std::vector<PinJoint> joints;
  std::vector<PinBar> bars;
};

struct PinVector {
  double right = 0, up = 0;
};

/// What statics says of a truss.
struct PinSolution {
  /// No forces in the bars balance the loads; all lists are empty then.
  bool mechanism = false;
  std::vector<double> forces;        ///< of the bars, tension positive
  std::vector<PinVector> moves;      ///< of the joints, in the unit of length, for small strains
  std::vector<PinVector> reactions;  ///< of the supports on the truss; 0 at joints that are free
};

/// Solves a truss exactly, redundant bars included: balance at every joint and the stretch of every
/// bar as one set of equations. A joint that could move without stretching a bar, but that no load
/// moves, stays where it is. Time grows with the bars where the truss is long and slender.
///
/// Numbers that are not finite make a mechanism.
PinSolution SolvePinTruss(const PinTruss& truss);

/// The largest force, in either direction, that is not balanced at a joint.
double WorstUnbalance(const PinTruss& truss, const PinSolution& solution);

}  // namespace lignara
