#include <gtest/gtest.h>

#include "connections/bolt_shear.h"
#include "tests/connections/opened_bolts.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class BoltBandsTest : public OpenedBolts {
 protected:
  BoltBandsTest() { ChooseNoFactors(); }
};

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

TEST_F(BoltBandsTest, LoadsLieBetweenTheRowsOfTheirBand) {
  for (const LoadCase& c : kLoads) {
    Compute(c.thickness, c.bolt);
    EXPECT_EQ(Loads(), (Texts{c.parallel, c.perpendicular})) << c.thickness << " bolt " << c.bolt;
  }
  EXPECT_TRUE(platform.messages.empty());
}

/// Diameters of the bolts, in.
constexpr double kDiameters[] = {0.5, 0.625, 0.75, 0.875, 1.0, 1.25, 1.5};

TEST_F(BoltBandsTest, LowerRowIsOfTheThicknessAndTheBolt) {
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

TEST_F(BoltBandsTest, InterpolationWithTheNextBoltRunsAboveTheTable) {
  // Just below 4 1/2 in the 1/2 in bolt comes near 0.8 x 1990 = 1592 lbs, 25 % above its 1270.
  Compute("4.4999", 0);
  // 1270 + 0.4999 / 0.5 x (1592 - 1270), 1010 + 0.4999 / 0.5 x (1120 - 1010).
  EXPECT_EQ(Loads(), (Texts{"1591.94", "1119.98"}));
}

}  // namespace
}  // namespace lignara
