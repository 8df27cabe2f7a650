#include <gtest/gtest.h>

#include "tests/support/beam_run.h"

namespace lignara {
namespace {

using enum SupportType;

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

TEST_F(BeamRun, ClassifiesTheSupportsAgain) {
  beam.Point("5", "1000");
  beam.window.beam.supportClass = SupportClass::FixedBothEnds;
  beam.Run();
  EXPECT_EQ(beam.window.beam.supportClass, SupportClass::SimpleSpan);
  ExpectOutput("500.00", "500.00", "2500.00");
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

TEST_F(BeamRun, TellsOfTheLengthForEachLoad) {
  beam.Point("4", "1000");
  beam.Uniform("1", "2", "100");
  beam.Axial("5");
  beam.Length("0");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED A CONSTANT VALUE FOR L,E OR I !", "YOUR LENGTH IS 0",
                                 "YOUR LENGTH IS 0"}));
  EXPECT_EQ(beam.window.axial, "") << "a stopped run shows nothing";
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

TEST_F(BeamRun, ShowsAResultTooLargeOnce) {
  // 3e38 lbs on each of two loads: one fits 32 bits, their reaction does not.
  beam.Supports(Fixed, Free);
  beam.Point("5", "3e38");
  beam.Point("6", "3e38");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::Overflow))}));
}

// Messages and values after the solve.

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

TEST(BeamConstants, LeaveTheUnbracedLengthWhereOneIsMissing) {
  TestBeam beam;
  beam.window.unbraced = "4";
  beam.Run();
  beam.window.unbraced = "5";
  beam.Constants("1000000", "0");
  beam.Run();
  EXPECT_EQ(beam.window.beam.unbracedLength.value(), 4.0f);
  EXPECT_EQ(beam.session.Member.ModulusE.value(), 1000000.0f) << "the others are read all the same";
}

TEST(BeamConstants, OfMoreThan32BitsKeepTheValueBefore) {
  TestBeam beam;
  beam.window.length = "1e39";
  beam.Run();
  EXPECT_EQ(beam.window.beam.spanLength.value(), 10.0f);
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::Overflow))}));
}

}  // namespace
}  // namespace lignara
