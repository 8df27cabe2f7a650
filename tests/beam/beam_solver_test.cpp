#include "beam/beam_solver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

using enum SupportType;

class BeamRun : public testing::Test {
 protected:
  /// A beam with 1 in^4 replaced by 64, so that EI is 1e6 x 64 / 144 = 444,444.44 lb ft^2.
  void Stiff() { beam.Constants("1000000", "64"); }

  void ExpectOutput(const std::string& r1, const std::string& r2, const std::string& moment) {
    EXPECT_EQ(beam.window.reaction1, r1);
    EXPECT_EQ(beam.window.reaction2, r2);
    EXPECT_EQ(beam.window.maxMoment, moment);
  }

  TestBeam beam;
};

// Hand figures.

TEST_F(BeamRun, OfAPointLoadAtMidspan) {
  beam.Point("5", "1000");
  beam.Run();
  ExpectOutput("500.00", "500.00", "2500.00");
  EXPECT_EQ(beam.window.maxShear, "500.00");
  // P L^3 / 48 EI: EI is 1e6 x 1 / 144 lb ft^2, so 1e6 / (48 x 6944.44) = 3 ft.
  EXPECT_EQ(beam.window.maxDeflection, "36.0000");
  EXPECT_EQ(beam.BendingMoment(250), 2500.0);
}

TEST_F(BeamRun, CountsTheStationUnderALoadAsLeftOfIt) {
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.Shear(0), 500.0);
  EXPECT_EQ(beam.Shear(250), 500.0);
  EXPECT_EQ(beam.Shear(251), -500.0);
  EXPECT_EQ(beam.Shear(500), -500.0);
}

TEST_F(BeamRun, SplitsByThePlaceAsStored) {
  // 0.7 in 32 bits is a little less than 0.7: 0.069999... x 500 is below 35.
  beam.Point("0.7", "1000");
  beam.Run();
  EXPECT_GT(beam.Shear(34), 0);
  EXPECT_LT(beam.Shear(35), 0);
}

TEST_F(BeamRun, OfAUniformLoadAtTwoAndAHalfPointLoads) {
  // 2.5 rounds to 2 strips of 10 / 2.5 = 4 ft, 400 lbs at 2 and at 6 ft.
  beam.window.beam.equivalentLoads = 2.5;
  beam.Uniform("0", "10", "100");
  beam.Run();
  ExpectOutput("480.00", "320.00", "1280.00");
}

TEST_F(BeamRun, OfAUniformLoadHasHalfTheLoadAtEachEnd) {
  beam.Uniform("0", "10", "123");
  beam.Run();
  EXPECT_EQ(beam.window.reaction1, "615.00");
  EXPECT_EQ(beam.window.reaction2, "615.00");
}

TEST_F(BeamRun, MakesAPolygonOfAUniformLoad) {
  // 100 strips of 10 lbs, the first at 0.05 ft, the second at 0.15: between them the moment is
  // straight, with the slope 500 - 10.
  beam.Uniform("0", "10", "100");
  beam.Run();
  EXPECT_NEAR(beam.BendingMoment(4) - beam.BendingMoment(3), 490 * 0.02, 1e-3);
  EXPECT_NEAR(beam.BendingMoment(7) - beam.BendingMoment(6), 490 * 0.02, 1e-3);
  EXPECT_NEAR(beam.BendingMoment(9) - beam.BendingMoment(8), 480 * 0.02, 1e-3);
}

TEST_F(BeamRun, OfACantileverFromTheLeft) {
  beam.Supports(Fixed, Free);
  Stiff();
  beam.Point("10", "100");
  beam.Run();
  ExpectOutput("100.00", "0.00", "1000.00");
  EXPECT_EQ(beam.window.maxDeflection, "0.9000");
  EXPECT_EQ(beam.BendingMoment(0), 1000.0);
}

TEST_F(BeamRun, OfACantileverFromTheRightHasAPositiveShear) {
  beam.Supports(Free, Fixed);
  Stiff();
  beam.Point("0", "100");
  beam.Run();
  ExpectOutput("0.00", "100.00", "1000.00");
  EXPECT_EQ(beam.window.maxDeflection, "0.9000");
  EXPECT_EQ(beam.Shear(0), 0.0) << "the station of the load is left of it";
  for (const int station : {1, 250, 500}) EXPECT_EQ(beam.Shear(station), 100.0);
  EXPECT_EQ(beam.BendingMoment(500), 1000.0);
}

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

TEST_F(BeamRun, WithoutLoadsIsZero) {
  beam.Run();
  ExpectOutput("0.00", "0.00", "0.00");
  EXPECT_EQ(beam.window.maxShear, "0.00");
  EXPECT_EQ(beam.window.maxDeflection, "0.0000");
  EXPECT_EQ(beam.window.axial, "0.00");
  for (const int station : {0, 250, 500}) EXPECT_EQ(beam.BendingMoment(station), 0.0);
}

TEST_F(BeamRun, ReportsTheFirstOfEqualPeaksWithItsSign) {
  // Equal moments of both senses: -M/2 left of the middle, +M/2 right of it.
  beam.Point("2", "-1000");
  beam.Point("8", "1000");
  beam.Run();
  // R1 = -800 + 200 = -600: moments -1200 at 2 ft and +1200 at 8 ft.
  EXPECT_EQ(beam.window.maxMoment, "-1200.00");
  EXPECT_EQ(beam.window.maxShear, "-600.00");
}

// Moments as couples.

TEST_F(BeamRun, OfAMomentHasNoSpikeInTheShear) {
  beam.Moment("5", "1000");
  beam.Run();
  for (int i = 0; i <= 500; ++i) ASSERT_NEAR(beam.Shear(i), -100, 1e-3) << i;
  EXPECT_EQ(beam.window.reaction1, "-100.00");
  EXPECT_EQ(beam.window.reaction2, "100.00");
}

TEST_F(BeamRun, OfAMomentJumpsBetweenTheTwoForces) {
  beam.Moment("5", "1000");
  beam.Run();
  EXPECT_NEAR(beam.BendingMoment(249), -498, 0.01);
  EXPECT_NEAR(beam.BendingMoment(250), 0, 0.01);
  EXPECT_NEAR(beam.BendingMoment(251), 498, 0.01);
}

TEST_F(BeamRun, HoldsTheDeflectionOverTheCouple) {
  Stiff();
  beam.Moment("5", "100000");
  beam.Run();
  // The forces stand at 4.98 and 5.02 ft: stations 249 to 251 take the value of 248.
  EXPECT_NE(beam.Deflection(247), beam.Deflection(248));
  for (const int station : {249, 250}) {
    EXPECT_FLOAT_EQ(beam.Deflection(station), beam.Deflection(248)) << station;
  }
  EXPECT_NE(beam.Deflection(252), beam.Deflection(248));
}

TEST_F(BeamRun, OfAMomentTooNearTheLeftEndShowsTheFaultAndKeepsThePlainSums) {
  Stiff();
  beam.Moment("1", "1000");
  beam.Edit(1, LoadKind::PointMoment, {{"A", "0.03"}, {"M", "1000"}});
  beam.Run();
  // Forces of 25000 lbs at 0.01 and at 0.05 ft, before station 1 and behind station 2.
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::IndexOutOfBounds))}));
  EXPECT_NEAR(beam.Shear(1), -100 + 25000, 0.1);
  EXPECT_NEAR(beam.Shear(3), -100, 0.1);
  EXPECT_TRUE(beam.window.diagrams.enabled);
}

TEST_F(BeamRun, OfAMomentEditedToTheRightEndNeedsNoRepairBeyond) {
  beam.Moment("5", "1000");
  beam.Edit(1, LoadKind::PointMoment, {{"A", "10"}, {"M", "1000"}});
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts());
  EXPECT_NEAR(beam.Shear(500), -100, 0.01);
}

// What stops a run, and what does not.

TEST_F(BeamRun, IsRefusedWhereUnstable) {
  for (const auto& [left, right] : {std::pair{Pinned, Free}, std::pair{Free, Pinned}}) {
    beam.Supports(left, right);
    beam.Run();
    EXPECT_EQ(beam.Boxes(), Texts({"YOUR SUPPORT CONDITION IS UNSTABLE !"}));
    EXPECT_EQ(beam.window.reaction1, "");
    EXPECT_EQ(beam.window.beam.hasRun.value(), -1);
    EXPECT_FALSE(beam.window.diagrams.enabled);
  }
}

TEST_F(BeamRun, WithTwoFreeEndsIsSolvedAsThePairBefore) {
  beam.Supports(Fixed, Fixed);
  beam.Supports(Fixed, Free);
  beam.Point("10", "100");
  SetSupport(beam.window, beam.session, BeamEnd::Left, Free);
  beam.Run();
  ExpectOutput("100.00", "0.00", "1000.00");
}

TEST_F(BeamRun, ComplainsOfMissingConstantsAndStopsInSilence) {
  const std::string complaint = "YOU NEED A CONSTANT VALUE FOR L,E OR I !";
  beam.Point("5", "1000");
  beam.Constants("0", "1");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({complaint}));
  EXPECT_EQ(beam.window.reaction1, "");
  beam.Constants("1000000", "-1");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({complaint}));
  EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
  EXPECT_EQ(beam.window.beam.hasRun.value(), -1);
}

TEST_F(BeamRun, WithoutALengthSaysSoForALoad) {
  beam.Point("5", "1000");
  beam.Length("");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED A CONSTANT VALUE FOR L,E OR I !", "YOUR LENGTH IS 0"}));
  EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
}

TEST_F(BeamRun, WithoutLengthAndLoadsStopsInSilence) {
  beam.Length("0");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED A CONSTANT VALUE FOR L,E OR I !"}));
  EXPECT_EQ(beam.window.reaction1, "");
}

TEST_F(BeamRun, TellsOfALoadThatCannotBeBrokenUp) {
  const std::string anomaly = "An anomoly has occurred, restart the program!";
  beam.Uniform("0", "10", "100");
  for (const double Q : {0.0, 1e-39, 40000.0}) {
    beam.window.beam.equivalentLoads = Q;
    beam.Run();
    EXPECT_EQ(beam.Boxes(), Texts({anomaly})) << Q;
    EXPECT_EQ(beam.window.reaction1, "");
  }
}

TEST_F(BeamRun, KeepsTheResultsBeforeWhereItIsStopped) {
  beam.Point("5", "1000");
  beam.Run();
  beam.Constants("1000000", "0");
  beam.Run();
  ExpectOutput("500.00", "500.00", "2500.00");
  EXPECT_EQ(beam.Shear(250), 500.0);
}

TEST_F(BeamRun, OfAnAccuracyBeyond16BitsShowsTheFaultAndGoesOn) {
  beam.Point("5", "1000");
  beam.Axial("-750");
  beam.window.beam.accuracySteps = 40000;
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::Overflow))}));
  EXPECT_EQ(beam.window.axial, "-750.00");
  beam.window.beam.accuracySteps = 500;
  beam.Run();
  ExpectOutput("500.00", "500.00", "2500.00");
}

TEST_F(BeamRun, TakesAFractionalAccuracyAsItStands) {
  // S is 2; stations stand at 0, 4 and 8 ft.
  beam.window.beam.accuracySteps = 2.5;
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.window.results.shearTotal.upper(), 4);
  EXPECT_EQ(beam.BendingMoment(1), 2000.0);
  EXPECT_EQ(beam.BendingMoment(2), 1000.0);
}

TEST_F(BeamRun, WithLessThanHalfAPointLoadHasNoComponent) {
  beam.window.beam.equivalentLoads = 0.4;
  beam.Uniform("0", "10", "100");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts());
  ExpectOutput("0.00", "0.00", "0.00");
}

TEST_F(BeamRun, ShowsAResultTooLargeOnce) {
  // 3e38 lbs on each of two loads: one fits 32 bits, their reaction does not.
  beam.Supports(Fixed, Free);
  beam.Point("5", "3e38");
  beam.Point("6", "3e38");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::Overflow))}));
}

// Messages and values after the solve.

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

TEST_F(BeamRun, ShowsTheAxialLoad) {
  beam.Axial("-1234.5");
  beam.Run();
  EXPECT_EQ(beam.window.axial, "-1234.50");
  EXPECT_EQ(beam.window.beam.axialLoad.value(), -1234.5f);
  ExpectOutput("0.00", "0.00", "0.00");
}

TEST_F(BeamRun, TakesTheLastOfTwoAxialLoads) {
  beam.Axial("100");
  beam.Point("5", "1000");
  beam.Edit(2, LoadKind::AxialLoad, {{"P", "-200"}});
  beam.Run();
  EXPECT_EQ(beam.window.axial, "-200.00");
}

TEST_F(BeamRun, WithoutAnAxialLoadShowsNone) {
  beam.Axial("100");
  beam.Run();
  SelectLoad(beam.window, 0);
  DeleteLoad(beam.window, beam.platform);
  beam.Run();
  EXPECT_EQ(beam.window.axial, "0.00");
  EXPECT_EQ(beam.window.beam.axialLoad.value(), 0.0f);
}

TEST_F(BeamRun, ShowsTheBusyPointer) {
  beam.platform.calls.clear();
  beam.Run();
  EXPECT_EQ(beam.platform.calls, std::vector<std::string>({"busy on", "busy off"}));
  beam.platform.calls.clear();
  beam.Supports(Pinned, Free);
  beam.Run();
  EXPECT_EQ(beam.platform.calls, std::vector<std::string>({"busy on", "busy off"}));
}

TEST_F(BeamRun, ReadsTheConstantsAsTheyStand) {
  beam.Length("20");
  beam.Constants("1500000", "12.5");
  beam.window.unbraced = "4";
  beam.Run();
  EXPECT_EQ(beam.window.beam.spanLength.value(), 20.0f);
  EXPECT_EQ(beam.session.Member.ModulusE.value(), 1500000.0f);
  EXPECT_EQ(beam.window.beam.momentOfInertia.value(), 12.5f);
  EXPECT_EQ(beam.window.beam.unbracedLength.value(), 4.0f);
}

TEST_F(BeamRun, TakesTheSpanWhereNoUnbracedLengthIsGiven) {
  for (const char* text : {"", "0", "-3"}) {
    beam.window.unbraced = text;
    beam.Run();
    EXPECT_EQ(beam.window.beam.unbracedLength.value(), 10.0f) << text;
  }
}

TEST_F(BeamRun, IsOutOfDateOnceAnInputChanges) {
  EXPECT_FALSE(IsOutOfDate(beam.window));
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_FALSE(IsOutOfDate(beam.window));
  beam.window.modulus.text = "2000000";
  EXPECT_TRUE(IsOutOfDate(beam.window));
  beam.Run();
  EXPECT_FALSE(IsOutOfDate(beam.window));
  beam.Edit(1, LoadKind::PointLoad, {{"A", "5"}, {"P", "900"}});
  EXPECT_TRUE(IsOutOfDate(beam.window));
  beam.Edit(1, LoadKind::PointLoad, {{"A", "5"}, {"P", "1000"}});
  EXPECT_FALSE(IsOutOfDate(beam.window));
  beam.Supports(Fixed, Fixed);
  EXPECT_TRUE(IsOutOfDate(beam.window));
}

// The metric provisions of the unit flag.

TEST_F(BeamRun, ScalesMetricDeflectionsByTheirOwnUnits) {
  beam.session.unitSystem = 1;
  beam.Constants("1000000", "100000000");  // kPa, cm^4
  beam.Point("5", "48000");
  beam.Run();
  // EI = 1e9 N/m^2 x 1 m^4: 48000 x 1000 / (48 x 1e9) = 0.001 m = 0.1 cm.
  EXPECT_EQ(beam.window.maxDeflection, "0.1000");
  EXPECT_EQ(beam.window.maxMoment, "120000.00");
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

TEST_F(BeamRun, OfAnUnknownUnitFlagStopsInSilence) {
  beam.session.unitSystem = 2;
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts());
  EXPECT_EQ(beam.window.reaction1, "");
  EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
}

}  // namespace
}  // namespace lignara
