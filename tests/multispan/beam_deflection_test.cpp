#include "multispan/beam_deflection.h"

#include <gtest/gtest.h>

#include <cmath>

#include "multispan/moment_distribution.h"
#include "tests/multispan/beams.h"

namespace lignara {
namespace {

constexpr EndSupport kFixed = EndSupport::Fixed;
constexpr EndSupport kPinned = EndSupport::Pinned;
constexpr EndSupport kNone = EndSupport::None;

constexpr double kStiffness = 1600000.0 * 100;  // lb in^2, of BeamOf

MultiSpanSolution SolutionOf(const BeamCase& beam, int integrations = 8000) {
  MultiSpanSolution s;
  s.beam = beam;
  s.moments = Distribute(beam);
  s.shear = FindShear(beam, s.moments);
  s.curve =
      IntegrateShear(s.shear, s.moments.finalMoment(1, kLeftEnd), beam.TotalLength(), integrations);
  return s;
}

/// w L^4 / E I in inches, of 100 lbs/ft on 10 ft.
const double kUniform = 100.0 / 12 * std::pow(120.0, 4) / kStiffness;

TEST(MultiSpanDeflection, OfASimpleBeam) {
  const MultiSpanSolution s = SolutionOf(BeamOf({10}, kPinned, kPinned, 100));
  EXPECT_NEAR(deflectionAt(s, 5), kUniform * 5 / 384, 1e-4 * kUniform * 5 / 384);
}

TEST(MultiSpanDeflection, OfASimpleBeamUnderAPointLoad) {
  BeamCase beam = BeamOf({10}, kPinned, kPinned);
  beam.Span(1).points = {{1000, 4}};
  // P b x (L^2 - b^2 - x^2) / 6 L E I left of the load.
  const double expected = 1000.0 * 72 * 30 * (14400.0 - 5184 - 900) / (6 * 120 * kStiffness);
  EXPECT_NEAR(deflectionAt(SolutionOf(beam), 2.5), expected, 1e-3 * expected);
}

TEST(MultiSpanDeflection, OfABeamFixedAtBothEnds) {
  const MultiSpanSolution s = SolutionOf(BeamOf({10}, kFixed, kFixed, 100));
  EXPECT_NEAR(deflectionAt(s, 5), kUniform / 384, 1e-3 * kUniform / 384);
}

TEST(MultiSpanDeflection, AtTheTipOfAnOverhangFromAFixedEnd) {
  // Span 1 is so stiff that the overhang is a cantilever.
  BeamCase beam = BeamOf({10, 10}, kFixed, kNone);
  beam.Span(1).i = 1e9;
  beam.Span(2).uniform = 100;
  EXPECT_NEAR(deflectionAt(SolutionOf(beam), 20), kUniform / 8, 1e-3 * kUniform / 8);
}

TEST(MultiSpanDeflection, AtTheLeftTipIsThatOfTheMirroredBeam) {
  const MultiSpanSolution right = SolutionOf(BeamOf({12, 8}, kPinned, kNone, 100));
  const MultiSpanSolution left = SolutionOf(BeamOf({8, 12}, kNone, kPinned, 100));
  EXPECT_NEAR(deflectionAt(left, 0.4), deflectionAt(right, 19.6), 2e-4);
}

TEST(MultiSpanDeflection, OfTwoEqualSpansHasItsPeakAtATwentyFourth) {
  // w L^4 / 185 E I at 0.4215 L of the outer end.
  const MultiSpanSolution s = SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100));
  EXPECT_NEAR(deflectionAt(s, 4.215), kUniform / 185, 3e-3 * kUniform / 185);
  EXPECT_NEAR(deflectionAt(s, 15.785), kUniform / 185, 3e-3 * kUniform / 185);
}

TEST(MultiSpanDeflection, AtASupportIsNone) {
  const MultiSpanSolution s = SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100));
  EXPECT_NEAR(deflectionAt(s, 10), 0, 1e-5);
}

TEST(MultiSpanDeflection, IsUpwardWhereTheNextSpanSags) {
  BeamCase beam = BeamOf({10, 10}, kPinned, kPinned);
  beam.Span(1).uniform = 100;
  EXPECT_GT(deflectionAt(SolutionOf(beam), 5), 0);
  EXPECT_LT(deflectionAt(SolutionOf(beam), 15), 0);
}

TEST(MultiSpanDeflection, InMetricUnitsTakesHundredthsAndATenthOfTheModulus) {
  const MultiSpanSolution s = SolutionOf(BeamOf({10}, kPinned, kPinned, 100));
  // C^3 goes from 12^3 to 100^3, E to a tenth.
  const double factor = 1e6 / 1728 * 10;
  EXPECT_NEAR(deflectionAt(s, 5, 1), deflectionAt(s, 5) * factor, 1e-6 * factor);
}

// Four stations over two spans of 2 ft: a station on the joint counts in both spans. Moments of the
// unit load at the middle of span 1 by the program's own curve; the sum by hand.
TEST(MultiSpanDeflection, CountsAStationOnAJointTwice) {
  BeamCase beam = BeamOf({2, 2}, kFixed, kFixed);
  beam.Span(1).points = {{1000, 1}};
  MultiSpanSolution s = SolutionOf(beam, 4);
  ASSERT_EQ(s.curve.stations.size(), 5u);
  const double unit = 1.0 / 1000;  // the unit load stands where the load does
  double sum = 0;
  for (const int station : {1, 2, 2, 3, 4}) sum += s.curve.At(station) * s.curve.At(station) * unit;
  EXPECT_NEAR(deflectionAt(s, 1), sum * 144 / kStiffness * 12, 1e-9);
}

TEST(MultiSpanDeflection, IsZeroWithoutStations) {
  EXPECT_EQ(deflectionAt(SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100), 0), 5), 0);
  EXPECT_EQ(deflectionAt(SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100), -3), 5), 0);
}

// The deflected shape.

TEST(MultiSpanShape, HasFiftyStationsAlongTheBeam) {
  const MultiSpanSolution s = SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100));
  const DeflectedShape shape = FindDeflectedShape(s);
  EXPECT_EQ(shape.deflection.upper(), 50);
  EXPECT_EQ(shape.PlaceOf(0), 0);
  EXPECT_NEAR(shape.PlaceOf(1), 0.4, 1e-12);
  EXPECT_NEAR(shape.PlaceOf(50), 20, 1e-12);
  EXPECT_EQ(shape.deflection[0].value(), 0);
  EXPECT_FLOAT_EQ(shape.deflection[10].value(), static_cast<float>(deflectionAt(s, 4)));
}

TEST(MultiSpanShape, FindsTheStationNearestToAPlace) {
  const DeflectedShape shape =
      FindDeflectedShape(SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100)));
  EXPECT_EQ(shape.StationAt(4.1), 10);
  EXPECT_EQ(shape.StationAt(4.3), 11);
  EXPECT_EQ(shape.StationAt(-3), 0);
  EXPECT_EQ(shape.StationAt(99), 50);
}

TEST(MultiSpanShape, LargestKeepsItsSignAndItsFirstPlace) {
  BeamCase beam = BeamOf({10, 10}, kPinned, kPinned);
  beam.Span(1).uniform = -100;
  const DeflectedShape shape = FindDeflectedShape(SolutionOf(beam));
  EXPECT_LT(shape.largest.value(), 0);
  EXPECT_LE(shape.largestStation, 13);
  EXPECT_EQ(shape.largest.value(), shape.deflection[shape.largestStation].value());
}

TEST(MultiSpanShape, RotationIsTheSlopeFromTheStationBefore) {
  const DeflectedShape shape =
      FindDeflectedShape(SolutionOf(BeamOf({10, 10}, kPinned, kPinned, 100)));
  const double step = 20.0 * 12 / 50;
  const double d1 = shape.deflection[1].value();
  const double d2 = shape.deflection[2].value();
  EXPECT_NEAR(shape.rotation[1].value(), std::atan(d1 / step), 1e-9);
  EXPECT_NEAR(shape.rotation[2].value(), std::atan((d2 - d1) / step), 1e-9);
  EXPECT_EQ(shape.rotation[0].value(), shape.rotation[1].value());
}

}  // namespace
}  // namespace lignara
