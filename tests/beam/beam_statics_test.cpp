#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

using enum SupportType;

/// L = 10 ft; E = 1e6 psi and I = 144 in^4 give EI = 1e6 lb ft^2.
constexpr double kL = 10, kEI = 1e6, kInches = 12;

struct ClassCase {
  SupportType left, right;
  double momentSign;  ///< +1: sagging is positive; -1: hogging
  double shearSign;   ///< shear against the slope of the moment
};

constexpr ClassCase kClasses[] = {{Pinned, Pinned, 1, 1}, {Fixed, Pinned, 1, 1},
                                  {Pinned, Fixed, 1, 1},  {Fixed, Free, -1, -1},
                                  {Free, Fixed, -1, 1},   {Fixed, Fixed, 1, 1}};

class BeamEquation : public testing::TestWithParam<int> {
 protected:
  BeamEquation() {
    beam.Supports(Case().left, Case().right);
    beam.Constants("1000000", "144");
  }

  const ClassCase& Case() const { return kClasses[GetParam()]; }
  bool TakesDisplacements() const { return GetParam() == 1 || GetParam() == 2 || GetParam() == 5; }

  /// Curvature x EI at a station, from the deflections `reach` stations off; exact for a cubic.
  double Bending(int station, int reach) const {
    const double h = kL / 500 * reach;
    return kEI / kInches / (h * h) *
           (beam.Deflection(station + reach) - 2 * beam.Deflection(station) +
            beam.Deflection(station - reach));
  }
  double MomentSlope(int station, int reach) const {
    return (beam.BendingMoment(station + reach) - beam.BendingMoment(station - reach)) /
           (2 * reach * kL / 500);
  }
  double PeakMoment() const { return std::fabs(beam.window.results.maxMoment.value()); }
  double PeakShear() const { return std::fabs(beam.window.results.maxShear.value()); }

  /// EI y'' = -M and V = M' with the signs of the class, away from `loaded`.
  void ExpectBeamEquation(double momentSign, double shearSign, int loaded, double tolerance) {
    constexpr int kReach = 20;
    for (int i = kReach; i <= 500 - kReach; i += 10) {
      if (std::abs(i - loaded) <= kReach + 3) continue;
      EXPECT_NEAR(Bending(i, kReach), -momentSign * beam.BendingMoment(i), tolerance * PeakMoment())
          << "station " << i;
      EXPECT_NEAR(MomentSlope(i, kReach), shearSign * beam.Shear(i), tolerance * PeakShear())
          << "station " << i;
    }
  }

  void ExpectHeldEnds() {
    const double peak = std::fabs(beam.window.results.maxDeflection.value());
    const double h = kL / 500;
    for (const auto& [support, end, inner] :
         {std::tuple{Case().left, 0, 1}, std::tuple{Case().right, 500, 499}}) {
      if (support == Free) continue;
      EXPECT_NEAR(beam.Deflection(end), 0, 1e-6 * peak);
      if (support == Fixed) {
        EXPECT_NEAR((beam.Deflection(inner) - beam.Deflection(end)) / h, 0, 0.01 * peak);
      }
    }
  }

  TestBeam beam;
};

TEST_P(BeamEquation, HoldsUnderAPointLoad) {
  beam.Point("3.21", "1000");
  beam.Run();
  ExpectBeamEquation(Case().momentSign, Case().shearSign, 160, 2e-3);
  ExpectHeldEnds();
}

TEST_P(BeamEquation, HoldsUnderALevelLoad) {
  beam.Uniform("0", "10", "120");
  beam.window.beam.equivalentLoads = 2000;
  beam.Run();
  ExpectBeamEquation(Case().momentSign, Case().shearSign, -100, 1.5e-2);
  ExpectHeldEnds();
}

TEST_P(BeamEquation, HoldsUnderSlopedLoads) {
  for (const LoadKind kind : {LoadKind::SlopedLeftZero, LoadKind::SlopedRightZero}) {
    RemoveAllLoads(beam.window);
    beam.Add(kind, {{"A", "0"}, {"B", "10"}, {"W", "120"}});
    beam.window.beam.equivalentLoads = 2000;
    beam.Run();
    ExpectBeamEquation(Case().momentSign, Case().shearSign, -100, 1.5e-2);
    ExpectHeldEnds();
  }
}

TEST_P(BeamEquation, HoldsUnderAMoment) {
  beam.Moment("6", "900");
  beam.Run();
  ExpectBeamEquation(Case().momentSign, Case().shearSign, 300, 5e-3);
}

TEST_P(BeamEquation, HoldsUnderDisplacementsWithTheOppositeSign) {
  if (!TakesDisplacements()) return;
  for (const LoadKind kind : {LoadKind::LeftDisplacement, LoadKind::RightDisplacement}) {
    RemoveAllLoads(beam.window);
    beam.Add(kind, {{"Disp", "0.5"}});
    beam.Run();
    ExpectBeamEquation(-1, -1, -100, 2e-3);
  }
}

TEST_P(BeamEquation, ReactionsCarryTheLoads) {
  beam.Point("3.21", "1000");
  beam.Uniform("1", "8", "120");                                                // 960
  beam.Add(LoadKind::SlopedLeftZero, {{"A", "2"}, {"B", "5"}, {"W", "80"}});    // 200
  beam.Add(LoadKind::SlopedRightZero, {{"A", "2"}, {"B", "5"}, {"W", "-40"}});  // -100
  beam.Moment("6", "900");
  beam.Run();
  EXPECT_NEAR(beam.window.results.reaction1.value() + beam.window.results.reaction2.value(), 2060,
              0.01);
}

TEST_P(BeamEquation, SuperposesLoads) {
  std::vector<double> sums(501), moments(501);
  const auto keep = [&](double sign) {
    beam.Run();
    for (int i = 0; i <= 500; ++i) {
      sums[static_cast<std::size_t>(i)] += sign * beam.Deflection(i);
      moments[static_cast<std::size_t>(i)] += sign * beam.BendingMoment(i);
    }
  };
  beam.Point("3.21", "1000");
  keep(1);
  RemoveAllLoads(beam.window);
  beam.Uniform("1", "8", "120");
  keep(1);
  beam.Point("3.21", "1000");
  keep(-1);
  for (std::size_t i = 0; i < sums.size(); ++i) {
    ASSERT_NEAR(sums[i], 0, 1e-6);
    ASSERT_NEAR(moments[i], 0, 1e-2);
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, BeamEquation, testing::Range(0, 6));

/// Textbook closed forms of a full-length level load w = 120 lb/ft: reactions and end or mid
/// moments in parts of wL and wL^2, deflection in wL^4 / EI.
struct UniformCase {
  SupportType left, right;
  double reaction1, momentLeft, momentMid, momentRight;
  int station;  ///< where the deflection is compared
  double deflection;
};

class FullUniform : public testing::TestWithParam<UniformCase> {};

TEST_P(FullUniform, AgreesWithTheTextbook) {
  const UniformCase& c = GetParam();
  constexpr double kW = 120;
  TestBeam beam;
  beam.Supports(c.left, c.right);
  beam.Constants("1000000", "144");
  beam.window.beam.equivalentLoads = 10000;
  beam.Uniform("0", "10", "120");
  beam.Run();
  constexpr double kWL2 = kW * kL * kL;
  EXPECT_NEAR(beam.window.results.reaction1.value(), c.reaction1 * kW * kL, 0.01);
  EXPECT_NEAR(beam.BendingMoment(0), c.momentLeft * kWL2, 0.1);
  EXPECT_NEAR(beam.BendingMoment(250), c.momentMid * kWL2, 0.1);
  EXPECT_NEAR(beam.BendingMoment(500), c.momentRight * kWL2, 0.1);
  EXPECT_NEAR(beam.Deflection(c.station), c.deflection * kWL2 * kL * kL / kEI * kInches, 1e-4);
}

INSTANTIATE_TEST_SUITE_P(
    Classes, FullUniform,
    testing::Values(UniformCase{Pinned, Pinned, 0.5, 0, 1 / 8.0, 0, 250, 5 / 384.0},
                    UniformCase{Fixed, Pinned, 0.625, -1 / 8.0, 1 / 16.0, 0, 250, 1 / 192.0},
                    UniformCase{Pinned, Fixed, 0.375, 0, 1 / 16.0, -1 / 8.0, 250, 1 / 192.0},
                    UniformCase{Fixed, Free, 1, 0.5, 0.125, 0, 500, 1 / 8.0},
                    UniformCase{Free, Fixed, 0, 0, 0.125, 0.5, 0, 1 / 8.0},
                    UniformCase{Fixed, Fixed, 0.5, -1 / 12.0, 1 / 24.0, -1 / 12.0, 250,
                                1 / 384.0}));

/// A load that grows from 0 at the left end to w at the right: the simple span's reactions are
/// wL/6 and wL/3, its moment at midspan wL^2/16.
TEST(SlopedLoad, AgreesWithTheTextbookOnASimpleSpan) {
  TestBeam beam;
  beam.window.beam.equivalentLoads = 5000;
  beam.Add(LoadKind::SlopedLeftZero, {{"A", "0"}, {"B", "10"}, {"W", "120"}});
  beam.Run();
  EXPECT_EQ(beam.window.reaction1, "200.00");
  EXPECT_EQ(beam.window.reaction2, "400.00");
  EXPECT_NEAR(beam.BendingMoment(250), 750, 0.1);
}

TEST(SlopedLoad, IsMirroredWhereItFallsToTheRight) {
  TestBeam rising, falling;
  rising.Add(LoadKind::SlopedLeftZero, {{"A", "2"}, {"B", "6"}, {"W", "120"}});
  falling.Add(LoadKind::SlopedRightZero, {{"A", "2"}, {"B", "6"}, {"W", "120"}});
  rising.Run();
  falling.Run();
  for (int i = 0; i <= 500; i += 25) {
    EXPECT_NEAR(rising.BendingMoment(i), falling.BendingMoment(500 - i), 0.01) << i;
    EXPECT_NEAR(rising.Deflection(i), falling.Deflection(500 - i), 1e-4) << i;
  }
}

/// Of a couple M on a simple span at a from the left: R1 = -M/L; on a cantilever the whole moment
/// goes into the wall.
TEST(PointMomentLoad, GoesIntoTheWallOfACantilever) {
  TestBeam beam;
  beam.Supports(Fixed, Free);
  beam.Moment("6", "900");
  beam.Run();
  EXPECT_EQ(beam.window.reaction1, "0.00");
  EXPECT_NEAR(beam.BendingMoment(0), 900, 0.01);
  EXPECT_NEAR(beam.BendingMoment(290), 900, 0.01);
  EXPECT_NEAR(beam.BendingMoment(310), 0, 0.01);
}

}  // namespace
}  // namespace lignara
