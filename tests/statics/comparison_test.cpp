#include "statics/comparison.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Rows = std::vector<std::vector<std::string>>;

ComparedValue Force(const char* item, double lignara, double statics) {
  return {item, ComparedKind::MemberForce, lignara, statics};
}

StaticsCheck CheckOf(const std::vector<ComparedValue>& values) {
  StaticsCheck check;
  ShowStatics(check, values);
  return check;
}

TEST(StaticsComparison, NothingIsToldBeforeARun) {
  const StaticsCheck check = CheckOf({});
  EXPECT_EQ(check.verdict, StaticsVerdict::None);
  EXPECT_EQ(check.line, "");
  EXPECT_FALSE(check.Differs());
  EXPECT_TRUE(DifferenceRows(check).empty());
  EXPECT_EQ(UnitsNote(check), "");
}

TEST(StaticsComparison, ADifferenceIsMeasuredAgainstTheLargestOfItsKind) {
  // 1287.21 of 3387.21 is 38.0 %.
  const StaticsCheck check = CheckOf({Force("TL 1", -3000, -3000),
                                      Force("CL 4", 2100, 3387.21),
                                      {"Left Side", ComparedKind::Reaction, 100, 100.1}});
  EXPECT_TRUE(check.Differs());
  EXPECT_EQ(check.line, "Differs from statics: CL 4 by 38 % (2100.00, statics 3387.21 lbs).");
  const Rows rows = {{"CL 4", "2100.00", "3387.21", "38 %"},
                     {"Left Side", "100.00", "100.10", "0.10 %"},
                     {"TL 1", "-3000.00", "-3000.00", "0.00 %"}};
  EXPECT_EQ(DifferenceRows(check), rows);
}

TEST(StaticsComparison, AWrongSignCountsTwice) {
  const StaticsCheck check = CheckOf({Force("CV", -500, 500), Force("TL 1", -1000, -1000)});
  EXPECT_EQ(check.line, "Differs from statics: CV by 100 % (-500.00, statics 500.00 lbs).");
}

TEST(StaticsComparison, OfTwoPeaksAsLargeTheOneOnTheSideOfTheRunIsCompared) {
  EXPECT_EQ(PeakOf({10, -9.96}, -3), -9.96) << "less than half a percent apart";
  EXPECT_EQ(PeakOf({10, -9.96}, 3), 10);
  EXPECT_EQ(PeakOf({10, -9.94}, -3), 10) << "the larger one counts";
  EXPECT_EQ(PeakOf({9.96, -10}, 3), 9.96);
  EXPECT_EQ(PeakOf({2, -10}, 3), -10);
}

TEST(StaticsComparison, HalfAPercentIsAgreement) {
  EXPECT_EQ(CheckOf({Force("CV", 995, 1000)}).line, "Agrees with statics within 0.50 %.");
  EXPECT_EQ(CheckOf({Force("CV", 994.9, 1000)}).line,
            "Differs from statics: CV by 0.51 % (994.90, statics 1000.00 lbs).");
}

TEST(StaticsComparison, WithinIsRoundedUp) {
  EXPECT_EQ(CheckOf({Force("CV", 9998.5, 10000)}).line, "Agrees with statics within 0.02 %.");
  EXPECT_EQ(CheckOf({Force("CV", 10000, 10000)}).line, "Agrees with statics within 0.00 %.");
}

TEST(StaticsComparison, WhatShowsAsZeroIsNoDifference) {
  EXPECT_EQ(CheckOf({Force("CV", 0, 1e-9), Force("VL 1", 0.004, 0)}).line,
            "Agrees with statics within 0.00 %.");
  EXPECT_EQ(CheckOf({{"LN 1", ComparedKind::Deflection, 0, 0.0004}}).line,
            "Agrees with statics within 0.00 %.");
}

TEST(StaticsComparison, AForceWhereStaticsHasNoneIsAWholeDifference) {
  EXPECT_EQ(CheckOf({Force("CV", 250, 0)}).line,
            "Differs from statics: CV by 100 % (250.00, statics 0.00 lbs).");
}

TEST(StaticsComparison, EqualDifferencesKeepTheirOrder) {
  const StaticsCheck check =
      CheckOf({Force("TL 1", 100.0000001, 100), Force("TR 1", 100.0000002, 100)});
  EXPECT_EQ(DifferenceRows(check)[0][0], "TL 1");
}

TEST(StaticsComparison, EachKindHasItsUnit) {
  const auto lineOf = [](ComparedKind kind) { return CheckOf({{"X", kind, 1, 2}}).line; };
  EXPECT_EQ(lineOf(ComparedKind::MemberForce),
            "Differs from statics: X by 50 % (1.00, statics 2.00 lbs).");
  EXPECT_EQ(lineOf(ComparedKind::Reaction),
            "Differs from statics: X by 50 % (1.00, statics 2.00 lbs).");
  EXPECT_EQ(lineOf(ComparedKind::Deflection),
            "Differs from statics: X by 50 % (1.000, statics 2.000 in).");
  EXPECT_EQ(lineOf(ComparedKind::Shear),
            "Differs from statics: X by 50 % (1.00, statics 2.00 lbs).");
  EXPECT_EQ(lineOf(ComparedKind::Moment),
            "Differs from statics: X by 50 % (1.00, statics 2.00 ft-lbs).");
  EXPECT_EQ(lineOf(ComparedKind::EndMoment),
            "Differs from statics: X by 50 % (1.00, statics 2.00 ft-lbs).");
}

TEST(StaticsComparison, SmallPercentsShowTheirDecimals) {
  EXPECT_EQ(DifferenceRows(CheckOf({Force("A", 98.77, 100)}))[0][3], "1.2 %");
  EXPECT_EQ(DifferenceRows(CheckOf({Force("A", 99.2, 100)}))[0][3], "0.80 %");
  EXPECT_EQ(DifferenceRows(CheckOf({Force("A", 88.4, 100)}))[0][3], "12 %");
}

TEST(StaticsComparison, TheUnitsOfAllThatIsComparedAreTold) {
  const StaticsCheck check = CheckOf({{"LN 1", ComparedKind::Deflection, 1, 1}, Force("CV", 1, 1)});
  EXPECT_EQ(UnitsNote(check),
            "Member forces in lbs, deflections in inches; differences as a share of the largest of "
            "their kind.");
}

TEST(StaticsComparison, AMechanismIsTold) {
  StaticsCheck check = CheckOf({Force("CV", 1, 2)});
  check.open = true;
  ShowMechanism(check);
  EXPECT_EQ(check.line, "Mechanism: no equilibrium is possible.");
  EXPECT_TRUE(check.Differs());
  EXPECT_TRUE(check.differences.empty());
  EXPECT_TRUE(check.open);
}

TEST(StaticsComparison, ClearingLeavesThePanelAsItIs) {
  StaticsCheck check = CheckOf({Force("CV", 1, 2)});
  check.structure = {"a truss"};
  check.open = true;
  ClearStatics(check);
  EXPECT_TRUE(check.open);
  EXPECT_EQ(check.line, "");
  EXPECT_TRUE(check.structure.empty());
}

class SavedDifferences : public testing::Test {
 protected:
  std::string SavedText(const StaticsCheck& check, const std::string& title) {
    const std::string path = testing::TempDir() + "saved_differences.txt";
    platform.fileAnswers = {path};
    SaveDifferences(check, title, platform);
    std::ifstream stream(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    stream.close();
    std::filesystem::remove(path);
    return text;
  }

  RecordingPlatform platform;
};

TEST_F(SavedDifferences, HoldTitleStructureLoadsAndTable) {
  StaticsCheck check = CheckOf({Force("CV", 1, 2)});
  check.structure = {"FINK TRUSS"};
  check.loads = {"PT = 100.00"};
  EXPECT_EQ(SavedText(check, "Barn"),
            "Barn\n"
            "Statics Check\n"
            "Differs from statics: CV by 50 % (1.00, statics 2.00 lbs).\n"
            "\n"
            "Structure\n"
            "FINK TRUSS\n"
            "\n"
            "Loads\n"
            "PT = 100.00\n"
            "\n"
            "Item          Lignara       Statics       Difference\n"
            "CV            1.00          2.00          50 %\n"
            "\n"
            "Member forces in lbs; differences as a share of the largest of their kind.\n");
  EXPECT_EQ(platform.filters, std::vector<std::string>{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
}

TEST_F(SavedDifferences, AMechanismHasNoTable) {
  StaticsCheck check;
  ShowMechanism(check);
  EXPECT_EQ(SavedText(check, ""), "Statics Check\nMechanism: no equilibrium is possible.\n\n");
}

TEST_F(SavedDifferences, CancellingWritesNothing) {
  platform.fileAnswers = {std::nullopt};
  SaveDifferences(CheckOf({Force("CV", 1, 2)}), "", platform);
  EXPECT_TRUE(platform.notes.empty());
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace lignara
