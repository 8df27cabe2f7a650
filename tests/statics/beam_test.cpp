// Closed forms of the textbooks. L = 10 ft, E I = 1e6 lbs ft^2 where nothing else is told.

#include "statics/beam.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lignara {
namespace {

using enum BeamHold;

constexpr double kL = 10, kEI = 1e6, kP = 1000, kW = 120;
const double kRoot3 = std::sqrt(3.0);

LoadedSpan Span(double length = kL) { return {length, kEI, {}, {}, {}}; }

LoadedSpan SpanUnder(const SpreadLoad& load) {
  LoadedSpan span = Span();
  span.spreads = {load};
  return span;
}

LoadedSpan SpanUnder(const PointForce& load) {
  LoadedSpan span = Span();
  span.forces = {load};
  return span;
}

const SpreadLoad kLevel{0, kL, kW, kW};

BeamStatics Solve(BeamHold left, BeamHold right, std::vector<LoadedSpan> spans) {
  return SolveStatics({std::move(spans), left, right, {}, 0, 0});
}

void ExpectReactions(const BeamStatics& beam, const std::vector<double>& expected) {
  ASSERT_EQ(beam.reactions.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(beam.reactions[i], expected[i], 1e-9 * kP) << i;
  }
}

void ExpectRange(const CurveRange& range, double least, double most) {
  const double tolerance = 1e-12 * std::max(std::fabs(least), std::fabs(most));
  EXPECT_NEAR(range.least, least, tolerance);
  EXPECT_NEAR(range.most, most, tolerance);
}

TEST(StaticsOfABeam, SimpleSpanUnderAForceAtMidspan) {
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(PointForce{kP, 5})});
  ExpectReactions(beam, {500, 500});
  ExpectRange(beam.spans[0].shear, -500, 500);
  ExpectRange(beam.spans[0].moment, 0, kP * kL / 4);
  ExpectRange(beam.spans[0].deflection, 0, kP * kL * kL * kL / (48 * kEI));
}

// The largest deflection under a force at a > b lies at sqrt((L^2 - b^2) / 3), ahead of the force.
TEST(StaticsOfABeam, SimpleSpanUnderAForceOffMidspan) {
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(PointForce{kP, 7})});
  constexpr double b = 3;
  ExpectReactions(beam, {kP * b / kL, kP * 7 / kL});
  ExpectRange(beam.spans[0].moment, 0, kP * 7 * b / kL);
  ExpectRange(beam.spans[0].deflection, 0,
              kP * b * std::pow(kL * kL - b * b, 1.5) / (9 * kRoot3 * kL * kEI));
}

TEST(StaticsOfABeam, SimpleSpanUnderALevelLoad) {
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(kLevel)});
  ExpectReactions(beam, {600, 600});
  ExpectRange(beam.spans[0].shear, -600, 600);
  ExpectRange(beam.spans[0].moment, 0, kW * kL * kL / 8);
  ExpectRange(beam.spans[0].deflection, 0, 5 * kW * std::pow(kL, 4) / (384 * kEI));
}

// The moment is largest at L / sqrt 3, the deflection at L sqrt(1 - sqrt(8 / 15)).
TEST(StaticsOfABeam, SimpleSpanUnderASlopedLoad) {
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(SpreadLoad{0, kL, 0, kW})});
  ExpectReactions(beam, {kW * kL / 6, kW * kL / 3});
  ExpectRange(beam.spans[0].moment, 0, kW * kL * kL / (9 * kRoot3));
  const double x = kL * std::sqrt(1 - std::sqrt(8.0 / 15));
  const double deflection =
      kW * x / (360 * kL * kEI) * (7 * std::pow(kL, 4) - 10 * kL * kL * x * x + 3 * std::pow(x, 4));
  ExpectRange(beam.spans[0].deflection, 0, deflection);
}

TEST(StaticsOfABeam, FallingLoadIsTheMirrorOfARisingOne) {
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(SpreadLoad{2, 8, kW, 0})});
  const BeamStatics mirror = Solve(Pinned, Pinned, {SpanUnder(SpreadLoad{2, 8, 0, kW})});
  ExpectReactions(beam, {mirror.reactions[1], mirror.reactions[0]});
  ExpectRange(beam.spans[0].moment, mirror.spans[0].moment.least, mirror.spans[0].moment.most);
  ExpectRange(beam.spans[0].deflection, 0, mirror.spans[0].deflection.most);
}

// A clockwise moment at the left end pushes the right support down. M L^2 / (9 sqrt 3 E I).
TEST(StaticsOfABeam, SimpleSpanUnderAnEndMoment) {
  LoadedSpan span = Span();
  span.moments = {{900, 0}};
  const BeamStatics beam = Solve(Pinned, Pinned, {span});
  ExpectReactions(beam, {-90, 90});
  ExpectRange(beam.spans[0].moment, 0, 900);
  ExpectRange(beam.spans[0].deflection, 0, 900 * kL * kL / (9 * kRoot3 * kEI));
}

TEST(StaticsOfABeam, MomentWithinASpanMakesTheDiagramJump) {
  LoadedSpan span = Span();
  span.moments = {{900, 6}};
  const BeamStatics beam = Solve(Pinned, Pinned, {span});
  ExpectRange(beam.spans[0].shear, -90, -90);
  ExpectRange(beam.spans[0].moment, -540, 360);
}

TEST(StaticsOfABeam, ProppedUnderALevelLoad) {
  const BeamStatics beam = Solve(Fixed, Pinned, {SpanUnder(kLevel)});
  ExpectReactions(beam, {750, 450});
  EXPECT_NEAR(beam.leftFixing, -kW * kL * kL / 8, 1e-9);
  EXPECT_NEAR(beam.rightFixing, 0, 1e-9);
  ExpectRange(beam.spans[0].moment, -kW * kL * kL / 8, 9 * kW * kL * kL / 128);
  const double x = kL * (1 + std::sqrt(33.0)) / 16;  // from the pinned end
  EXPECT_NEAR(beam.spans[0].deflection.most,
              kW * x * (kL * kL * kL - 3 * kL * x * x + 2 * x * x * x) / (48 * kEI), 1e-14);
}

TEST(StaticsOfABeam, ProppedAtTheOtherEndIsItsMirror) {
  const BeamStatics beam = Solve(Pinned, Fixed, {SpanUnder(kLevel)});
  ExpectReactions(beam, {450, 750});
  EXPECT_NEAR(beam.rightFixing, -kW * kL * kL / 8, 1e-9);
}

TEST(StaticsOfABeam, FixedUnderALevelLoad) {
  const BeamStatics beam = Solve(Fixed, Fixed, {SpanUnder(kLevel)});
  ExpectReactions(beam, {600, 600});
  ExpectRange(beam.spans[0].moment, -kW * kL * kL / 12, kW * kL * kL / 24);
  EXPECT_NEAR(beam.spans[0].deflection.most, kW * std::pow(kL, 4) / (384 * kEI), 1e-14);
}

// P a b^2 / L^2 and P b a^2 / L^2.
TEST(StaticsOfABeam, FixedUnderAForce) {
  const BeamStatics beam = Solve(Fixed, Fixed, {SpanUnder(PointForce{kP, 3})});
  EXPECT_NEAR(beam.leftFixing, -kP * 3 * 49 / 100, 1e-9);
  EXPECT_NEAR(beam.rightFixing, -kP * 7 * 9 / 100, 1e-9);
  ExpectReactions(beam, {kP * 49 * (9 + 7) / 1000, kP * 9 * (21 + 3) / 1000});
}

TEST(StaticsOfABeam, CantileversCarryAllInTheirWall) {
  const double tip = kP * kL * kL * kL / (3 * kEI);
  const BeamStatics left = Solve(Fixed, Free, {SpanUnder(PointForce{kP, kL})});
  ExpectReactions(left, {kP, 0});
  ExpectRange(left.spans[0].shear, kP, kP);
  ExpectRange(left.spans[0].moment, -kP * kL, 0);
  ExpectRange(left.spans[0].deflection, 0, tip);
  const BeamStatics right = Solve(Free, Fixed, {SpanUnder(PointForce{kP, 0})});
  ExpectReactions(right, {0, kP});
  ExpectRange(right.spans[0].shear, -kP, -kP);
  ExpectRange(right.spans[0].moment, -kP * kL, 0);
  EXPECT_NEAR(right.spans[0].deflection.most, tip, 1e-14);
}

// P a (L - x) x / 2 / L bends the span upward: P a L^2 / (9 sqrt 3 E I) at the most. The tip sinks
// by P a^2 (L + a) / (3 E I).
TEST(StaticsOfABeam, OverhangLiftsTheSpanBesideIt) {
  LoadedSpan overhang = Span(4);
  overhang.forces = {{kP, 4}};
  const BeamStatics beam = Solve(Pinned, Free, {Span(), overhang});
  ExpectReactions(beam, {-400, 1400, 0});
  ExpectRange(beam.spans[0].moment, -4000, 0);
  EXPECT_NEAR(beam.spans[0].deflection.least, -kP * 4 * kL * kL / (9 * kRoot3 * kEI), 1e-13);
  EXPECT_NEAR(beam.spans[1].deflection.most, kP * 16 * 14 / (3 * kEI), 1e-13);
}

TEST(StaticsOfABeam, LeftOverhangIsTheMirrorOfARightOne) {
  LoadedSpan overhang = Span(4);
  overhang.forces = {{kP, 0}};
  const BeamStatics beam = Solve(Free, Pinned, {overhang, Span()});
  ExpectReactions(beam, {0, 1400, -400});
  EXPECT_NEAR(beam.spans[1].deflection.least, -kP * 4 * kL * kL / (9 * kRoot3 * kEI), 1e-13);
  EXPECT_NEAR(beam.spans[0].deflection.most, kP * 16 * 14 / (3 * kEI), 1e-13);
}

TEST(StaticsOfABeam, TwoEqualSpansUnderALevelLoad) {
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(kLevel), SpanUnder(kLevel)});
  ExpectReactions(beam, {450, 1500, 450});
  for (const SpanStatics& span : beam.spans) {
    ExpectRange(span.moment, -kW * kL * kL / 8, 9 * kW * kL * kL / 128);
  }
}

TEST(StaticsOfABeam, ThreeEqualSpansUnderALevelLoad) {
  const LoadedSpan span = SpanUnder(kLevel);
  const BeamStatics beam = Solve(Pinned, Pinned, {span, span, span});
  ExpectReactions(beam, {480, 1320, 1320, 480});
  ExpectRange(beam.spans[0].moment, -0.1 * kW * kL * kL, 0.08 * kW * kL * kL);
  ExpectRange(beam.spans[1].moment, -0.1 * kW * kL * kL, 0.025 * kW * kL * kL);
}

// Spans of stiffness ratio 2: M = -w L^2 / 8 whatever the ratio, as both are loaded alike; with one
// span loaded, M = -w L^2 / 8 times its share of the flexibility.
TEST(StaticsOfABeam, StifferSpanTakesMoreOfTheMoment) {
  LoadedSpan stiff = Span();
  stiff.stiffness = 2 * kEI;
  const BeamStatics beam = Solve(Pinned, Pinned, {SpanUnder(kLevel), stiff});
  EXPECT_NEAR(beam.spans[1].curves.first.moment, -kW * kL * kL / 8 * (1 / 1.5), 1e-9);
}

// Support movements: 3 E I / L^2 a unit of sinking of the middle support, 6 E I / L^2 and 12 E I /
// L^3 of a fixed end, 4 E I / L and 2 E I / L a unit of its turning.
TEST(StaticsOfABeam, SinkingMiddleSupportMakesTheBeamSag) {
  const BeamStatics beam = SolveStatics({{Span(), Span()}, Pinned, Pinned, {0, -0.1, 0}, 0, 0});
  EXPECT_NEAR(beam.spans[0].curves.last.moment, 3 * kEI * 0.1 / 100, 1e-9);
  ExpectReactions(beam, {300, -600, 300});
  EXPECT_NEAR(beam.spans[0].curves.last.deflection, 0.1, 1e-15);
}

TEST(StaticsOfABeam, RisingFixedEndIsPushedUp) {
  const BeamStatics beam = SolveStatics({{Span()}, Fixed, Fixed, {0.05, 0}, 0, 0});
  ExpectReactions(beam, {12 * kEI * 0.05 / 1000, -12 * kEI * 0.05 / 1000});
  EXPECT_NEAR(beam.leftFixing, -6 * kEI * 0.05 / 100, 1e-9);
  EXPECT_NEAR(beam.rightFixing, 6 * kEI * 0.05 / 100, 1e-9);
  ExpectRange(beam.spans[0].deflection, -0.05, 0);
}

TEST(StaticsOfABeam, TurningFixedEndIsHeldByItsMoment) {
  const BeamStatics left = SolveStatics({{Span()}, Fixed, Fixed, {}, 0.01, 0});
  EXPECT_NEAR(left.leftFixing, 4 * kEI * 0.01 / kL, 1e-9);
  EXPECT_NEAR(left.rightFixing, -2 * kEI * 0.01 / kL, 1e-9);
  const BeamStatics right = SolveStatics({{Span()}, Pinned, Fixed, {}, 0, 0.01});
  EXPECT_NEAR(right.rightFixing, -3 * kEI * 0.01 / kL, 1e-9);
}

TEST(StaticsOfABeam, MovedCantileverMovesAsAWhole) {
  const BeamStatics beam = SolveStatics({{Span()}, Fixed, Free, {0.1, 0}, 0.01, 0});
  EXPECT_NEAR(beam.spans[0].curves.last.deflection, 0.01 * kL - 0.1, 1e-15);
  ExpectReactions(beam, {0, 0});
}

TEST(StaticsOfABeam, ForceOnASupportBendsNothing) {
  LoadedSpan span = Span();
  span.forces = {{kP, 0}, {2 * kP, kL}};
  const BeamStatics beam = Solve(Pinned, Pinned, {span});
  ExpectReactions(beam, {kP, 2 * kP});
  ExpectRange(beam.spans[0].shear, 0, 0);
}

TEST(StaticsOfABeam, WhatLiesBeyondTheSpanIsLeftOut) {
  LoadedSpan span = SpanUnder(SpreadLoad{-kL, 2 * kL, 0, 3 * kW});
  span.forces = {{kP, -1}, {kP, kL + 1}};
  span.moments = {{kP, kL + 1}};
  span.spreads.push_back({kL + 1, kL + 2, kW, kW});
  span.spreads.push_back({6, 4, kW, kW});  // ends ahead of its start
  const BeamStatics beam = Solve(Pinned, Pinned, {span});
  // On the span W at the left end and 2 W at the right one.
  ExpectReactions(beam, {kW * kL / 2 + kW * kL / 6, kW * kL / 2 + kW * kL / 3});
}

TEST(StaticsOfABeam, WhatCanMoveIsAMechanism) {
  const LoadedSpan span = SpanUnder(kLevel);
  EXPECT_TRUE(Solve(Pinned, Free, {span}).mechanism);
  EXPECT_TRUE(Solve(Free, Pinned, {span}).mechanism);
  EXPECT_TRUE(Solve(Free, Free, {span}).mechanism);
  EXPECT_TRUE(Solve(Free, Free, {span, span}).mechanism);
  EXPECT_FALSE(Solve(Free, Free, {span, span, span}).mechanism);
  EXPECT_FALSE(Solve(Free, Pinned, {span, span}).mechanism);
  EXPECT_FALSE(Solve(Free, Fixed, {span}).mechanism);
}

TEST(StaticsOfABeam, NoBeamIsAMechanism) {
  EXPECT_TRUE(Solve(Fixed, Fixed, {}).mechanism);
  EXPECT_TRUE(Solve(Fixed, Fixed, {{0, kEI, {}, {}, {}}}).mechanism);
  EXPECT_TRUE(Solve(Fixed, Fixed, {{kL, 0, {}, {}, {}}}).mechanism);
  EXPECT_TRUE(Solve(Fixed, Fixed, {{kL, std::nan(""), {}, {}, {}}}).mechanism);
}

}  // namespace
}  // namespace lignara
