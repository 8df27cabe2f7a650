#include "statics/plane_truss.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace lignara {
namespace {

constexpr double kExact = 1e-9;

PinJoint Free(double x, double y, double down = 0) { return {x, y, 0, down}; }

PinJoint Pinned(double x, double y) {
  PinJoint joint{x, y};
  joint.heldX = joint.heldY = true;
  return joint;
}

PinJoint Rolling(double x, double y) {
  PinJoint joint{x, y};
  joint.heldY = true;
  return joint;
}

double LargestLoad(const PinTruss& truss) {
  double largest = 0;
  for (const PinJoint& joint : truss.joints) {
    largest = std::max({largest, std::abs(joint.loadRight), std::abs(joint.loadDown)});
  }
  return largest;
}

/// A triangle of 6 by 4 on a pin and a roller, loaded at its peak.
PinTruss Triangle(double down, double right = 0) {
  PinTruss truss{{Pinned(0, 0), Free(3, 4, down), Rolling(6, 0)},
                 {{0, 1, 1e4}, {1, 2, 1e4}, {0, 2, 1e4}}};
  truss.joints[1].loadRight = right;
  return truss;
}

TEST(PlaneTruss, RaftersAndTieOfATriangle) {
  const PinSolution solution = SolvePinTruss(Triangle(1000));
  // Rafters rise 4 on 5: 500 / 0.8 = 625 each; the tie takes 625 x 0.6 = 375.
  ASSERT_FALSE(solution.mechanism);
  EXPECT_NEAR(solution.forces[0], -625, kExact);
  EXPECT_NEAR(solution.forces[1], -625, kExact);
  EXPECT_NEAR(solution.forces[2], 375, kExact);
  EXPECT_NEAR(solution.reactions[0].up, 500, kExact);
  EXPECT_NEAR(solution.reactions[2].up, 500, kExact);
  EXPECT_EQ(solution.reactions[1].up, 0);
}

TEST(PlaneTruss, TheTieStretchesTheRollerAway) {
  const PinSolution solution = SolvePinTruss(Triangle(1000));
  // 375 x 6 / 10000 = 0.225; the peak sinks by the work of all bars over the load:
  // (2 x 625^2 x 5 + 375^2 x 6) / 10000 / 1000 = 0.475.
  EXPECT_NEAR(solution.moves[2].right, 0.225, kExact);
  EXPECT_EQ(solution.moves[2].up, 0);
  EXPECT_NEAR(solution.moves[1].up, -0.475, kExact);
  EXPECT_NEAR(solution.moves[1].right, 0.1125, kExact);
}

TEST(PlaneTruss, ALevelLoadGoesToThePin) {
  const PinSolution solution = SolvePinTruss(Triangle(0, 600));
  // Moment about the pin: 600 x 4 = R x 6.
  EXPECT_NEAR(solution.reactions[0].right, -600, kExact);
  EXPECT_NEAR(solution.reactions[0].up, -400, kExact);
  EXPECT_NEAR(solution.reactions[2].up, 400, kExact);
}

TEST(PlaneTruss, ThreeBarsShareALoadByTheirStiffness) {
  // The textbook's hanger: outer bars at an angle with cosine 0.8 to the middle one, all of one
  // section: the middle one takes P / (1 + 2 x 0.8^3) = P / 2.024, an outer one 0.8^2 times that.
  PinTruss truss{{Pinned(-3, 0), Pinned(0, 0), Pinned(3, 0), Free(0, -4, 2024)},
                 {{0, 3, 5e5}, {1, 3, 5e5}, {2, 3, 5e5}}};
  const PinSolution solution = SolvePinTruss(truss);
  EXPECT_NEAR(solution.forces[1], 1000, kExact);
  EXPECT_NEAR(solution.forces[0], 640, kExact);
  EXPECT_NEAR(solution.forces[2], 640, kExact);
  EXPECT_NEAR(solution.moves[3].up, -1000.0 * 4 / 5e5, 1e-15);
}

/// `panels` squares of side 6 between level chords, one diagonal each, 100 on each upper joint.
PinTruss LevelTruss(int panels) {
  PinTruss truss;
  for (int i = 0; i <= panels; ++i) truss.joints.push_back(Free(6 * i, 0));
  for (int i = 0; i <= panels; ++i) truss.joints.push_back(Free(6 * i, 6, 100));
  const auto top = [panels](int i) { return panels + 1 + i; };
  for (int i = 0; i <= panels; ++i) truss.bars.push_back({i, top(i), 1e6});
  for (int i = 0; i < panels; ++i) {
    truss.bars.push_back({i, i + 1, 1e6});
    truss.bars.push_back({top(i), top(i + 1), 2e6});
    truss.bars.push_back({top(i), i + 1, 1.5e6});
  }
  truss.joints[0] = Pinned(0, 0);
  truss.joints[static_cast<std::size_t>(panels)] = Rolling(6 * panels, 0);
  return truss;
}

TEST(PlaneTruss, ChordsOfALevelTrussByTheMethodOfSections) {
  const PinTruss truss = LevelTruss(8);
  const PinSolution solution = SolvePinTruss(truss);
  // Reaction 450. The fourth upper chord bar turns about lower joint 4 at 24: 450 x 24 - 100 x
  // (24 + 18 + 12 + 6) = 4800, over 6: 800. Bars follow the 9 posts by threes.
  EXPECT_NEAR(solution.reactions[0].up, 450, kExact);
  EXPECT_NEAR(solution.forces[9 + 3 * 3 + 1], -800, kExact);
  // The first diagonal carries the shear of 350 at 45 degrees.
  EXPECT_NEAR(solution.forces[9 + 2], 350 * std::sqrt(2.0), kExact);
}

double Length(const PinTruss& truss, const PinBar& bar) {
  const PinJoint& a = truss.joints[static_cast<std::size_t>(bar.from)];
  const PinJoint& b = truss.joints[static_cast<std::size_t>(bar.to)];
  return std::hypot(b.x - a.x, b.y - a.y);
}

/// By virtual work: the work of the forces of a unit load on the stretch of the bars.
double SinksByVirtualWork(const PinTruss& truss, const PinSolution& solution, std::size_t joint) {
  PinTruss unit = truss;
  for (PinJoint& each : unit.joints) each.loadRight = each.loadDown = 0;
  unit.joints[joint].loadDown = 1;
  const PinSolution virtualOne = SolvePinTruss(unit);
  double work = 0;
  for (std::size_t bar = 0; bar < truss.bars.size(); ++bar) {
    work += solution.forces[bar] * virtualOne.forces[bar] * Length(truss, truss.bars[bar]) /
            truss.bars[bar].stiffness;
  }
  return work;
}

TEST(PlaneTruss, JointsSinkAsVirtualWorkSays) {
  const PinTruss truss = LevelTruss(12);
  const PinSolution solution = SolvePinTruss(truss);
  for (std::size_t joint = 1; joint < truss.joints.size(); joint += 3) {
    const double expected = SinksByVirtualWork(truss, solution, joint);
    EXPECT_NEAR(-solution.moves[joint].up, expected, 1e-10 * std::abs(expected) + 1e-15) << joint;
  }
}

/// Triangles joined in a strip, each joint hung on two before it, at random places and with random
/// loads, and `redundant` bars more.
PinTruss RandomTruss(std::mt19937& random, int joints, int redundant) {
  std::uniform_real_distribution<double> along(0.6, 1.4), shift(-0.3, 0.3), load(-1000, 1000);
  std::uniform_real_distribution<double> stiffness(1e5, 1e7);
  PinTruss truss;
  for (int i = 0; i < joints; ++i) {
    truss.joints.push_back(
        {i + shift(random), (i % 2) * along(random) * 1.5, load(random), load(random)});
    for (int before = std::max(0, i - 2); before < i; ++before) {
      truss.bars.push_back({before, i, stiffness(random)});
    }
  }
  for (int i = 0; i < redundant; ++i) {
    const int from = std::uniform_int_distribution<int>(0, joints - 4)(random);
    truss.bars.push_back({from, from + 3, stiffness(random)});
  }
  truss.joints.front().heldX = truss.joints.front().heldY = true;
  truss.joints.back().heldY = true;
  std::shuffle(truss.bars.begin(), truss.bars.end(), random);
  return truss;
}

TEST(PlaneTruss, EveryJointOfRandomStructuresIsInBalance) {
  std::mt19937 random(20260101);
  for (int run = 0; run < 60; ++run) {
    const int joints = 4 + run;
    const PinTruss truss = RandomTruss(random, joints, run % 3 == 0 ? 0 : run % 7 + 1);
    const PinSolution solution = SolvePinTruss(truss);
    ASSERT_FALSE(solution.mechanism) << run;
    EXPECT_LT(WorstUnbalance(truss, solution), 1e-9 * LargestLoad(truss)) << run;
  }
}

TEST(PlaneTruss, JointsOfRandomStructuresMoveAsVirtualWorkSays) {
  std::mt19937 random(7);
  for (const int redundant : {0, 3, 9}) {
    const PinTruss truss = RandomTruss(random, 14, redundant);
    const PinSolution solution = SolvePinTruss(truss);
    for (const std::size_t joint : {3u, 6u, 9u}) {
      const double expected = SinksByVirtualWork(truss, solution, joint);
      EXPECT_NEAR(-solution.moves[joint].up, expected, 1e-9 * std::abs(expected) + 1e-12)
          << redundant << " " << joint;
    }
  }
}

TEST(PlaneTruss, LongTrussesKeepTheirBalance) {
  const PinTruss truss = LevelTruss(2000);
  const PinSolution solution = SolvePinTruss(truss);
  ASSERT_FALSE(solution.mechanism);
  EXPECT_LT(WorstUnbalance(truss, solution), 1e-9 * 100);
  // The upper chord at midspan: 100 x 2000 x 6 x 2000 / 8 / 6 less the loads over the supports is
  // w L^2 / 8 H = 5e7.
  const auto largest = std::min_element(solution.forces.begin(), solution.forces.end());
  EXPECT_NEAR(*largest, -5e7, 1e-2);
}

TEST(PlaneTruss, AnUprightTowerIsSolvedLikeALevelTruss) {
  PinTruss tower = LevelTruss(40);
  for (PinJoint& joint : tower.joints) {
    std::swap(joint.x, joint.y);
    std::swap(joint.heldX, joint.heldY);
    std::swap(joint.loadRight, joint.loadDown);
  }
  const PinSolution level = SolvePinTruss(LevelTruss(40));
  const PinSolution upright = SolvePinTruss(tower);
  ASSERT_FALSE(upright.mechanism);
  for (std::size_t bar = 0; bar < level.forces.size(); ++bar) {
    EXPECT_NEAR(std::abs(upright.forces[bar]), std::abs(level.forces[bar]), 1e-6);
  }
}

/// A square on a pin and a roller.
PinTruss Square(bool braced) {
  PinTruss truss{{Pinned(0, 0), Rolling(4, 0), Free(4, 4), Free(0, 4)},
                 {{0, 1}, {1, 2}, {2, 3}, {3, 0}}};
  if (braced) truss.bars.push_back({0, 2});
  return truss;
}

TEST(PlaneTruss, ASquareThatLeansIsAMechanism) {
  PinTruss truss = Square(false);
  truss.joints[3].loadRight = 1;
  const PinSolution solution = SolvePinTruss(truss);
  EXPECT_TRUE(solution.mechanism);
  EXPECT_TRUE(solution.forces.empty());
  truss = Square(true);
  truss.joints[3].loadRight = 1;
  EXPECT_FALSE(SolvePinTruss(truss).mechanism);
}

TEST(PlaneTruss, AMechanismThatNoLoadMovesIsInBalance) {
  PinTruss truss = Square(false);
  truss.joints[2].loadDown = truss.joints[3].loadDown = 50;
  const PinSolution solution = SolvePinTruss(truss);
  ASSERT_FALSE(solution.mechanism);
  EXPECT_NEAR(solution.forces[1], -50, kExact);
  EXPECT_NEAR(solution.forces[3], -50, kExact);
  EXPECT_NEAR(solution.forces[2], 0, kExact);
}

TEST(PlaneTruss, AJointInAStraightBarCarriesNoLoadAcrossIt) {
  PinTruss truss = Triangle(1000);
  truss.joints.push_back(Free(3, 0));
  truss.bars[2] = {0, 3, 1e4};
  truss.bars.push_back({3, 2, 1e4});
  const PinSolution solution = SolvePinTruss(truss);
  ASSERT_FALSE(solution.mechanism);
  EXPECT_NEAR(solution.forces[2], 375, kExact);
  EXPECT_NEAR(solution.forces[3], 375, kExact);
  truss.joints[3].loadDown = 1;
  EXPECT_TRUE(SolvePinTruss(truss).mechanism);
}

TEST(PlaneTruss, ABarWithoutLengthBearsNothing) {
  PinTruss truss = Triangle(1000);
  truss.bars.push_back({1, 1, 1e4});
  const PinSolution solution = SolvePinTruss(truss);
  EXPECT_EQ(solution.forces[3], 0);
  EXPECT_NEAR(solution.forces[2], 375, kExact);
}

TEST(PlaneTruss, ALooseLoadedJointIsAMechanism) {
  PinTruss truss = Triangle(1000);
  truss.joints.push_back(Free(10, 10));
  EXPECT_FALSE(SolvePinTruss(truss).mechanism);
  truss.joints.back().loadDown = 5;
  EXPECT_TRUE(SolvePinTruss(truss).mechanism);
}

TEST(PlaneTruss, WhatIsNoNumberIsAMechanism) {
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EXPECT_TRUE(SolvePinTruss(Triangle(bad)).mechanism);
    PinTruss truss = Triangle(1);
    truss.joints[1].y = bad;
    EXPECT_TRUE(SolvePinTruss(truss).mechanism);
  }
}

TEST(PlaneTruss, WithoutLoadsNothingBearsOrMoves) {
  const PinSolution solution = SolvePinTruss(Triangle(0));
  for (const double force : solution.forces) EXPECT_EQ(force, 0);
  EXPECT_EQ(solution.moves[1].up, 0);
}

TEST(PlaneTruss, NoJointsHaveNoSolution) {
  const PinSolution solution = SolvePinTruss({});
  EXPECT_FALSE(solution.mechanism);
  EXPECT_TRUE(solution.forces.empty());
}

}  // namespace
}  // namespace lignara
