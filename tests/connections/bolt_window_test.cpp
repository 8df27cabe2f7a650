#include "connections/bolt_window.h"

#include <gtest/gtest.h>

#include "tests/connections/opened_bolts.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class BoltWindowTest : public OpenedBolts {};

TEST_F(BoltWindowTest, OpensEmptyAndWithoutAMessage) {
  EXPECT_TRUE(platform.messages.empty());
  for (const std::string* text :
       {&window.L1, &window.L2, &window.L3, &window.A, &window.parallel, &window.perpendicular,
        &window.atAngle, &window.boltStress, &window.woodStress, &window.load, &window.plateSide,
        &window.plateThickness}) {
    EXPECT_EQ(*text, "");
  }
}

TEST_F(BoltWindowTest, OpensWithAllOptionsAtTheirFirstChoice) {
  for (const JointOptionGroup& group : JointOptionGroups()) {
    EXPECT_EQ(window.options.*group.chosen, 0) << group.caption;
  }
}

TEST_F(BoltWindowTest, ListsHaveTheirSizesAndTheFirstIsChosen) {
  EXPECT_EQ(window.bolts.rows, (Texts{"1/2", "5/8", "3/4", "7/8", "1", "1 1/4", "1 1/2"}));
  EXPECT_EQ(window.rods.rows,
            (Texts{"3/8", "1/2", "5/8", "3/4", "7/8", "1", "1 1/8", "1 1/4", "1 3/8", "1 1/2",
                   "1 3/4", "2", "2 1/4", "2 1/2", "2 3/4", "3"}));
  EXPECT_EQ(window.bolts.row, 0);
  EXPECT_EQ(window.rods.row, 0);
}

TEST_F(BoltWindowTest, ReopensAsNew) {
  Choose(&JointOptions::Moisture, 2);
  Compute("2", 3);
  OpenBoltWindow(window, session, platform);
  EXPECT_EQ(window.options.Moisture, 0);
  EXPECT_EQ(window.L1, "");
  EXPECT_EQ(window.parallel, "");
  EXPECT_EQ(window.bolts.row, 0);
}

TEST_F(BoltWindowTest, MissingTableIsOneBoxAndAWindowThatWorks) {
  DataFolder folder;
  session.DataDirectory = folder.DataDirectory();
  OpenBoltWindow(window, session, platform);
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open BV.CSV in " + folder.Folder()});
  EXPECT_EQ(window.bolts.rows.size(), 7U);
  window.boltStress = "20";
  window.woodStress = "400";
  ChooseRod(window, platform, 3);
  EXPECT_EQ(window.load, "6680.00");
}

struct GroupCase {
  std::int16_t JointOptions::*option;
  Texts captions;
};

TEST_F(BoltWindowTest, EachGroupHasItsChoicesInOrder) {
  const GroupCase cases[] = {
      {&JointOptions::ShearKind, {"Double Shear", "Single Shear"}},
      {&JointOptions::Moisture, {"Dry", "Always Wet", "Sometimes Wet"}},
      {&JointOptions::SidePlates, {"Yes", "No"}},
      {&JointOptions::Duration,
       {"Permanent", "10 Year", "2 Month", "7 Day", "Impact", "Wind / Seismic"}},
      {&JointOptions::WoodType,
       {"Douglas Fir-Larch, Southern Pine (Med)", "Douglas Fir-Larch,Southern Pine (Dense)",
        "Southern Pine (Open Grain)"}},
  };
  ASSERT_EQ(JointOptionGroups().size(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const JointOptionGroup& group = JointOptionGroups()[i];
    Texts captions;
    for (const JointChoice& choice : group.choices) captions.emplace_back(choice.caption);
    EXPECT_EQ(group.chosen, cases[i].option);
    EXPECT_EQ(captions, cases[i].captions);
  }
}

TEST_F(BoltWindowTest, ChoiceSetsItsOptionAlone) {
  for (const JointOptionGroup& group : JointOptionGroups()) {
    window.options = JointOptions();
    const int last = static_cast<int>(group.choices.size()) - 1;
    ChooseJointOption(window, group, last);
    for (const JointOptionGroup& other : JointOptionGroups()) {
      EXPECT_EQ(window.options.*other.chosen, other.chosen == group.chosen ? last : 0);
    }
    // Outside of the group nothing changes.
    for (const int outside : {-1, last + 1}) {
      ChooseJointOption(window, group, outside);
      EXPECT_EQ(window.options.*group.chosen, last);
    }
  }
}

TEST_F(BoltWindowTest, ChoicesAndBoltsComputeNothing) {
  Compute("1.5", 0);
  const std::string before = window.parallel;
  Choose(&JointOptions::Duration, 4);
  ChooseBolt(window, 2);
  EXPECT_EQ(window.parallel, before);
  EXPECT_EQ(window.load, "");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BoltWindowTest, BoltsOutsideOfTheListChangeNothing) {
  ChooseBolt(window, 2);
  for (const int row : {-1, 7}) {
    ChooseBolt(window, row);
    EXPECT_EQ(window.bolts.row, 2);
  }
}

TEST_F(BoltWindowTest, SingleShearKeepsTheThirdThicknessUntilCompute) {
  Enter("2", "2", "2");
  Choose(&JointOptions::ShearKind, 1);
  EXPECT_EQ(window.L3, "2");
  ComputeShear(window, platform);
  EXPECT_EQ(window.L3, "");
}

TEST_F(BoltWindowTest, SingleShearEmptiesTheThirdThicknessWhenComputeRefuses) {
  Enter("2", "3", "2");
  Choose(&JointOptions::ShearKind, 1);
  ComputeShear(window, platform);
  EXPECT_EQ(platform.TakeTexts(), Texts{"YOUR L2 AND/OR L3 VALUE MUST BE LESS THAN L1"});
  EXPECT_EQ(window.L3, "");
}

TEST_F(BoltWindowTest, DoubleShearKeepsTheThirdThickness) {
  Compute("2", 0);
  EXPECT_EQ(window.L3, "2");
}

TEST_F(BoltWindowTest, WindowOpensWithPlatesAndPermanentLoad) {
  Compute("1.5", 0);
  // 940 x 1.25 x 0.9 = 1057.5, 430 x 0.9 = 387.
  EXPECT_EQ(Loads(), (Texts{"1057.50", "387.00"}));
}

TEST_F(BoltWindowTest, ShearResultsAreOutOfDateWhileAnyOfTheirInputIsAnother) {
  EXPECT_FALSE(ShearIsOutOfDate(window));
  Compute("1.5", 0);
  EXPECT_FALSE(ShearIsOutOfDate(window));
  for (std::string* text : {&window.L1, &window.L2, &window.L3, &window.A}) {
    const std::string before = *text;
    *text = "1.4";
    EXPECT_TRUE(ShearIsOutOfDate(window));
    *text = before;
    EXPECT_FALSE(ShearIsOutOfDate(window));
  }
  for (const JointOptionGroup& group : JointOptionGroups()) {
    ChooseJointOption(window, group, 1);
    EXPECT_TRUE(ShearIsOutOfDate(window)) << group.caption;
    ChooseJointOption(window, group, 0);
  }
  ChooseBolt(window, 1);
  EXPECT_TRUE(ShearIsOutOfDate(window));
  // A refused computation leaves them so.
  window.L1 = "1";
  ComputeShear(window, platform);
  EXPECT_TRUE(ShearIsOutOfDate(window));
  Compute("2", 1);
  EXPECT_FALSE(ShearIsOutOfDate(window));
}

TEST_F(BoltWindowTest, LengthTooLargeIsToldAndCountsAsNone) {
  Enter("1e39", "1", "1");
  ComputeShear(window, platform);
  EXPECT_EQ(platform.TakeTexts(),
            (Texts{"The number is too large", "YOUR L2 AND/OR L3 VALUE MUST BE LESS THAN L1"}));
}

TEST_F(BoltWindowTest, AngleTooLargeIsToldAndCountsAsNone) {
  for (const char* angle : {"1e39", "-1e39", "1e400"}) {
    window.A = angle;
    Compute("1.5", 0);
    EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"}) << angle;
    // As along the grain: 940 x 1.25 x 0.9.
    EXPECT_EQ(window.atAngle, "1057.50") << angle;
  }
}

}  // namespace
}  // namespace lignara
