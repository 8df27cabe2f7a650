#include "multispan/moment_distribution.h"

#include <gtest/gtest.h>

#include "app/number_pattern.h"
#include "tests/multispan/beams.h"

namespace lignara {
namespace {

constexpr EndSupport kFixed = EndSupport::Fixed;
constexpr EndSupport kPinned = EndSupport::Pinned;
constexpr EndSupport kNone = EndSupport::None;

constexpr double kExact = 1e-3;  // what 32 bits leave of some thousand ft-lbs

std::vector<double> Fem(const BeamCase& beam) {
  const DistributionResult r = Distribute(beam);
  std::vector<double> fem;
  for (int j = 1; j <= beam.count; ++j) {
    fem.push_back(r.fem(j, kLeftEnd));
    fem.push_back(r.fem(j, kRightEnd));
  }
  return fem;
}

// Fixed-end moments.

TEST(FixedEndMoments, OfAUniformLoadAreATwelfth) {
  BeamCase beam = BeamOf({10, 20}, kFixed, kFixed);
  beam.Span(1).uniform = 120;
  beam.Span(2).uniform = -30;
  // 120 x 100 / 12 and -30 x 400 / 12.
  ExpectNear(Fem(beam), {-1000, 1000, 1000, -1000}, kExact);
}

TEST(FixedEndMoments, OfPointLoadsAddUp) {
  BeamCase beam = BeamOf({10, 10}, kFixed, kFixed);
  beam.Span(1).points = {{1000, 2}, {500, 5}};
  // 1000: 2 x 64 x 10 = 1280 and 8 x 4 x 10 = 320; 500: 5 x 25 x 5 = 625 on both sides.
  ExpectNear(Fem(beam), {-1905, 945, 0, 0}, kExact);
}

TEST(FixedEndMoments, OfUniformAndPointLoadsAddUp) {
  BeamCase beam = BeamOf({10, 10}, kFixed, kFixed);
  beam.Span(2).uniform = 12;
  beam.Span(2).points = {{1000, 5}};
  ExpectNear(Fem(beam), {0, 0, -1350, 1350}, kExact);  // 100 + 1250
}

TEST(FixedEndMoments, LeaveOutAllPointLoadsWhereTheFirstIsFree) {
  BeamCase beam = BeamOf({10, 10}, kFixed, kFixed);
  beam.Span(1).points = {{0, 2}, {500, 5}};
  ExpectNear(Fem(beam), {0, 0, 0, 0}, 0);
}

TEST(FixedEndMoments, OfALeftOverhangAreThoseOfACantilever) {
  BeamCase beam = BeamOf({10, 10}, kNone, kPinned);
  beam.Span(1).uniform = 30;
  beam.Span(1).points = {{100, 0}, {200, 4}};
  // 30 x 10 x 5 + 100 x 10 + 200 x 6 at the joint.
  ExpectNear(Fem(beam), {0, 3700, 0, 0}, kExact);
}

TEST(FixedEndMoments, OfARightOverhangAreThoseOfACantilever) {
  BeamCase beam = BeamOf({10, 10}, kPinned, kNone);
  beam.Span(2).uniform = 30;
  beam.Span(2).points = {{200, 4}, {100, 10}};
  // 30 x 10 x 5 + 200 x 4 + 100 x 10 at the joint.
  ExpectNear(Fem(beam), {0, 0, -3300, 0}, kExact);
}

TEST(FixedEndMoments, OfAnOverhangLeaveOutPointLoadsBehindAFreeOne) {
  BeamCase beam = BeamOf({10, 10, 10}, kNone, kNone);
  beam.Span(1).points = {{0, 0}, {200, 4}};
  beam.Span(3).points = {{0, 0}, {200, 4}};
  ExpectNear(Fem(beam), {0, 0, 0, 0, 0, 0}, 0);
}

// Factors.

TEST(DistributionFactors, ShareByStiffness) {
  BeamCase beam = BeamOf({10, 20, 10}, kPinned, kPinned);
  beam.Span(3).e = 800000;
  beam.Span(3).i = 300;
  const DistributionResult r = Distribute(beam);
  // In units of 1600000 x 100 / 10: 1, 0.5, 1.5. A pinned end is no softer.
  EXPECT_NEAR(r.factor(1, 1), 2.0 / 3, 1e-6);
  EXPECT_NEAR(r.factor(1, 2), 1.0 / 3, 1e-6);
  EXPECT_NEAR(r.factor(2, 1), 0.25, 1e-6);
  EXPECT_NEAR(r.factor(2, 2), 0.75, 1e-6);
}

TEST(DistributionFactors, OfAnOverhangAreFormedAllTheSame) {
  const DistributionResult r = Distribute(BeamOf({10, 30}, kPinned, kNone));
  EXPECT_NEAR(r.factor(1, 1), 0.75, 1e-6);
  EXPECT_NEAR(r.factor(1, 2), 0.25, 1e-6);
}

// The distribution.

TEST(MomentDistribution, OneFixedSpanKeepsItsFixedEndMoments) {
  BeamCase beam = BeamOf({10}, kFixed, kFixed, 120);
  const DistributionResult r = Distribute(beam);
  ExpectNear(EndMoments(r, 1), {-1000, 1000}, kExact);
  EXPECT_EQ(r.balance(1, kLeftEnd), 0);
  EXPECT_EQ(r.balance(1, kRightEnd), 0);
  ExpectNear(Reactions(r, 1), {600, 600}, kExact);
}

TEST(MomentDistribution, OnePinnedSpanIsASimpleBeam) {
  const DistributionResult r = Distribute(BeamOf({10}, kPinned, kPinned, 120));
  ExpectNear(EndMoments(r, 1), {0, 0}, kExact);
}

TEST(MomentDistribution, TwoEqualPinnedSpansMeetInAnEighth) {
  const DistributionResult r = Distribute(BeamOf({10, 10}, kPinned, kPinned, 120));
  ExpectNear(EndMoments(r, 2), {0, 1500, -1500, 0}, kExact);
  ExpectNear(Reactions(r, 2), {450, 1500, 450}, kExact);
}

// Fixed and pinned, two spans, 120 lbs/ft on the first of 10 ft each: four cycles by hand.
//   fem              -1000   1000 |     0      0
//   first balancing      0   -500 |  -500      0
//   1 carry           -250      0 |     0   -250    balance 0 0 | 0 250
//   2 carry              0      0 |   125      0    balance 0 -62.5 | -62.5 0
//   3 carry         -31.25      0 |     0 -31.25    balance 0 0 | 0 31.25
//   4 carry              0      0 | 15.625     0    balance 0 -7.8125 | -7.8125 0
TEST(MomentDistribution, EndsAfterAsManyCyclesAsTheSquareOfTheSpans) {
  BeamCase beam = BeamOf({10, 10}, kFixed, kPinned);
  beam.Span(1).uniform = 120;
  ExpectNear(EndMoments(Distribute(beam), 2), {-1281.25, 429.6875, -429.6875, 0}, kExact);
  // With cycles enough it would be 3/7 of 1000 in the middle.
}

struct SpanMoments {
  const char* left;
  const char* right;
};

// The right overhang of 14 ft bears 100 x 14 x 7 = 9800 alone; it goes whole into the span before,
// half of it to the joint behind, which the two spans share.
TEST(MomentDistribution, JointBesideARightOverhangShedsIntoTheInnerSpan) {
  const DistributionResult r = Distribute(BeamOf({10, 12, 14}, kPinned, kNone, 100));
  const SpanMoments expected[] = {{"0.", "-1122.73"}, {"1122.73", "9800."}, {"-9800.", "0."}};
  for (int j = 1; j <= 3; ++j) {
    EXPECT_EQ(FormatNumber(r.finalMoment(j, kLeftEnd).value(), "##0.##"), expected[j - 1].left);
    EXPECT_EQ(FormatNumber(r.finalMoment(j, kRightEnd).value(), "##0.##"), expected[j - 1].right);
  }
  const char* reactions[] = {"612.27", "77.5", "2910.23", "0."};
  for (int s = 1; s <= 4; ++s) {
    EXPECT_EQ(FormatNumber(r.reaction[s].value(), "##0.##"), reactions[s - 1]);
  }
}

TEST(MomentDistribution, IsMirroredWhereTheBeamIs) {
  const DistributionResult r = Distribute(BeamOf({14, 12, 10}, kNone, kPinned, 100));
  ExpectNear(EndMoments(r, 3), {0, 9800, -9800, -1122.727, 1122.727, 0}, 0.01);
  ExpectNear(Reactions(r, 3), {0, 2910.227, 77.5, 612.273}, 0.01);
}

TEST(MomentDistribution, NothingCrossesIntoAnOverhang) {
  BeamCase beam = BeamOf({6, 10, 10, 5}, kNone, kNone);
  beam.Span(2).uniform = 120;
  const std::vector<double> moments = EndMoments(Distribute(beam), 4);
  for (const std::size_t outer : {0u, 1u, 6u, 7u}) EXPECT_EQ(moments[outer], 0) << outer;
  ExpectNear({moments[2], moments[5]}, {0, 0}, kExact);
  ExpectNear({moments[3], moments[4]}, {750, -750}, kExact);
}

TEST(MomentDistribution, TwoOverhangsOnOneSupportDoNotMeet) {
  // A mechanism: each side sheds into the other, and what comes out holds no balance.
  const DistributionResult r = Distribute(BeamOf({10, 8}, kNone, kNone, 100));
  for (const double moment : EndMoments(r, 2)) EXPECT_TRUE(std::isfinite(moment));
}

TEST(MomentDistribution, HoldsAHundredSpans) {
  const BeamCase beam = BeamOf(std::vector<double>(100, 10.0), kPinned, kPinned, 120);
  const DistributionResult r = Distribute(beam);
  // Far from the ends every span is as good as fixed.
  EXPECT_NEAR(r.finalMoment(50, kLeftEnd), -1000, 0.01);
  EXPECT_NEAR(r.reaction[50], 1200, 0.01);
}

// Faults.

TEST(SolverSteps, OverflowEndsTheStepSilently) {
  BeamCase beam = BeamOf({10, 1e18}, kPinned, kPinned, 1e30);
  // The second span's moment does not fit 32 bits: it and all that would follow stay as they were.
  const DistributionResult r = Distribute(beam);
  EXPECT_NEAR(r.fem(1, kRightEnd) / (1e30 * 100 / 12), 1, 1e-6);
  EXPECT_EQ(r.fem(2, kLeftEnd), 0);
  EXPECT_GT(r.factor(1, 1), 0.99);  // the next step went on
}

TEST(SolverSteps, ZeroLengthEndsTheStepSilently) {
  const DistributionResult r = Distribute(BeamOf({10, 0, 10}, kPinned, kPinned, 100));
  EXPECT_EQ(r.factor(1, 1), 0);
  EXPECT_NEAR(r.fem(1, kRightEnd), 100 * 100 / 12.0, kExact);
  EXPECT_EQ(r.reaction[1], 0);
}

}  // namespace
}  // namespace lignara
