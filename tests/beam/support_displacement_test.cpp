#include <gtest/gtest.h>

#include "tests/support/beam_run.h"

namespace lignara {
namespace {

using enum SupportType;

TEST_F(BeamRun, OfALeftDisplacementBetweenFixedEnds) {
  beam.Supports(Fixed, Fixed);
  Stiff();
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "1"}});
  beam.Run();
  // 12 EI (1/12) / L^3 = 444,444.44 / 1000; its moment half the span times that.
  ExpectOutput("444.44", "-444.44", "2222.22");
  EXPECT_EQ(beam.window.maxDeflection, "-1.0000");
  EXPECT_EQ(beam.Deflection(0), -1.0);
  EXPECT_NEAR(beam.Deflection(500), 0, 1e-6);
}

TEST_F(BeamRun, OfARightDisplacementBetweenFixedEnds) {
  beam.Supports(Fixed, Fixed);
  Stiff();
  beam.Add(LoadKind::RightDisplacement, {{"Disp", "1"}});
  beam.Run();
  EXPECT_EQ(beam.window.reaction1, "-444.44");
  EXPECT_EQ(beam.window.reaction2, "444.44");
  EXPECT_NEAR(beam.Deflection(0), 0, 1e-6);
  EXPECT_EQ(beam.Deflection(500), -1.0);
  EXPECT_NEAR(beam.BendingMoment(500), 2222.22, 0.01);
  EXPECT_NEAR(beam.BendingMoment(0), -2222.22, 0.01);
}

struct Displaced {
  SupportType left, right;
  LoadKind kind;
  double reaction1, momentLeft, momentRight, deflectionLeft, deflectionRight;
};

class DisplacedProp : public testing::TestWithParam<Displaced> {};

// D = (1/12) 3 EI / L^3 = 444,444.44 / 4 / 1000 = 111.11 lbs, its moment at the fixed end 1111.11.
TEST_P(DisplacedProp, LiftsItsEndAndTurnsTheOtherWay) {
  const Displaced& d = GetParam();
  TestBeam beam;
  beam.Supports(d.left, d.right);
  beam.Constants("1000000", "64");
  beam.Add(d.kind, {{"Disp", "1"}});
  beam.Run();
  EXPECT_NEAR(beam.window.results.reaction1.value(), d.reaction1, 0.01);
  EXPECT_NEAR(beam.window.results.reaction2.value(), -d.reaction1, 0.01);
  for (const int station : {0, 123, 500}) EXPECT_NEAR(beam.Shear(station), d.reaction1, 0.01);
  EXPECT_NEAR(beam.BendingMoment(0), d.momentLeft, 0.01);
  EXPECT_NEAR(beam.BendingMoment(500), d.momentRight, 0.01);
  EXPECT_NEAR(beam.Deflection(0), d.deflectionLeft, 1e-6);
  EXPECT_NEAR(beam.Deflection(500), d.deflectionRight, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(
    Both, DisplacedProp,
    testing::Values(
        Displaced{Fixed, Pinned, LoadKind::LeftDisplacement, 111.11, 1111.11, 0, -1, 0},
        Displaced{Fixed, Pinned, LoadKind::RightDisplacement, -111.11, -1111.11, 0, 0, -1},
        Displaced{Pinned, Fixed, LoadKind::LeftDisplacement, 111.11, 0, -1111.11, -1, 0},
        Displaced{Pinned, Fixed, LoadKind::RightDisplacement, -111.11, 0, 1111.11, 0, -1}));

TEST_F(BeamRun, SaysThatTwoPinsIgnoreDisplacements) {
  beam.Supports(Fixed, Pinned);
  beam.Add(LoadKind::RightDisplacement, {{"Disp", "1"}});
  beam.Supports(Pinned, Pinned);
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({"SINCE BOTH SUPPORTS ARE PINNED, THE PROGRAM IGNORED YOUR SUPPORT "
                                 "DISPLACEMENT LOADS !"}));
  ExpectOutput("500.00", "500.00", "2500.00");
  EXPECT_TRUE(beam.window.diagrams.enabled);
}

TEST_F(BeamRun, PassesOverDisplacementsOfCantilevers) {
  beam.Supports(Fixed, Fixed);
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "1"}});
  for (const auto& [left, right] : {std::pair{Fixed, Free}, std::pair{Free, Fixed}}) {
    beam.Supports(Fixed, Fixed);
    beam.Supports(left, right);
    beam.Run();
    EXPECT_EQ(beam.Boxes(), Texts());
    ExpectOutput("0.00", "0.00", "0.00");
  }
}

TEST_F(BeamRun, DividesAMetricFixedDisplacementByTwelve) {
  beam.session.unitSystem = 1;
  beam.Supports(Fixed, Fixed);
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "1.2"}});
  beam.Run();
  EXPECT_NEAR(beam.Deflection(0), -1.2 * 100 / 12, 1e-5);
  beam.Supports(Fixed, Pinned);
  beam.Run();
  EXPECT_NEAR(beam.Deflection(0), -1.2, 1e-6);
}

}  // namespace
}  // namespace lignara
