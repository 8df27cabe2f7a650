#include "multispan/shear_curve.h"

#include <gtest/gtest.h>

#include "app/number_pattern.h"
#include "tests/multispan/beams.h"

namespace lignara {
namespace {

constexpr EndSupport kFixed = EndSupport::Fixed;
constexpr EndSupport kPinned = EndSupport::Pinned;
constexpr EndSupport kNone = EndSupport::None;

ShearDiagram DiagramOf(const BeamCase& beam) { return FindShear(beam, Distribute(beam)); }

std::vector<double> Places(const ShearDiagram& diagram) {
  std::vector<double> places;
  for (const ShearVertex& v : diagram.vertices) places.push_back(v.x);
  return places;
}

std::vector<double> Shears(const ShearDiagram& diagram) {
  std::vector<double> shears;
  for (const ShearVertex& v : diagram.vertices) shears.push_back(v.shear);
  return shears;
}

TEST(ShearVertices, OfUniformLoadsStandInPairsAtTheSupports) {
  const ShearDiagram d = DiagramOf(BeamOf({10, 10}, kPinned, kPinned, 120));
  ExpectNear(Places(d), {0, 0, 10, 10, 20, 20}, 0);
  ExpectNear(Shears(d), {0, 450, -750, 750, -450, 0}, 1e-3);
}

TEST(ShearVertices, OfPointLoadsStandInPairsAtEachLoad) {
  BeamCase beam = BeamOf({10, 10}, kFixed, kFixed);
  beam.Span(1).points = {{1000, 4}, {1000, 6}};
  // Fixed-end moments 1440 + 960 = 2400 on both sides. The joint carries 1200 on into the right
  // span and sends 600 back; what a fixed end gets, it keeps: final -3000 1200 | -1200 -600.
  const ShearDiagram d = DiagramOf(beam);
  ExpectNear(Places(d), {0, 0, 4, 4, 6, 6, 10, 10, 20, 20}, 0);
  ExpectNear(Shears(d), {0, 1180, 1180, 180, 180, -820, -820, 180, 180, 0}, 1e-3);
}

TEST(ShearVertices, FallBetweenPointLoadsUnderAUniformLoad) {
  BeamCase beam = BeamOf({10}, kPinned, kPinned, 100);
  beam.Span(1).points = {{1000, 4}, {500, 5}};
  // R = 500 + 600 + 250 on the left, 500 + 400 + 250 on the right.
  const ShearDiagram d = DiagramOf(beam);
  ExpectNear(Places(d), {0, 0, 4, 4, 5, 5, 10, 10}, 0);
  ExpectNear(Shears(d), {0, 1350, 950, -50, -150, -650, -1150, 0}, 1e-3);
}

// A first load put to 0 keeps its place: the uniform load is only counted up to there.
TEST(ShearVertices, FallOnlyToTheFirstEntrysPlaceWhereItIsFree) {
  BeamCase beam = BeamOf({10}, kPinned, kPinned, 100);
  beam.Span(1).points = {{0, 4}};
  const ShearDiagram d = DiagramOf(beam);
  ExpectNear(Places(d), {0, 0, 10, 10}, 0);
  ExpectNear(Shears(d), {0, 500, 100, 600}, 1e-3);
}

// A load at the very tip of a left overhang: the uniform load is counted twice.
TEST(ShearVertices, CountTheUniformLoadTwiceBehindALoadAtTheLeftTip) {
  BeamCase beam = BeamOf({10, 10}, kNone, kPinned);
  beam.Span(1).uniform = 10;
  beam.Span(1).points = {{50, 0}};
  const ShearDiagram d = DiagramOf(beam);
  ExpectNear(Places(d), {0, 0, 0, 0, 10, 10, 20, 20}, 0);
  ExpectNear({d.vertices[1].shear, d.vertices[2].shear, d.vertices[3].shear, d.vertices[4].shear},
             {0, -100, -150, -250}, 1e-3);
}

TEST(ShearVertices, HoldAnyNumberOfSpansAndLoads) {
  BeamCase beam = BeamOf(std::vector<double>(51, 10.0), kPinned, kPinned, 120);
  for (int j = 1; j <= 51; ++j) beam.Span(j).points = {{100, 2}, {100, 5}, {100, 8}};
  const ShearDiagram d = DiagramOf(beam);
  EXPECT_EQ(d.vertices.size(), 2u + 51 * 8);
  EXPECT_NEAR(d.vertices.back().shear, 0, 0.01);
}

// 64 bits hold 1e308 lbs/ft but not the 1e309 lbs of the second span.
TEST(ShearVertices, EndWhereAShearIsTooLargeAndKeepWhatStandsBefore) {
  BeamCase beam = BeamOf({10, 10, 10}, kPinned, kPinned, 100);
  beam.Span(2).uniform = 1e308;
  const ShearDiagram d = DiagramOf(beam);
  ExpectNear(Places(d), {0, 0, 10, 10}, 0);
  ExpectNear({d.vertices[2].shear - d.vertices[1].shear}, {-1000}, 1e-3);
  ASSERT_EQ(d.spans.size(), 2u);
  EXPECT_EQ(LargestShears(d).size(), 2u);
  EXPECT_EQ(d.ShearAt(25), 0);
}

// 1e308 and -1e308 stand beside each other: the line between them is no number.
TEST(ShearAt, IsZeroWhereTheLineIsTooSteepForANumber) {
  ShearDiagram d;
  d.vertices = {{0, 0}, {0, 1e308}, {10, -1e308}, {10, 0}};
  EXPECT_EQ(d.ShearAt(5), 0);
}

// Largest shears of each span.

// Three spans of 10 ft under 300, 20 and 150 lbs/ft.
TEST(LargestShears, AreTheSpansOwn) {
  BeamCase beam = BeamOf({10, 10, 10}, kPinned, kPinned);
  beam.Span(1).uniform = 300;
  beam.Span(2).uniform = 20;
  beam.Span(3).uniform = 150;
  const std::vector<float> largest = LargestShears(DiagramOf(beam));
  // Three moments: 4 M2 + M3 = -80000 and M2 + 4 M3 = -42500, over 10: M2 = -1850, M3 = -600. The
  // first span has 1500 + 185 at its right end, the second 100 + 125, the third 750 + 60.
  const char* expected[] = {"", "1685", "225", "810"};
  for (std::size_t j = 1; j <= 3; ++j) EXPECT_EQ(FormatNumber(largest[j], "0"), expected[j]);
}

TEST(LargestShears, LookAtPointLoadsToo) {
  BeamCase beam = BeamOf({10}, kPinned, kPinned);
  beam.Span(1).points = {{1000, 8}};
  EXPECT_NEAR(LargestShears(DiagramOf(beam))[1], 800, 1e-3);
}

// The shear at a place.

TEST(ShearAt, IsReadOffTheLine) {
  const ShearDiagram d = DiagramOf(BeamOf({10, 10}, kPinned, kPinned, 120));
  EXPECT_NEAR(d.ShearAt(0), 450, 1e-3);
  EXPECT_NEAR(d.ShearAt(2.5), 150, 1e-3);
  EXPECT_NEAR(d.ShearAt(17.5), -150, 1e-3);
  EXPECT_NEAR(d.ShearAt(20), -450, 1e-3);
}

TEST(ShearAt, OfAJointIsThatOfTheRightSide) {
  const ShearDiagram d = DiagramOf(BeamOf({10, 10}, kPinned, kPinned, 120));
  EXPECT_NEAR(d.ShearAt(10), 750, 1e-3);
}

TEST(ShearAt, IsZeroOutsideOfTheBeam) {
  const ShearDiagram d = DiagramOf(BeamOf({10, 10}, kPinned, kPinned, 120));
  EXPECT_EQ(d.ShearAt(-0.01), 0);
  EXPECT_EQ(d.ShearAt(20.01), 0);
}

TEST(ShearAt, PassesOverAPairAtOnePlace) {
  BeamCase beam = BeamOf({10, 10}, kNone, kPinned);
  beam.Span(1).points = {{50, 0}};
  EXPECT_NEAR(DiagramOf(beam).ShearAt(0), -50, 1e-3);
}

}  // namespace
}  // namespace lignara
