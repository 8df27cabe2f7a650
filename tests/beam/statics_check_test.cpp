// The second opinion on a single-span beam.

#include <gtest/gtest.h>

#include <random>

#include "tests/support/beam_fixture.h"
#include "tests/support/typed.h"

namespace lignara {
namespace {

using enum SupportType;

constexpr std::pair<SupportType, SupportType> kStandingPairs[] = {{Pinned, Pinned}, {Fixed, Pinned},
                                                                  {Pinned, Fixed},  {Fixed, Free},
                                                                  {Free, Fixed},    {Fixed, Fixed}};

/// L = 10 ft, E I = 1e6 lbs ft^2.
class BeamStaticsCheck : public testing::Test {
 protected:
  BeamStaticsCheck() { beam.Constants("1000000", "144"); }

  const std::string& LineOfRun() {
    beam.Run();
    return beam.window.statics.line;
  }
  bool Agrees() {
    beam.Run();
    return beam.window.statics.verdict == StaticsVerdict::Agrees;
  }
  const StaticsDifference& Difference(const std::string& item) const {
    for (const StaticsDifference& difference : beam.window.statics.differences) {
      if (difference.value.item == item) return difference;
    }
    throw std::logic_error("not compared: " + item);
  }

  TestBeam beam;
};

TEST_F(BeamStaticsCheck, ComparesReactionsAndPeaks) {
  beam.Point("5", "1000");
  EXPECT_EQ(LineOfRun(), "Agrees with statics within 0.00 %.");
  Texts items;
  for (const auto& row : DifferenceRows(beam.window.statics)) items.push_back(row.front());
  EXPECT_EQ(items, (Texts{"R1", "R2", "Max. Moment", "Max. Shear", "Max. Def."}));
  EXPECT_NEAR(Difference("R1").value.statics, 500, 1e-9);
  EXPECT_NEAR(Difference("Max. Moment").value.statics, 2500, 1e-9);
  EXPECT_NEAR(Difference("Max. Shear").value.statics, 500, 1e-9);
  EXPECT_NEAR(Difference("Max. Def.").value.statics, 1000.0 * 1000 / 48e6 * 12, 1e-9);
}

TEST_F(BeamStaticsCheck, TellsNothingBeforeARun) {
  EXPECT_EQ(beam.window.statics.verdict, StaticsVerdict::None);
  EXPECT_EQ(beam.window.statics.line, "");
}

TEST_F(BeamStaticsCheck, AgreesInAllClassesUnderAllLoads) {
  std::mt19937 random(3);
  const auto typed = [&](int low, int high) {
    return Typed(std::uniform_int_distribution<int>(low, high)(random));
  };
  for (const auto& [left, right] : kStandingPairs) {
    beam.Supports(left, right);
    for (int i = 0; i < 5; ++i) {
      RemoveAllLoads(beam.window);
      beam.Point(typed(1, 9), typed(100, 2000));
      beam.Uniform(typed(0, 4), typed(2, 6), typed(20, 300));
      beam.Add(LoadKind::SlopedLeftZero, {{"A", typed(0, 3)}, {"B", "7"}, {"W", "150"}});
      beam.Add(LoadKind::SlopedRightZero, {{"A", typed(0, 3)}, {"B", "7"}, {"W", "90"}});
      beam.Moment(typed(2, 8), typed(-900, 900));
      beam.Axial("500");
      EXPECT_TRUE(Agrees()) << beam.window.statics.line;
    }
  }
}

TEST_F(BeamStaticsCheck, AgreesWithTheSignsOfCantilevers) {
  beam.Supports(Free, Fixed);
  beam.Point("0", "100");
  EXPECT_TRUE(Agrees());
  EXPECT_NEAR(Difference("Max. Moment").value.statics, 1000, 1e-9);
  EXPECT_NEAR(Difference("Max. Shear").value.statics, 100, 1e-9);
}

TEST_F(BeamStaticsCheck, AgreesWithoutLoads) { EXPECT_TRUE(Agrees()); }

// Two equal peaks: the run takes the first of them.
TEST_F(BeamStaticsCheck, EqualPeaksAreTakenOnTheSideOfTheRun) {
  beam.Uniform("0", "10", "-120");
  EXPECT_TRUE(Agrees());
  EXPECT_NEAR(Difference("Max. Shear").value.statics, -600, 1e-9);
}

// D = 3 E I Disp / L^3 = 30 lbs for 0.01 ft; the moment at the wall is D L, hogging.
TEST_F(BeamStaticsCheck, TellsOfTheSignOfMomentsOfDisplacements) {
  beam.Supports(Fixed, Pinned);
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "0.12"}});
  EXPECT_EQ(LineOfRun(),
            "Differs from statics: Max. Moment by 200 % (300.00, statics -300.00 ft-lbs).");
  EXPECT_LT(Difference("R1").share, 1e-6);
  EXPECT_LT(Difference("Max. Shear").share, 1e-6);
  EXPECT_LT(Difference("Max. Def.").share, 1e-6);
}

// Between two walls the moments of a displacement are as large on both sides, so that only loads
// beside it tell: w L^2 / 12 = 1000 at each wall, and 6 E I Disp / L^2 = 600 of the displacement,
// which hogs at the risen end. The run takes 600 off there, and puts them on at the other wall.
TEST_F(BeamStaticsCheck, TellsOfDisplacementsBesideLoads) {
  beam.Supports(Fixed, Fixed);
  beam.Uniform("0", "10", "120");
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "0.12"}});
  EXPECT_TRUE(Agrees());   // the largest is 1600 on either wall
  beam.Point("2", "500");  // 640 at the left wall, 160 at the right one
  EXPECT_EQ(LineOfRun(),
            "Differs from statics: Max. Moment by 21 % (-1760.05, statics -2240.00 ft-lbs).");
}

TEST_F(BeamStaticsCheck, TellsThatTwoPinsMoveTheBeamAsAWhole) {
  beam.Supports(Fixed, Pinned);
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "0.5"}});
  beam.Supports(Pinned, Pinned);
  EXPECT_EQ(LineOfRun(), "Differs from statics: Max. Def. by 100 % (0.0000, statics -0.5000 in).");
}

TEST_F(BeamStaticsCheck, TellsThatTwoFreeEndsCannotStand) {
  beam.Point("5", "1000");
  beam.Supports(Fixed, Free);
  beam.Supports(Free, Free);  // the run still takes it for a cantilever
  EXPECT_EQ(LineOfRun(), "Mechanism: no equilibrium is possible.");
  EXPECT_TRUE(beam.window.statics.differences.empty());
}

// Half of the load stands beyond the right end.
TEST_F(BeamStaticsCheck, TellsOfALoadThatReachesPastTheEnd) {
  beam.Uniform("4", "2", "100");
  beam.Edit(1, LoadKind::LevelUniform, {{"A", "8"}, {"B", "4"}, {"W", "100"}});
  EXPECT_FALSE(Agrees());
  EXPECT_NEAR(Difference("R2").value.statics, 200 * 9 / 10.0, 1e-9);
}

TEST_F(BeamStaticsCheck, TellsThatALoadOfNegativeLengthActsUpward) {
  beam.Add(LoadKind::LevelUniform, {{"A", "10"}, {"B", "-10"}, {"W", "120"}});
  EXPECT_FALSE(Agrees());
  for (const char* item : {"R1", "R2"}) {
    EXPECT_NEAR(Difference(item).value.lignara, -600, 1e-3);
    EXPECT_NEAR(Difference(item).value.statics, 600, 1e-9);
  }
}

TEST_F(BeamStaticsCheck, SlopedLoadOfNegativeLengthHasItsZeroWhereItWasEntered) {
  beam.Add(LoadKind::SlopedLeftZero, {{"A", "10"}, {"B", "-10"}, {"W", "120"}});
  beam.Run();
  EXPECT_NEAR(Difference("R1").value.statics, 400, 1e-9);  // 120 at the left end
}

// Three stretches have no station at midspan: the moment of the run is 2 / 3 of P L / 4.
TEST_F(BeamStaticsCheck, TellsOfPeaksBetweenStations) {
  beam.Point("5", "1000");
  beam.window.beam.accuracySteps = 3;
  beam.Run();
  EXPECT_NEAR(Difference("Max. Moment").share, 1 / 3.0, 1e-6);
}

TEST_F(BeamStaticsCheck, AStoppedRunLeavesTheLineWithItsResults) {
  beam.Point("5", "1000");
  const std::string line = LineOfRun();
  beam.Supports(Pinned, Free);
  EXPECT_EQ(LineOfRun(), line);
}

TEST_F(BeamStaticsCheck, AFurtherRunLeavesThePanelOpen) {
  beam.Run();
  beam.window.statics.open = true;
  beam.Run();
  EXPECT_TRUE(beam.window.statics.open);
}

TEST_F(BeamStaticsCheck, KeepsStructureAndLoadsForTheTable) {
  beam.Point("5", "1000");
  beam.Run();
  const StaticsCheck& check = beam.window.statics;
  EXPECT_EQ(check.structure.at(1), "Length = 10.00");
  EXPECT_EQ(check.structure.back(), "Moment is about strong axis.");
  EXPECT_EQ(check.loads, (Texts{"Load No. (1)", "Load is point load", "P = 1000.00 lbs",
                                "Location from left = 5.00"}));
}

TEST_F(BeamStaticsCheck, HoldsInMetricUnits) {
  beam.session.unitSystem = 1;
  beam.Point("5", "1000");
  EXPECT_TRUE(Agrees());
}

}  // namespace
}  // namespace lignara
