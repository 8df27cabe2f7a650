// Moisture, duration and the user's factors, without a section: sizes and slenderness play no part.
// The published values are those of 24F-V4 DF/DF.

#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class AdjustmentTest : public GlulamTest {
 protected:
  AdjustmentTest() { LoadDouglasFir(); }
};

TEST_F(AdjustmentTest, DryUseWithoutDurationShowsThePublishedValues) {
  EXPECT_EQ(ShownValues(),
            (Texts{"2400.00", "1850.00", "650.00", "650.00", "265.00", "1800000.00", "1450.00",
                   "560.00", "230.00", "92.00", "1600000.00", "1100.00", "1650.00", "1600000.00"}));
}

// 650 x 0.53 = 344.5 -> 345; 265 x 0.875 = 231.875; 560 x 0.53 = 296.8; 230 x 0.875 = 201.25;
// 92 x 0.875 = 80.5 -> 81; 1650 x 0.73 = 1204.5 -> 1205.
TEST_F(AdjustmentTest, WetUseAppliesTheFactorOfEachValue) {
  ChooseWetUse();
  EXPECT_EQ(ShownValues(),
            (Texts{"1920.00", "1480.00", "345.00", "345.00", "232.00", "1499400.00", "1160.00",
                   "297.00", "201.00", "81.00", "1332800.00", "880.00", "1205.00", "1332800.00"}));
}

// 1450 x 0.73 = 1058.5.
TEST_F(AdjustmentTest, ProductsHalfWayGoUp) {
  Load({OwnCombination().With(GlulamValue::Fc, "1450")});
  ChooseWetUse();
  EXPECT_EQ(Shown(GlulamValue::Fc), "1059.00");
  EXPECT_EQ(Shown(GlulamValue::FcxTensionFace), "345.00");
}

TEST_F(AdjustmentTest, DryUseAfterWetUseTakesThePublishedValuesAgain) {
  ChooseWetUse();
  ChooseMoisture(window, session, platform, true);
  EXPECT_EQ(Shown(GlulamValue::FcxTensionFace), "650.00");
}

// 265 x 0.9 = 238.5 -> 239; 92 x 0.9 = 82.8.
TEST_F(AdjustmentTest, MoreThanTenYearsActsOnAllFourteen) {
  Press("> 10 yr.");
  EXPECT_EQ(ShownValues(),
            (Texts{"2160.00", "1665.00", "585.00", "585.00", "239.00", "1620000.00", "1305.00",
                   "504.00", "207.00", "83.00", "1440000.00", "990.00", "1485.00", "1440000.00"}));
}

// 1850 x 1.15 = 2127.5; 650 x 1.15 = 747.5; 265 x 1.15 = 304.75; 1450 x 1.15 = 1667.5;
// 230 x 1.15 = 264.5; 92 x 1.15 = 105.8; 1650 x 1.15 = 1897.5.
TEST_F(AdjustmentTest, TwoMonthsActOnElevenAndLeaveExEyAndFcy) {
  Press("2 Month");
  EXPECT_EQ(ShownValues(), (Texts{"2760.00", "2128.00", "748.00", "748.00", "305.00", "1800000.00",
                                  "1668.00", "560.00", "265.00", "106.00", "1600000.00", "1265.00",
                                  "1898.00", "1840000.00"}));
}

// 1850 x 1.25 = 2312.5; 650 x 1.25 = 812.5; 265 x 1.25 = 331.25; 1450 x 1.25 = 1812.5;
// 230 x 1.25 = 287.5; 1650 x 1.25 = 2062.5.
TEST_F(AdjustmentTest, SevenDaysActOnEleven) {
  Press("7 Day");
  EXPECT_EQ(ShownValues(), (Texts{"3000.00", "2313.00", "813.00", "813.00", "331.00", "1800000.00",
                                  "1813.00", "560.00", "288.00", "115.00", "1600000.00", "1375.00",
                                  "2063.00", "2000000.00"}));
}

// 1850 x 1.33 = 2460.5; 650 x 1.33 = 864.5; 265 x 1.33 = 352.45; 1450 x 1.33 = 1928.5;
// 230 x 1.33 = 305.9; 92 x 1.33 = 122.36; 1650 x 1.33 = 2194.5.
TEST_F(AdjustmentTest, WindOrEarthquakeActsOnEleven) {
  Press("Wind/Earth Qk.");
  EXPECT_EQ(ShownValues(), (Texts{"3192.00", "2461.00", "865.00", "865.00", "352.00", "1800000.00",
                                  "1929.00", "560.00", "306.00", "122.00", "1600000.00", "1463.00",
                                  "2195.00", "2128000.00"}));
}

TEST_F(AdjustmentTest, ImpactDoublesEleven) {
  Press("Impact");
  EXPECT_EQ(ShownValues(), (Texts{"4800.00", "3700.00", "1300.00", "1300.00", "530.00",
                                  "1800000.00", "2900.00", "560.00", "460.00", "184.00",
                                  "1600000.00", "2200.00", "3300.00", "3200000.00"}));
}

// 650 x 0.53 shows 345, and 345 x 1.15 = 396.75; the unrounded 344.5 would give 396.18.
TEST_F(AdjustmentTest, DurationTakesTheRoundedValueOfMoisture) {
  ChooseWetUse();
  Press("2 Month");
  EXPECT_EQ(Shown(GlulamValue::FcxTensionFace), "397.00");
}

TEST_F(AdjustmentTest, ADurationTakenBackLeavesNormalDuration) {
  Press("Impact");
  ChooseDuration(window, session, platform, -1);
  EXPECT_EQ(Shown(GlulamValue::FbxTensionZone), "2400.00");
}

// 305 x 0.85 = 259.25; the unrounded 304.75 would give 259.04.
TEST_F(AdjustmentTest, UserFactorTakesTheRoundedValueOfDuration) {
  Press("2 Month");
  TypeFactor(GlulamValue::Fv, "0.85");
  EXPECT_EQ(Shown(GlulamValue::Fv), "259.25");
  EXPECT_EQ(Shown(GlulamValue::Ft), "1265.00");
}

TEST_F(AdjustmentTest, EachUserFactorActsOnItsOwnValue) {
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    TypeFactor(static_cast<GlulamValue>(i), std::to_string(i + 2));
  }
  EXPECT_EQ(ShownValues(), (Texts{"4800.00", "5550.00", "2600.00", "3250.00", "1590.00",
                                  "12600000.00", "11600.00", "5040.00", "2300.00", "1012.00",
                                  "19200000.00", "14300.00", "23100.00", "24000000.00"}));
}

TEST_F(AdjustmentTest, UserFactorsMayBeZeroNegativeOrNoNumber) {
  TypeFactor(GlulamValue::Fv, "0");
  EXPECT_EQ(Shown(GlulamValue::Fv), "0.00");
  TypeFactor(GlulamValue::Fv, "-0.5");
  EXPECT_EQ(Shown(GlulamValue::Fv), "-132.50");
  TypeFactor(GlulamValue::Fv, "");
  EXPECT_EQ(Shown(GlulamValue::Fv), "0.00");
  TypeFactor(GlulamValue::Fv, "2 or so");
  EXPECT_EQ(Shown(GlulamValue::Fv), "530.00");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(AdjustmentTest, AUserFactorTooLargeIsToldAndNotApplied) {
  TypeFactor(GlulamValue::Fv, "1e39");
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(Shown(GlulamValue::Fv), "265");
  EXPECT_EQ(Shown(GlulamValue::Ft), "1100.00");
}

TEST_F(AdjustmentTest, CellsAreReadAsLeadingNumbers) {
  Load({OwnCombination().With(GlulamValue::Fv, "265 psi").With(GlulamValue::Ft, "none")});
  EXPECT_EQ(Shown(GlulamValue::Fv), "265.00");
  EXPECT_EQ(Shown(GlulamValue::Ft), "0.00");
}

TEST_F(AdjustmentTest, NothingHappensWhileTheListIsEmpty) {
  OpenGlulamWindow(window, session, platform);
  Enter("10", "12", "6");
  Press("2 Month");
  ChooseWetUse();
  EXPECT_EQ(ShownValues(), Texts(kGlulamValues));
  EXPECT_EQ(window.species, "");
  EXPECT_EQ(window.useNote, "");
}

class UseCodeTest : public GlulamTest {
 protected:
  void LoadCode(const std::string& code) {
    OwnCombination combination;
    combination.useCode = code;
    Load({combination});
  }
};

TEST_F(UseCodeTest, One) {
  LoadCode("1");
  EXPECT_EQ(window.useNote, "Not balanced, for dry or wet use.");
  EXPECT_TRUE(window.wetOffered);
}

TEST_F(UseCodeTest, TwoWithdrawsWetUseAndSelectsDryUseBeforeMoistureIsApplied) {
  LoadCode("1");
  ChooseWetUse();
  LoadCode("2");
  EXPECT_EQ(window.useNote,
            "Straight or slightly cambered member for dry use and industrial appearance.");
  EXPECT_FALSE(window.wetOffered);
  EXPECT_TRUE(window.dryUse);
  EXPECT_EQ(Shown(GlulamValue::FbxTensionZone), "2400.00");
}

TEST_F(UseCodeTest, ThreeOffersWetUseAgainButDoesNotSelectIt) {
  LoadCode("2");
  LoadCode("3");
  EXPECT_EQ(window.useNote, "Balanced, equal capacity in both pos. and neg. bending.");
  EXPECT_TRUE(window.wetOffered);
  EXPECT_TRUE(window.dryUse);
}

TEST_F(UseCodeTest, AnotherLeavesNoteAndMoistureAsTheyWere) {
  for (const char* other : {"4", "", " 1", "1.0", "12"}) {
    LoadCode("2");
    LoadCode(other);
    EXPECT_EQ(window.useNote,
              "Straight or slightly cambered member for dry use and industrial appearance.")
        << other;
    EXPECT_FALSE(window.wetOffered) << other;
  }
}

TEST_F(UseCodeTest, OneAndThreeLeaveWetUseSelected) {
  LoadCode("1");
  ChooseWetUse();
  LoadCode("3");
  EXPECT_FALSE(window.dryUse);
  EXPECT_EQ(Shown(GlulamValue::FbxTensionZone), "1920.00");
}

}  // namespace
}  // namespace lignara
