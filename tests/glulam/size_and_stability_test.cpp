// Size and slenderness. The values are those of 24F-V4 DF/DF: Fbx 2400 and 1850, Ex 1800000, Fc
// 1650, Ea 1600000.

#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kCompressionZoneNote =
    "You unbraced length is to large for bending in compression zone!";
constexpr const char* kTensionZoneNote =
    "You unbraced length is to large for bending in tension zone!";
constexpr const char* kColumnNote = "You L/D ratio is to high for axial loading";
constexpr const char* kUseNote = "Not balanced, for dry or wet use.";

class StabilityTest : public GlulamTest {
 protected:
  StabilityTest() { LoadDouglasFir(); }

  const std::string& TensionZone() const { return Shown(GlulamValue::FbxTensionZone); }
  const std::string& CompressionZone() const { return Shown(GlulamValue::FbxCompressionZone); }
  const std::string& Fc() const { return Shown(GlulamValue::Fc); }
};

// Size.

TEST_F(StabilityTest, WithoutAllThreeSizesNothingIsReduced) {
  for (const auto& [feet, depth, width] :
       std::vector<std::array<const char*, 3>>{{"", "60", "2"},
                                               {"80", "", "2"},
                                               {"80", "60", ""},
                                               {"0", "60", "2"},
                                               {"80", "0", "2"},
                                               {"80", "60", "0"},
                                               {"-8", "60", "2"},
                                               {"80", "-1", "2"},
                                               {"80", "60", "-2"}}) {
    Enter(feet, depth, width);
    EXPECT_EQ(TensionZone(), "2400.00") << feet << " " << depth << " " << width;
    EXPECT_EQ(Fc(), "1650.00");
    EXPECT_EQ(window.useNote, kUseNote);
  }
  Enter("80", "60", "2");
  EXPECT_EQ(TensionZone(), "0.00");
}

// rb2 = 1.92 x 29 x 12 x 12 / 144 = 55.7: short.
TEST_F(StabilityTest, ADepthOfTwelveHasNoSizeFactor) {
  Enter("29", "12", "12");
  EXPECT_EQ(TensionZone(), "2400.00");
}

// (12 / 12.01)^(1/9) = 0.99991, lu / dmin = 348 / 12.01 = 28.98: x 0.972 = 0.97191; x 2400 =
// 2332.6, x 1850 = 1798.0.
TEST_F(StabilityTest, AboveADepthOfTwelveTheSizeFactorActs) {
  Enter("29", "12.01", "12.01");
  EXPECT_EQ(TensionZone(), "2333.00");
  EXPECT_EQ(CompressionZone(), "1798.00");
}

// The depth of 14 in. is tested, but the width of 6 in. counts: (12/6)^(1/9) = 1.08.
TEST_F(StabilityTest, ASizeFactorAboveOneRaisesNothing) {
  Enter("10", "14", "6");
  EXPECT_EQ(TensionZone(), "2400.00");
  EXPECT_EQ(CompressionZone(), "1850.00");
}

// A width of 48 in. is no reason for a size factor while the depth is 12.
TEST_F(StabilityTest, TheWidthAloneGivesNoSizeFactor) {
  Enter("10", "12", "48");
  EXPECT_EQ(TensionZone(), "2400.00");
}

// (12 / 24)^(1/9) = 0.92587, x 2400 = 2222.1: x 1.063 = 2362.1, x 1.023 = 2273.2, x 1 = 2222.1,
// x 0.984 = 2186.5, x 0.972 = 2159.9.
TEST_F(StabilityTest, ARatioOnTheEdgeOfABandIsInTheLowerBand) {
  struct Case {
    const char* feet;
    const char* shown;
  };
  for (const Case& c :
       {Case{"1", "2362.00"}, Case{"14", "2362.00"}, Case{"14.01", "2273.00"},
        Case{"28", "2273.00"}, Case{"28.01", "2222.00"}, Case{"42", "2222.00"},
        Case{"42.01", "2187.00"}, Case{"56", "2187.00"}, Case{"56.01", "2160.00"}}) {
    Enter(c.feet, "24", "24");
    EXPECT_EQ(TensionZone(), c.shown) << c.feet;
  }
}

// The ratio goes by the lesser side, here the depth: lu / dmin = 168 / 24 = 7.
TEST_F(StabilityTest, TheLesserSideMayBeTheDepth) {
  Enter("14", "24", "30");
  EXPECT_EQ(TensionZone(), "2362.00");
}

// Lateral stability. With b = 48 the square of the slenderness is 23.04 L d / 2304 = L d / 100; for
// d = 10 it is L / 10. There is no size factor.

// K = 3 x 1800000 / (5 x 2400) = 450, of the compression zone 3 x 1800000 / (5 x 1850) = 583.8.
TEST_F(StabilityTest, ASlendernessOfExactlyAHundredLeavesBendingAlone) {
  Enter("1000", "10", "48");
  EXPECT_EQ(TensionZone(), "2400.00");
  EXPECT_EQ(CompressionZone(), "1850.00");
}

// 100.1: 2400 x (1 - 0.333 x (100.1 / 450)^2) = 2360.5, 1850 x (1 - 0.333 x (100.1 / 583.8)^2) =
// 1831.9.
TEST_F(StabilityTest, AboveAHundredTheParabolaBegins) {
  Enter("1001", "10", "48");
  EXPECT_EQ(TensionZone(), "2360.00");
  EXPECT_EQ(CompressionZone(), "1832.00");
}

// 12 by 4 at 10 ft: 230.4 x 12 / 16 = 172.8; 2400 x (1 - 0.333 x 0.147456) = 2282.2; of the
// compression zone (172.8 / 583.78)^2 = 0.087616: 1796.0.
TEST_F(StabilityTest, TheMiddleRangeIsAParabola) {
  Enter("10", "12", "4");
  EXPECT_EQ(TensionZone(), "2282.00");
  EXPECT_EQ(CompressionZone(), "1796.00");
}

// At K itself the parabola holds: 2400 x (1 - 0.333) = 1600.8; Euler would give 0.4 x 1800000 / 450
// = 1600.
TEST_F(StabilityTest, ASlendernessOfExactlyKIsOnTheParabola) {
  Enter("4500", "10", "48");
  EXPECT_EQ(TensionZone(), "1601.00");
}

// 12 by 2 at 10 ft: 230.4 x 12 / 4 = 691.2; 0.4 x 1800000 / 691.2 = 1041.7 for both zones.
TEST_F(StabilityTest, BeyondKEulerHolds) {
  Enter("10", "12", "2");
  EXPECT_EQ(TensionZone(), "1042.00");
  EXPECT_EQ(CompressionZone(), "1042.00");
}

// 0.4 x 1800000 / 2500 = 288.
TEST_F(StabilityTest, ASlendernessOfExactly2500StillFollowsEuler) {
  Enter("25000", "10", "48");
  EXPECT_EQ(TensionZone(), "288.00");
}

// 60 by 2 at 8 ft: lu / b = 48, 184.32 x 60 / 4 = 2764.8.
TEST_F(StabilityTest, Beyond2500TheZonesShowZeroAndTheNoteOfTheLastZoneStands) {
  Enter("8", "60", "2");
  EXPECT_EQ(TensionZone(), "0.00");
  EXPECT_EQ(CompressionZone(), "0.00");
  EXPECT_EQ(window.useNote, kCompressionZoneNote);
}

// With Fbx 350 in the compression zone K = 3085.7, so its parabola reaches beyond 2500:
// 350 x (1 - 0.333 x (2764.8 / 3085.7)^2) = 256.4.
TEST_F(StabilityTest, Beyond2500ButNotBeyondKTheParabolaHoldsWithoutANote) {
  Load({OwnCombination().With(GlulamValue::FbxCompressionZone, "350")});
  Enter("8", "60", "2");
  EXPECT_EQ(TensionZone(), "0.00");
  EXPECT_EQ(CompressionZone(), "256.00");
  EXPECT_EQ(window.useNote, kTensionZoneNote);
}

// Wet use: E 1499400, F 1920, K = 468.6; 1920 x (1 - 0.333 x (172.8 / 468.6)^2) = 1833.0.
TEST_F(StabilityTest, StressAndModulusAreThoseShownAfterMoisture) {
  ChooseWetUse();
  Enter("10", "12", "4");
  EXPECT_EQ(TensionZone(), "1833.00");
}

// 36 by 12 at 22 ft: rb2 = 506.88 x 36 / 144 = 126.72, K = 450: 2400 x (1 - 0.333 x 0.079299) =
// 2336.6. The size factor, 1 x 0.984 for lu / dmin = 22, acts on the rounded 2337: 2299.6; of the
// unrounded stress it would leave 2299.2.
TEST_F(StabilityTest, TheSizeFactorActsOnTheRoundedStressOfStability) {
  Enter("22", "36", "12");
  EXPECT_EQ(TensionZone(), "2300.00");
}

// 16 by 8 at 40 ft: rb2 = 921.6 x 16 / 64 = 230.4: 2400 x (1 - 0.333 x 0.262144) = 2190.49. The
// size factor, (12/8)^(1/9) x 0.972 = 1.0168, would raise it.
TEST_F(StabilityTest, TheLesserOfSizeAndStabilityStands) {
  Enter("40", "16", "8");
  EXPECT_EQ(TensionZone(), "2190.00");
}

TEST_F(StabilityTest, ABendingStressOfZeroIsAFaultOfItsZoneAlone) {
  Load({OwnCombination().With(GlulamValue::FbxTensionZone, "0")});
  Enter("10", "12", "4");
  EXPECT_EQ(platform.TakeTexts(), Texts{"Division by zero"});
  EXPECT_EQ(TensionZone(), "0.00");
  EXPECT_EQ(CompressionZone(), "1796.00");
  EXPECT_EQ(window.useNote, kUseNote);
}

TEST_F(StabilityTest, BothZonesAtZeroAreTwoFaultsAndTheRestGoesOn) {
  Load({OwnCombination()
            .With(GlulamValue::FbxTensionZone, "0")
            .With(GlulamValue::FbxCompressionZone, "-")});
  Enter("51", "12", "12");
  EXPECT_EQ(platform.TakeTexts(), (Texts{"Division by zero", "Division by zero"}));
  EXPECT_EQ(CompressionZone(), "0.00");
  EXPECT_EQ(window.useNote, kColumnNote);
  EXPECT_EQ(Shown(GlulamValue::Ft), "1100.00");
}

TEST_F(StabilityTest, ASizeTooLargeIsToldAndCountsAsNone) {
  Enter("10", "1e39", "6");
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(TensionZone(), "2400.00");
}

// A width that makes the slenderness too large for any number leaves no stress that is safe.
TEST_F(StabilityTest, ASlendernessTooLargeIsToldAndShowsZero) {
  Enter("10", "12", "1e-20");
  const Texts told = platform.TakeTexts();
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front(), "The number is too large");
  EXPECT_EQ(TensionZone(), "0.00");
  EXPECT_EQ(CompressionZone(), "0.00");
}

// Column.

// 12 by 12 at 50 ft: lu / d = 50, 0.3 x 1600000 / 2500 = 192.
TEST_F(StabilityTest, ARatioOfExactlyFiftyStillGivesAColumnStress) {
  Enter("50", "12", "12");
  EXPECT_EQ(Fc(), "192.00");
  EXPECT_EQ(window.useNote, kUseNote);
}

TEST_F(StabilityTest, ARatioAboveFiftyGivesNone) {
  Enter("50.01", "12", "12");
  EXPECT_EQ(Fc(), "0.00");
  EXPECT_EQ(window.useNote, kColumnNote);
}

// 120 / 1e-40 is beyond any number: no column stress is known to be safe, though lu / d is 10 only.
TEST_F(StabilityTest, ARatioTooLargeIsToldAndGivesNone) {
  Enter("10", "12", "1e-40");
  const Texts told = platform.TakeTexts();
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.back(), "The number is too large");
  EXPECT_EQ(Fc(), "0.00");
}

// 12 by 12 at 20 ft: 0.3 x 1600000 / 400 = 1200.
TEST_F(StabilityTest, EulerCapsTheColumnStress) {
  Enter("20", "12", "12");
  EXPECT_EQ(Fc(), "1200.00");
}

// At 17 ft Euler's curve gives 1660.9, at 17.1 ft 1641.5.
TEST_F(StabilityTest, AColumnStressBelowEulerStays) {
  Enter("17", "12", "12");
  EXPECT_EQ(Fc(), "1650.00");
  Enter("17.1", "12", "12");
  EXPECT_EQ(Fc(), "1642.00");
}

// lu / b = 48 is not above 50; lu / d = 16: 0.3 x 1600000 / 256 = 1875.
TEST_F(StabilityTest, TheColumnStressGoesByTheDepthAlsoWhereTheWidthIsLess) {
  Enter("24", "18", "6");
  EXPECT_EQ(Fc(), "1650.00");
}

// > 10 yr.: Ea 1440000, Fc 1485; 12 by 12 at 20 ft: 0.3 x 1440000 / 400 = 1080.
TEST_F(StabilityTest, TheColumnTakesTheModulusShown) {
  Press("> 10 yr.");
  Enter("20", "12", "12");
  EXPECT_EQ(Fc(), "1080.00");
}

TEST_F(StabilityTest, TheColumnNoteStandsOverThatOfBending) {
  Enter("10", "60", "2");
  EXPECT_EQ(window.useNote, kColumnNote);
}

TEST_F(StabilityTest, TheUseNoteComesBackWithTheNextComputation) {
  Enter("10", "60", "2");
  Enter("10", "12", "6");
  EXPECT_EQ(window.useNote, kUseNote);
}

TEST_F(StabilityTest, AFollowingCombinationWithAnotherCodeKeepsTheLengthNote) {
  OwnCombination other;
  other.useCode = "";
  Load({OwnCombination(), other});
  Enter("10", "60", "2");
  ChooseCombination(window, session, platform, 1);
  Enter("10", "12", "6");
  EXPECT_EQ(window.useNote, kColumnNote);
}

// User factors come last: 192 x 0.5.
TEST_F(StabilityTest, UserFactorsActOnTheReducedValues) {
  TypeFactor(GlulamValue::Fc, "0.5");
  Enter("50", "12", "12");
  EXPECT_EQ(Fc(), "96.00");
}

// 2 Month, 12 by 6 at 10 ft: short (76.8), lu / d = 10, nothing reduced.
TEST_F(StabilityTest, TwoMonthsOnTwelveBySix) {
  Press("2 Month");
  Enter("10", "12", "6");
  EXPECT_EQ(TensionZone(), "2760.00");
  EXPECT_EQ(CompressionZone(), "2128.00");
  EXPECT_EQ(Shown(GlulamValue::Ft), "1265.00");
  EXPECT_EQ(Fc(), "1898.00");
}

TEST_F(StabilityTest, TheMainLoadTypeChangesNoStress) {
  Enter("8", "60", "3");
  const Texts before = ShownValues();
  for (const char* type : {"Single Consentrated", "Uniform", "1/3 Point Consentrated"}) {
    Press(type);
    RecomputeAllowables(window, session, platform);
    EXPECT_EQ(ShownValues(), before) << type;
  }
}

TEST_F(StabilityTest, AClickOnALoadTypeRunsNothing) {
  window.depth = "60";
  window.width = "2";
  window.length = "8";
  Press("Uniform");
  EXPECT_EQ(TensionZone(), "2400.00");
}

}  // namespace
}  // namespace lignara
