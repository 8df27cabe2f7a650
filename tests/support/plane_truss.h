#pragma once

#include <vector>

#include "tests/support/truss_fixture.h"

namespace lignara {

/// A plane truss told by joints and bars, as an independent check of the program: its joints, bars
/// and their lengths follow from the dimensions of the session alone, by each type's picture. The
/// left end is pinned, the right end rolls.
class PlaneTruss {
 public:
  struct Joint {
    double x, y;
    double load = 0;  ///< lbs, downward
  };

  struct Bar {
    Member member;
    int from, to;
    double force = 0;      ///< lbs, tension positive
    double stiffness = 1;  ///< area x modulus, lbs
  };

  /// The truss of the session, with the node loads and the member forces of the window's last run.
  explicit PlaneTruss(TestTruss& truss);

  /// The largest force, lbs, that is not balanced at any joint, with the window's reactions.
  double WorstUnbalance() const;

  /// Downward displacement of all joints, ft, by the direct stiffness method. Flexible length over
  /// real length of a bar may be set by dividing its stiffness.
  std::vector<double> Sinking() const;

  /// The joint of a top node: `index` as in PL and PR; the peak where `side` is 'T'.
  int TopJoint(char side, int index = 0) const;

  double Length(const Bar& bar) const;

  std::vector<Joint> joints;
  std::vector<Bar> bars;

 private:
  int JointAt(double x, double y);
  void AddBar(Family family, int index, double x1, double y1, double x2, double y2);
  /// The bar in the left half and its mirror image in the right one.
  void AddBoth(Family left, Family right, int index, double x1, double y1, double x2, double y2);

  void BuildPeaked(bool chordsMeetAtMidspan);
  void BuildVerticalWebs(bool diagonalsFall);
  void BuildFink();
  void BuildKingPost();
  void BuildScissors();
  void BuildFlat(bool diagonalsFall);
  void BuildWarren();
  void TakeLoads(TestTruss& truss);
  void TakeForces(TestTruss& truss);

  std::string type_;
  int n_;
  double panel_, length_, height_, inner_;
  double leftReaction_, rightReaction_;
};

}  // namespace lignara
