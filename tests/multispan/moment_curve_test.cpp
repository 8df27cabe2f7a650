#include "multispan/moment_curve.h"

#include <gtest/gtest.h>

#include "tests/multispan/beams.h"

namespace lignara {
namespace {

constexpr EndSupport kFixed = EndSupport::Fixed;
constexpr EndSupport kPinned = EndSupport::Pinned;
constexpr EndSupport kNone = EndSupport::None;

struct Solved {
  Solved(const BeamCase& solved, int integrations = 8000)
      : beam(solved),
        result(Distribute(beam)),
        curve(IntegrateShear(FindShear(beam, result), result.finalMoment(1, kLeftEnd),
                             beam.TotalLength(), integrations)) {}

  MaximumMoment Maximum() const { return FindMaximumMoment(beam, result, curve); }

  BeamCase beam;
  DistributionResult result;
  MomentCurve curve;
};

TEST(MomentCurve, IsTheParabolaOfASimpleBeam) {
  const Solved s(BeamOf({10}, kPinned, kPinned, 120));
  ASSERT_EQ(s.curve.stations.size(), 8001u);
  EXPECT_NEAR(s.curve.At(2000), 1125, 0.01);  // 600 x 2.5 - 60 x 2.5^2
  EXPECT_NEAR(s.curve.At(4000), 1500, 0.01);
  EXPECT_NEAR(s.curve.At(8000), 0, 0.01);
}

TEST(MomentCurve, StartsFromTheLeftEndMoment) {
  const Solved s(BeamOf({10}, kFixed, kFixed, 120));
  EXPECT_NEAR(s.curve.At(0), -1000, 0.01);
  EXPECT_NEAR(s.curve.At(4000), 500, 0.01);
  EXPECT_NEAR(s.curve.At(8000), -1000, 0.01);
}

TEST(MomentCurve, IsExactAtAFewStationsToo) {
  const Solved s(BeamOf({10}, kPinned, kPinned, 120), 4);
  ASSERT_EQ(s.curve.stations.size(), 5u);
  EXPECT_NEAR(s.curve.At(1), 1125, 0.01);
  EXPECT_NEAR(s.curve.At(2), 1500, 0.01);
}

// 10, 12 and 14 of 36 ft: 2222.2, 2666.7 and 3111.1 of 8000.
TEST(MomentCurve, LosesAStationWhereAShareIsNotWhole) {
  const Solved s(BeamOf({10, 12, 14}, kPinned, kPinned, 100));
  EXPECT_EQ(s.curve.stations.size(), 1u + 2222 + 2666 + 3111);
  EXPECT_NEAR(s.curve.At(2222), s.result.finalMoment(2, kLeftEnd), 0.01);
  EXPECT_EQ(s.curve.At(8000), 0);  // nothing stands there
}

TEST(MomentCurve, HasNoStationInASegmentWithoutAWholeShare) {
  const Solved s(BeamOf({10, 10, 10}, kFixed, kFixed, 120), 2);
  ASSERT_EQ(s.curve.stations.size(), 1u);
  EXPECT_NEAR(s.curve.At(0), -1000, 1);
}

TEST(MomentCurve, HasTheFirstMomentAloneAtNoIntegrations) {
  const Solved s(BeamOf({10, 10}, kFixed, kFixed, 120), 0);
  EXPECT_EQ(s.curve.stations.size(), 1u);
  EXPECT_TRUE(Solved(s.beam, -5).curve.stations.empty());
}

TEST(MomentCurve, EndsAtTwiceItsStations) {
  // Loads out of order turn back along the beam, so that the segments are longer than the beam.
  BeamCase beam = BeamOf({10}, kPinned, kPinned);
  beam.Span(1).points = {{1, 9}, {1, 1}, {1, 9}, {1, 1}, {1, 9}};
  EXPECT_EQ(Solved(beam, 100).curve.stations.size(), 201u);
}

TEST(MomentAt, TakesTheLastStationNotBehindThePlace) {
  const Solved s(BeamOf({10}, kPinned, kPinned, 120), 10);
  EXPECT_EQ(s.curve.MomentAt(2.99), s.curve.At(2));
  EXPECT_EQ(s.curve.MomentAt(3), s.curve.At(3));
  EXPECT_EQ(s.curve.MomentAt(-0.5), 0);
  EXPECT_EQ(s.curve.MomentAt(11), 0);
}

// The maximum.

TEST(MaximumMoment, OfASimpleBeamIsAtMidspan) {
  const MaximumMoment most = Solved(BeamOf({10}, kPinned, kPinned, 120)).Maximum();
  EXPECT_NEAR(most.moment, 1500, 0.01);
  EXPECT_EQ(most.location, 5);
}

// A fixed end of the first span is larger than all the rest: the span's length has been added once
// for it, since only the left end is strictly above the start's equal value on none.
TEST(MaximumMoment, StartsAtTheFirstEndMomentAtLocationZero) {
  BeamCase beam = BeamOf({10, 10}, kFixed, kPinned);
  beam.Span(1).points = {{1000, 1}};
  const MaximumMoment most = Solved(beam).Maximum();
  EXPECT_NEAR(most.moment, std::fabs(Solved(beam).result.finalMoment(1, kLeftEnd)), 1e-3);
  EXPECT_EQ(most.location, 0);
}

// One station: no segment has a whole share, so the end moments alone are looked through.
//   spans of 10, 12, 14 ft, overhang at the right, 100 lbs/ft: magnitudes 0, 1122.73, 1122.73,
//   9800, 9800, 0. Taken are the right end of span 1 (0 + 10) and the right end of span 2 (10 +
//   12).
TEST(MaximumMoment, OfTheEndsAddsTheLengthOfEachSpanThatSetsIt) {
  const MaximumMoment most = Solved(BeamOf({10, 12, 14}, kPinned, kNone, 100), 1).Maximum();
  EXPECT_NEAR(most.moment, 9800, 0.01);
  EXPECT_EQ(most.location, 22);
}

// The left span is unloaded, so both ends of the second set the maximum: 10 for none of the first,
// and its own 12 ft twice, though it ends at 22 ft.
TEST(MaximumMoment, AddsALengthTwiceWhereBothEndsSetIt) {
  BeamCase beam = BeamOf({10, 12, 14}, kNone, kNone);
  beam.Span(1).uniform = 10;   // 500 at the left joint
  beam.Span(3).uniform = 100;  // 9800 at the right joint
  Solved s(beam, 1);
  // Right end of span 1: 500 at 10; right end of span 2: 9800 at 22.
  EXPECT_EQ(s.Maximum().location, 22);
  s.result.finalMoment(1, kRightEnd) = 400;
  s.result.finalMoment(2, kLeftEnd) = -500;
  // Now right end of span 1 at 10, left end of span 2 at 22, right end of span 2 at 34.
  EXPECT_EQ(s.Maximum().location, 34);
}

TEST(MaximumMoment, OfEqualPeaksOfTheCurveIsTheLast) {
  Solved s(BeamOf({10, 10}, kPinned, kPinned, 120));
  s.curve.stations.assign(8001, 0);
  s.curve.stations[1000] = 5000;
  s.curve.stations[7000] = -5000;
  const MaximumMoment most = s.Maximum();
  EXPECT_EQ(most.moment, 5000);
  EXPECT_EQ(most.location, 17.5);
}

TEST(MaximumMoment, StationEqualToAnEndMomentReplacesIt) {
  Solved s(BeamOf({10, 10}, kPinned, kPinned, 120));
  s.curve.stations.assign(8001, 0);
  s.curve.stations[4004] = s.result.finalMoment(1, kRightEnd).value();
  EXPECT_EQ(s.Maximum().location, 10.01);
}

TEST(MaximumMoment, LeavesOutTheCurveAtNoIntegrations) {
  const MaximumMoment most = Solved(BeamOf({10, 10}, kPinned, kPinned, 120), 0).Maximum();
  EXPECT_NEAR(most.moment, 1500, 0.01);
  EXPECT_EQ(most.location, 10);
}

// Largest moments of each span.

TEST(LargestMoments, AreThoseOfTheStationsInTheSpan) {
  const Solved s(BeamOf({10, 10}, kPinned, kPinned, 120));
  const std::vector<float> largest = LargestMoments(s.beam, s.curve);
  ASSERT_EQ(largest.size(), 3u);
  EXPECT_NEAR(largest[1], 1500, 0.1);  // over the joint, by magnitude
  EXPECT_NEAR(largest[2], 1500, 0.1);
}

TEST(LargestMoments, CountAStationOnAJointForBothSpans) {
  Solved s(BeamOf({10, 10}, kPinned, kPinned, 120), 20);
  s.curve.stations.assign(21, 0);
  s.curve.stations[10] = -700;
  s.curve.stations[11] = 300;
  std::vector<float> largest = LargestMoments(s.beam, s.curve);
  EXPECT_EQ(largest[1], 700);
  EXPECT_EQ(largest[2], 700);
  s.curve.stations[10] = 100;
  largest = LargestMoments(s.beam, s.curve);
  EXPECT_EQ(largest[1], 100);
  EXPECT_EQ(largest[2], 300);
}

TEST(LargestMoments, LookAtTheLastStation) {
  Solved s(BeamOf({10, 15}, kPinned, kPinned, 120), 7);
  s.curve.stations.assign(8, 0);
  s.curve.stations[7] = 40;
  EXPECT_EQ(LargestMoments(s.beam, s.curve)[2], 40);
}

}  // namespace
}  // namespace lignara
