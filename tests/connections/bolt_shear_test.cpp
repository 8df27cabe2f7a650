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

struct LoadCase {
  const char* thickness;
  int bolt;
  const char* parallel;
  const char* perpendicular;
};

// Medium grain without factors. At the start of a band the loads are those of its own row; the
// comment gives the part of the way and the row at its end. Where a bolt ends in the next
// thickness, the next size up stands in, reduced in the ratio of the diameters.
const LoadCase kLoads[] = {
    {"1.5", 0, "940.00", "430.00"},
    {"1.75", 0, "1055.00", "500.00"},  // 0.5 of the way to 1170, 570
    {"1.99", 0, "1165.40", "567.20"},  // 0.98 of the way to 1170, 570
    {"1.5", 4, "1890.00", "650.00"},
    {"1.75", 4, "2205.00", "760.00"},  // 0.5 of the way to 2520, 870
    {"1.99", 4, "2507.40", "865.60"},  // 0.98 of the way to 2520, 870
    {"2", 0, "1170.00", "570.00"},
    {"2.25", 0, "1215.00", "645.00"},  // 0.5 of the way to 1260, 720
    {"2.49", 0, "1258.20", "717.00"},  // 0.98 of the way to 1260, 720
    {"2", 4, "2520.00", "870.00"},
    {"2.25", 4, "2835.00", "975.00"},   // 0.5 of the way to 3150, 1080
    {"2.49", 4, "3137.40", "1075.80"},  // 0.98 of the way to 3150, 1080
    {"2.5", 0, "1260.00", "720.00"},
    {"2.75", 0, "1265.00", "790.00"},  // 0.5 of the way to 1270, 860
    {"2.99", 0, "1269.80", "857.20"},  // 0.98 of the way to 1270, 860
    {"2.5", 4, "3150.00", "1080.00"},
    {"2.75", 4, "3450.00", "1190.00"},  // 0.5 of the way to 3750, 1300
    {"2.99", 4, "3738.00", "1295.60"},  // 0.98 of the way to 3750, 1300
    {"3", 0, "1270.00", "860.00"},
    {"3.25", 0, "1270.00", "920.00"},  // 0.5 of the way to 1270, 980
    {"3.49", 0, "1270.00", "977.60"},  // 0.98 of the way to 1270, 980
    {"3", 4, "3750.00", "1300.00"},
    {"3.25", 4, "4010.00", "1410.00"},  // 0.5 of the way to 4270, 1520
    {"3.49", 4, "4259.60", "1515.60"},  // 0.98 of the way to 4270, 1520
    {"3.5", 0, "1270.00", "980.00"},
    {"3.75", 0, "1270.00", "995.00"},   // 0.5 of the way to 1270, 1010
    {"3.99", 0, "1270.00", "1009.40"},  // 0.98 of the way to 1270, 1010
    {"3.5", 4, "4270.00", "1520.00"},
    {"3.75", 4, "4470.00", "1625.00"},  // 0.5 of the way to 4670, 1730
    {"3.99", 4, "4662.00", "1725.80"},  // 0.98 of the way to 4670, 1730
    {"4", 0, "1270.00", "1010.00"},
    {"4.25", 0, "1431.00", "1065.00"},  // 0.5 of the way to 1990 x 0.5 / 0.625, 1400 x 0.5 / 0.625
    {"4.49", 0, "1585.56", "1117.80"},  // 0.98 of the way to 1990 x 0.5 / 0.625, 1400 x 0.5 / 0.625
    {"4", 1, "1990.00", "1290.00"},
    {"4.25", 1, "1990.00", "1345.00"},  // 0.5 of the way to 1990, 1400
    {"4.49", 1, "1990.00", "1397.80"},  // 0.98 of the way to 1990, 1400
    {"4", 4, "4670.00", "1730.00"},
    {"4.25", 4, "4800.00", "1840.00"},  // 0.5 of the way to 4930, 1950
    {"4.49", 4, "4924.80", "1945.60"},  // 0.98 of the way to 4930, 1950
    {"4.5", 1, "1990.00", "1400.00"},
    {"5", 1, "1990.00", "1405.00"},     // 0.5 of the way to 1990, 1410
    {"5.49", 1, "1990.00", "1409.90"},  // 0.99 of the way to 1990, 1410
    {"4.5", 5, "6810.00", "2280.00"},
    {"5", 5, "7220.00", "2535.00"},     // 0.5 of the way to 7630, 2790
    {"5.49", 5, "7621.80", "2784.90"},  // 0.99 of the way to 7630, 2790
    {"5.5", 1, "1990.00", "1410.00"},
    {"6.5", 1, "1990.00", "1335.00"},   // 0.5 of the way to 1990, 1260
    {"7.49", 1, "1990.00", "1260.75"},  // 0.995 of the way to 1990, 1260
    {"5.5", 5, "7630.00", "2790.00"},
    {"6.5", 5, "7790.00", "3295.00"},   // 0.5 of the way to 7950, 3800
    {"7.49", 5, "7948.40", "3794.95"},  // 0.995 of the way to 7950, 3800
    {"7.5", 1, "1990.00", "1260.00"},
    {"8.5", 1, "2186.67", "1313.33"},  // 0.5 of the way to 2860 x 0.625 / 0.75, 1640 x 0.625 / 0.75
    {"9.49", 1, "2381.37",
     "1366.13"},  // 0.995 of the way to 2860 x 0.625 / 0.75, 1640 x 0.625 / 0.75
    {"7.5", 2, "2860.00", "1820.00"},
    {"8.5", 2, "2860.00", "1730.00"},   // 0.5 of the way to 2860, 1640
    {"9.49", 2, "2860.00", "1640.90"},  // 0.995 of the way to 2860, 1640
    {"7.5", 5, "7950.00", "3800.00"},
    {"8.5", 5, "7950.00", "4125.00"},   // 0.5 of the way to 7950, 4450
    {"9.49", 5, "7950.00", "4446.75"},  // 0.995 of the way to 7950, 4450
    {"9.5", 2, "2860.00", "1640.00"},
    {"10.5", 2, "3097.14",
     "1702.86"},  // 0.5 of the way to 3890 x 0.75 / 0.875, 2060 x 0.75 / 0.875
    {"11.49", 2, "3331.91",
     "1765.09"},  // 0.995 of the way to 3890 x 0.75 / 0.875, 2060 x 0.75 / 0.875
    {"9.5", 3, "3890.00", "2280.00"},
    {"10.5", 3, "3890.00", "2170.00"},   // 0.5 of the way to 3890, 2060
    {"11.49", 3, "3890.00", "2061.10"},  // 0.995 of the way to 3890, 2060
    {"9.5", 6, "11450.00", "5530.00"},
    {"10.5", 6, "11450.00", "5840.00"},   // 0.5 of the way to 11450, 6150
    {"11.49", 6, "11450.00", "6146.90"},  // 0.995 of the way to 11450, 6150
    {"11.5", 3, "3890.00", "2060.00"},
    {"12.5", 3, "4171.88", "2136.88"},   // 0.5 of the way to 5090 x 0.875 / 1, 2530 x 0.875 / 1
    {"13.49", 3, "4450.93", "2212.98"},  // 0.995 of the way to 5090 x 0.875 / 1, 2530 x 0.875 / 1
    {"11.5", 4, "5090.00", "2770.00"},
    {"12.5", 4, "5090.00", "2650.00"},   // 0.5 of the way to 5090, 2530
    {"13.49", 4, "5090.00", "2531.20"},  // 0.995 of the way to 5090, 2530
    {"11.5", 6, "11450.00", "6150.00"},
    {"12.5", 6, "11450.00", "6095.00"},   // 0.5 of the way to 11450, 6040
    {"13.49", 6, "11450.00", "6040.55"},  // 0.995 of the way to 11450, 6040
    {"13.5", 4, "5090.00", "2530.00"},
    {"13.5", 5, "7950.00", "4170.00"},
    {"13.5", 6, "11450.00", "6040.00"},
};

TEST_F(BoltShearTest, LoadsLieBetweenTheRowsOfTheirBand) {
  for (const LoadCase& c : kLoads) {
    Compute(c.thickness, c.bolt);
    EXPECT_EQ(Loads(), (Texts{c.parallel, c.perpendicular})) << c.thickness << " bolt " << c.bolt;
  }
  EXPECT_TRUE(platform.messages.empty());
}

/// Diameters of the bolts, in.
constexpr double kDiameters[] = {0.5, 0.625, 0.75, 0.875, 1.0, 1.25, 1.5};

TEST_F(BoltShearTest, LowerRowIsOfTheThicknessAndTheBolt) {
  for (const double thickness : {1.5, 2.0, 2.5, 3.0, 3.5, 4.0, 4.5, 5.5, 7.5, 9.5, 11.5, 13.5}) {
    int accepted = 0;
    for (int bolt = 0; bolt < 7; ++bolt) {
      ShearJoint joint;
      joint.L1 = joint.L2 = joint.L3 = thickness;
      joint.BoltIndex = bolt;
      if (ShearRefusal(joint) != nullptr) continue;
      ++accepted;
      const BoltRow* row = window.table.Row(RowsBetween(thickness, bolt).lower);
      ASSERT_NE(row, nullptr);
      EXPECT_EQ(row->Ltable.value(), thickness);
      EXPECT_EQ(row->Dtable.value(), kDiameters[bolt]);
    }
    EXPECT_GE(accepted, 3) << thickness;
  }
}

TEST(RowsBetween, OutsideOfTheBandsThereAreNone) {
  EXPECT_EQ(RowsBetween(13.6, 4).lower, 0);
  EXPECT_EQ(RowsBetween(13.6, 4).upper, 0);
}

TEST(RowsBetween, TheThickestHasNoRowAboveIt) {
  EXPECT_EQ(RowsBetween(13.5, 4).lower, 55);
  EXPECT_EQ(RowsBetween(13.5, 4).upper, 55);
}

TEST_F(BoltShearTest, InterpolationWithTheNextBoltRunsAboveTheTable) {
  // Just below 4 1/2 in the 1/2 in bolt comes near 0.8 x 1990 = 1592 lbs, 25 % above its 1270.
  Compute("4.4999", 0);
  // 1270 + 0.4999 / 0.5 x (1592 - 1270), 1010 + 0.4999 / 0.5 x (1120 - 1010).
  EXPECT_EQ(Loads(), (Texts{"1591.94", "1119.98"}));
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

TEST(LoadAtAngle, StopsAtFiveDecimalsOfPi) {
  // At "90" degrees the angle is 1.570795, so the cosine is 1.3e-6 and not 0.
  GrainLoads loads;
  loads.parallel = 1e30;
  loads.perpendicular = 1;
  EXPECT_NEAR(LoadAtAngle(loads, 90 * (3.14159 / 180)).value(), 1.0, 1e-9);
}

// A table that lacks rows.

class BrokenBoltTableTest : public BoltShearTest {
 protected:
  void OpenOn(const std::string& bytes) {
    folder.Write("BV.CSV", bytes);
    session.DataDirectory = folder.DataDirectory();
    OpenBoltWindow(window, session, platform);
    ChooseNoFactors();
    platform.messages.clear();
  }

  DataFolder folder;
};

TEST_F(BrokenBoltTableTest, RefusalsComeAsEver) {
  OpenOn("");
  Compute("1", 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{kTooThin});
  Compute("4.5", 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{kAboveHalf});
}

TEST_F(BrokenBoltTableTest, MissingRowsAreToldAndGiveNoLoad) {
  OpenOn("");
  Compute("1.5", 0);
  // Hankinson's formula then has nothing to divide by.
  EXPECT_EQ(platform.TakeTexts(),
            (Texts{"There is no element of that number", "Division by zero"}));
  EXPECT_EQ(Loads(), (Texts{"0.00", "0.00"}));
  EXPECT_EQ(window.atAngle, "0.00");
}

TEST_F(BrokenBoltTableTest, RowsReadWork) {
  // Six rows: the 1/2 in bolt from 1 1/2 to 2 in.
  OpenOn(
      "57\na,b,1.5,0.5,1,1,900,400,1,1\n"
      "a,b,1.5,0.625,1,1,1,1,1,1\na,b,1.5,0.75,1,1,1,1,1,1\na,b,1.5,0.875,1,1,1,1,1,1\n"
      "a,b,1.5,1,1,1,1,1,1,1\na,b,2,0.5,1,1,1100,500,1,1\n");
  Compute("1.75", 0);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Loads(), (Texts{"1000.00", "450.00"}));
  Compute("2", 0);
  EXPECT_EQ(platform.TakeTexts().front(), "There is no element of that number");
  EXPECT_EQ(Loads(), (Texts{"0.00", "0.00"}));
}

TEST_F(BrokenBoltTableTest, ThicknessesAndDiametersAreThoseOfTheFile) {
  // Rows of 1 and 3 in: 1.75 in is 0.375 of the way. The upper bolt is twice as thick, so half of
  // its load counts: 900 + 0.375 x (0.5 x 2200 - 900) = 975, 400 + 0.375 x (500 - 400) = 437.5.
  std::string bytes = "6\na,b,1,0.5,1,1,900,400,1,1\n";
  for (int i = 0; i < 4; ++i) bytes += "a,b,1,1,1,1,1,1,1,1\n";
  OpenOn(bytes + "a,b,3,1,1,1,2200,1000,1,1\n");
  Compute("1.75", 0);
  EXPECT_EQ(Loads(), (Texts{"975.00", "437.50"}));
}

TEST_F(BrokenBoltTableTest, RowsOfOneThicknessGiveTheLowerLoads) {
  std::string bytes = "6\n";
  for (int i = 1; i <= 6; ++i) {
    bytes += "a,b,1.5,0.5,1,1," + std::to_string(100 * i) + ",50,1,1\n";
  }
  OpenOn(bytes);
  Compute("1.75", 0);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Loads(), (Texts{"100.00", "50.00"}));
}

TEST_F(BrokenBoltTableTest, BoltWithoutADiameterIsToldAndGivesNoLoad) {
  std::string bytes = "6\n";
  for (int i = 1; i <= 5; ++i) bytes += "a,b,1.5,0.5,1,1,900,400,1,1\n";
  OpenOn(bytes + "a,b,2,0,1,1,900,400,1,1\n");
  Compute("1.75", 0);
  EXPECT_EQ(platform.TakeTexts().front(), "Division by zero");
  EXPECT_EQ(Loads(), (Texts{"0.00", "0.00"}));
}

}  // namespace
}  // namespace lignara
