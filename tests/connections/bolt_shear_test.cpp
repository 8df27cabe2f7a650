#include "connections/bolt_shear.h"

#include <gtest/gtest.h>

#include "tests/connections/opened_bolts.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kThirdMember = "YOUR L2 AND/OR L3 VALUE MUST BE LESS THAN L1";
constexpr const char* kTooThin =
    "YOUR MINIMUM WOOD THICKNESS NEEDS TO BE AT LEAST 1 1/2 in FOR DOUBLE SHEAR AND 1 in FOR "
    "SINGLE "
    "SHEAR";
constexpr const char* kAboveHalf = "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 1/2 in.";
constexpr const char* kAboveFiveEighths = "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 5/8 in";
constexpr const char* kAboveThreeQuarters = "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 3/4 in";
constexpr const char* kAboveSevenEighths = "FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 7/8 in";
constexpr const char* kTooThick = "THIS PROGRAM IS LIMITED TO AN L VALUE LESS THAN 13.5 in";
constexpr const char* kBelowOneQuarter = "USE A BOLT DIA. SMALLER THAN 1 1/4 in";
constexpr const char* kBelowOneHalf = "USE A BOLT DIA. SMALLER THAN 1 1/2 in";

class BoltShearTest : public OpenedBolts {
 protected:
  BoltShearTest() { ChooseNoFactors(); }
};

struct RefusalCase {
  const char* L1;
  const char* L2;
  const char* L3;
  int bolt;
  const char* message;
};

void ExpectRefusals(BoltWindow& window, RecordingPlatform& platform,
                    std::span<const RefusalCase> cases) {
  for (const RefusalCase& c : cases) {
    window.L1 = c.L1;
    window.L2 = c.L2;
    window.L3 = c.L3;
    ChooseBolt(window, c.bolt);
    ComputeShear(window, platform);
    const Texts expected = c.message == nullptr ? Texts{} : Texts{c.message};
    EXPECT_EQ(platform.TakeTexts(), expected)
        << c.L1 << " " << c.L2 << " " << c.L3 << " bolt " << c.bolt;
  }
}

TEST_F(BoltShearTest, SideMembersMayNotBeThickerThanTheMainOne) {
  const RefusalCase cases[] = {
      {"3", "3", "3", 0, nullptr},
      {"3", "3.01", "3", 0, kThirdMember},
      {"3", "3", "3.01", 0, kThirdMember},
      {"3", "3", "1.5", 0, nullptr},
      // Told ahead of a thickness that is too small, and of one that is too large.
      {"1", "2", "2", 0, kThirdMember},
      {"20", "30", "30", 0, kThirdMember},
      // A fraction is read as far as it makes a number: "5 1/2" is 5.
      {"5 1/2", "5.5", "5.5", 1, kThirdMember},
  };
  ExpectRefusals(window, platform, cases);
}

TEST_F(BoltShearTest, ThirdMemberDoesNotCountInSingleShear) {
  Choose(&JointOptions::ShearKind, 1);
  Enter("2", "2", "99");
  ComputeShear(window, platform);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(window.L3, "");
}

TEST_F(BoltShearTest, LengthsAreComparedIn32Bits) {
  // Beyond the digits of a 32-bit number the two are the same.
  const RefusalCase cases[] = {{"3", "3.00000001", "3", 0, nullptr},
                               {"3", "3.0000005", "3", 0, kThirdMember},
                               {"1.49999999", "1.49999999", "1.49999999", 0, nullptr},
                               {"1.4999999", "1.4999999", "1.4999999", 0, kTooThin}};
  ExpectRefusals(window, platform, cases);
}

struct ThicknessCase {
  bool single;
  double L1, L2, L3;
  double effective;
};

TEST(EffectiveThickness, IsTheLeastThatTheMembersAllow) {
  const ThicknessCase cases[] = {
      {false, 3.5, 3.5, 3.5, 3.5},  {false, 3.5, 1.5, 3.5, 3.0}, {false, 3.5, 3.5, 1.5, 3.0},
      {false, 5.5, 1.5, 1.25, 2.5}, {false, 3.0, 1.5, 1.5, 3.0}, {true, 1.0, 1.0, 0, 2.0},
      {true, 5.5, 1.5, 0, 3.0},     {true, 1.5, 5.5, 0, 3.0},    {true, 0.75, 0.75, 9.0, 1.5},
  };
  for (const ThicknessCase& c : cases) {
    ShearJoint joint;
    joint.options.ShearKind = c.single ? 1 : 0;
    joint.L1 = c.L1;
    joint.L2 = c.L2;
    joint.L3 = c.L3;
    EXPECT_EQ(EffectiveThickness(joint).value(), c.effective) << c.L1 << " " << c.L2 << " " << c.L3;
  }
}

TEST_F(BoltShearTest, ThinMembersAreRefused) {
  const RefusalCase cases[] = {
      {"1.5", "1.5", "1.5", 0, nullptr},
      {"1.5", "0.75", "0.75", 0, nullptr},
      {"1.49", "1.49", "1.49", 0, kTooThin},
      {"3", "0.74", "3", 0, kTooThin},
      {"3", "3", "0.74", 0, kTooThin},
      {"", "", "", 0, kTooThin},
      {"-2", "-3", "-4", 0, kTooThin},
      // Told ahead of a bolt that is too thick.
      {"1", "1", "1", 6, kTooThin},
  };
  ExpectRefusals(window, platform, cases);
}

TEST_F(BoltShearTest, ThinMembersAreRefusedInSingleShear) {
  Choose(&JointOptions::ShearKind, 1);
  const RefusalCase cases[] = {{"0.75", "0.75", "", 0, nullptr},
                               {"0.74", "0.74", "", 0, kTooThin},
                               {"5", "0.74", "", 0, kTooThin}};
  ExpectRefusals(window, platform, cases);
}

struct BoltCase {
  const char* thickness;
  /// For the bolts 1/2, 5/8, 3/4, 7/8, 1, 1 1/4, 1 1/2; null where it is accepted.
  std::array<const char*, 7> messages;
};

TEST_F(BoltShearTest, EachThicknessTakesItsBolts) {
  constexpr const char* ok = nullptr;
  const BoltCase cases[] = {
      {"1.5", {ok, ok, ok, ok, ok, kBelowOneQuarter, kBelowOneQuarter}},
      {"4.49", {ok, ok, ok, ok, ok, kBelowOneQuarter, kBelowOneQuarter}},
      {"4.5", {kAboveHalf, ok, ok, ok, ok, ok, kBelowOneHalf}},
      {"9.49", {kAboveHalf, ok, ok, ok, ok, ok, kBelowOneHalf}},
      {"9.5", {kAboveFiveEighths, kAboveFiveEighths, ok, ok, ok, ok, ok}},
      {"11.49", {kAboveFiveEighths, kAboveFiveEighths, ok, ok, ok, ok, ok}},
      {"11.5", {kAboveThreeQuarters, kAboveThreeQuarters, kAboveThreeQuarters, ok, ok, ok, ok}},
      {"13.49", {kAboveThreeQuarters, kAboveThreeQuarters, kAboveThreeQuarters, ok, ok, ok, ok}},
      {"13.5",
       {kAboveSevenEighths, kAboveSevenEighths, kAboveSevenEighths, kAboveSevenEighths, ok, ok,
        ok}},
      {"13.51", {kTooThick, kTooThick, kTooThick, kTooThick, kTooThick, kTooThick, kTooThick}},
      {"3e38", {kTooThick, kTooThick, kTooThick, kTooThick, kTooThick, kTooThick, kTooThick}},
  };
  for (const BoltCase& c : cases) {
    for (int bolt = 0; bolt < 7; ++bolt) {
      Compute(c.thickness, bolt);
      const char* message = c.messages[static_cast<std::size_t>(bolt)];
      EXPECT_EQ(platform.TakeTexts(), message == nullptr ? Texts{} : Texts{message})
          << c.thickness << " bolt " << bolt;
    }
  }
}

TEST_F(BoltShearTest, RefusalLeavesTheOlderResults) {
  Compute("1.5", 0);
  Compute("1.4", 0);
  EXPECT_EQ(Loads(), (Texts{"940.00", "430.00"}));
  EXPECT_EQ(window.atAngle, "940.00");
}

TEST_F(BoltShearTest, EachWoodHasItsColumns) {
  const Texts loads[] = {{"940.00", "430.00"}, {"1100.00", "500.00"}, {"800.00", "370.00"}};
  for (int wood = 0; wood < 3; ++wood) {
    Choose(&JointOptions::WoodType, wood);
    Compute("1.5", 0);
    EXPECT_EQ(Loads(), loads[wood]) << wood;
  }
}

struct FactorCase {
  std::int16_t JointOptions::*option;
  int choice;
  const char* parallel;
  const char* perpendicular;
};

// On 940 and 430 lbs, one at a time.
TEST_F(BoltShearTest, EachFactorActs) {
  const FactorCase cases[] = {
      {&JointOptions::ShearKind, 0, "940.00", "430.00"},
      {&JointOptions::Moisture, 0, "940.00", "430.00"},
      {&JointOptions::Moisture, 1, "620.40", "283.80"},     // 0.66
      {&JointOptions::Moisture, 2, "705.00", "322.50"},     // 0.75
      {&JointOptions::SidePlates, 0, "1175.00", "430.00"},  // 1.25 on the parallel load alone
      {&JointOptions::SidePlates, 1, "940.00", "430.00"},
      {&JointOptions::Duration, 0, "846.00", "387.00"},  // 0.9
      {&JointOptions::Duration, 1, "940.00", "430.00"},
      {&JointOptions::Duration, 2, "1081.00", "494.50"},  // 1.15
      {&JointOptions::Duration, 3, "1175.00", "537.50"},  // 1.25
      {&JointOptions::Duration, 4, "1880.00", "860.00"},  // 2
      {&JointOptions::Duration, 5, "1250.20", "571.90"},  // 1.33
  };
  for (const FactorCase& c : cases) {
    window.options = JointOptions();
    ChooseNoFactors();
    Choose(c.option, c.choice);
    Compute("1.5", 0);
    EXPECT_EQ(Loads(), (Texts{c.parallel, c.perpendicular})) << c.choice;
  }
}

TEST_F(BoltShearTest, SingleShearHalvesTheLoads) {
  Choose(&JointOptions::ShearKind, 1);
  Compute("0.75", 0);
  EXPECT_EQ(Loads(), (Texts{"470.00", "215.00"}));
}

TEST_F(BoltShearTest, OneInchMembersInSingleShearEnterTheTableAtTwo) {
  Choose(&JointOptions::ShearKind, 1);
  Compute("1", 0);
  // Half of 1170 and 570.
  EXPECT_EQ(Loads(), (Texts{"585.00", "285.00"}));
}

TEST_F(BoltShearTest, AllFactorsActTogether) {
  Choose(&JointOptions::ShearKind, 1);
  Choose(&JointOptions::Moisture, 1);
  Choose(&JointOptions::SidePlates, 0);
  Choose(&JointOptions::Duration, 5);
  Compute("0.75", 0);
  // 940 x 0.5 x 0.66 x 1.25 x 1.33 = 515.7075, 430 x 0.5 x 0.66 x 1.33 = 188.727.
  EXPECT_EQ(Loads(), (Texts{"515.71", "188.73"}));
}

TEST_F(BoltShearTest, LoadAtNoAngleIsTheParallelOne) {
  for (const char* angle : {"0", "", "x"}) {
    window.A = angle;
    Compute("1.5", 0);
    EXPECT_EQ(window.atAngle, "940.00") << angle;
  }
}

TEST_F(BoltShearTest, LoadAtARightAngleIsThePerpendicularOne) {
  window.A = "90";
  for (const int plates : {0, 1}) {
    Choose(&JointOptions::SidePlates, plates);
    Compute("1.5", 0);
    EXPECT_EQ(window.atAngle, "430.00") << plates;
  }
}

TEST_F(BoltShearTest, LoadAtAnAngleFollowsHankinson) {
  window.A = "45";
  Compute("1.5", 0);
  // 940 x 430 / ((940 + 430) / 2) = 404200 / 685 = 590.07.
  EXPECT_EQ(window.atAngle, "590.07");
  window.A = "30";
  Compute("1.5", 0);
  // 404200 / (940 / 4 + 430 x 3 / 4) = 404200 / 557.5 = 725.02.
  EXPECT_EQ(window.atAngle, "725.02");
  window.A = "-30";
  Compute("1.5", 0);
  EXPECT_EQ(window.atAngle, "725.02");
}

TEST(LoadAtAngle, TakesHalfATurnAsFiveDecimalsOfPi) {
  EXPECT_EQ(Float32(Radians(180.0)).value(), 3.14159F);
}

TEST(LoadAtAngle, StopsAtFiveDecimalsOfPi) {
  // At "90" degrees the angle is 1.570795, so the cosine is 1.3e-6 and not 0.
  GrainLoads loads;
  loads.parallel = 1e30;
  loads.perpendicular = 1;
  EXPECT_NEAR(LoadAtAngle(loads, Radians(90.0)).value(), 1.0, 1e-9);
}

}  // namespace
}  // namespace lignara
