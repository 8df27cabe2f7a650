#include "wood/final_multipliers.h"

#include "app/number_pattern.h"
#include "tests/wood/stress_adjustment_fixture.h"

namespace lignara {
namespace {

using Boxes = std::array<std::string, kStressKinds>;

constexpr const char* kNotAbove0 = " An adjustment factor is <= 0, Enter a value!";
constexpr const char* kCalculateFirst = "HIT THE CALCULATE FACTORS BUTTON !";

/// Each factor a prime number, so that a product tells what is in it.
AdjustmentFactors TellingFactors() {
  AdjustmentFactors factors;
  factors.Repetitive = 2;
  factors.LoadDuration = 3;
  factors.ShearCondition = 5;
  factors.FlatUse = 7;
  factors.SizeFactor[1] = 11;
  factors.SizeFactor[2] = 13;
  factors.SizeFactor[3] = 17;
  for (std::size_t i = 1; i <= 6; ++i) factors.WetUse[i] = std::array{0, 19, 23, 29, 31, 37, 41}[i];
  return factors;
}

TEST(Multipliers, EachStressHasItsOwnFactors) {
  AdjustmentFactors factors = TellingFactors();
  ComputeMultipliers(factors);
  EXPECT_EQ(factors.MultiplierOf(StressKind::Fb).value(), 2 * 11 * 3 * 7 * 19);
  EXPECT_EQ(factors.MultiplierOf(StressKind::Ft).value(), 13 * 3 * 23);
  EXPECT_EQ(factors.MultiplierOf(StressKind::Fv).value(), 3 * 5 * 31);
  EXPECT_EQ(factors.MultiplierOf(StressKind::FcPar).value(), 17 * 3 * 29);
  EXPECT_EQ(factors.MultiplierOf(StressKind::FcPerp).value(), 37);
  EXPECT_EQ(factors.MultiplierOf(StressKind::E).value(), 41);
}

TEST(Multipliers, AreComputedIn32Bits) {
  AdjustmentFactors factors = TellingFactors();
  factors.LoadDuration = 0.9;
  factors.SizeFactor[2] = 1.05;
  factors.WetUse[2] = 1.0;
  ComputeMultipliers(factors);
  // In 32 bits 0.9 is 0.89999998 and 1.05 is 1.04999995; their product 0.94499993 shows as 0.94,
  // where the decimal product 0.945 would show as 0.95.
  EXPECT_EQ(FormatNumber(factors.MultiplierOf(StressKind::Ft), "0.00"), "0.94");
}

class FinalMultipliersTest : public FactorPanelTest {};

// "Calculate Factors".

TEST_F(FinalMultipliersTest, DefaultMultipliersOfWesternWoods) {
  Open(WoodFamily::Western);
  Calculate();
  // Fb 1.5 x 0.9; Ft 1.5 x 0.9; Fv 0.9 x 2.0; Fc along the grain 1.15 x 0.9 = 1.035.
  EXPECT_EQ(Multipliers(), (Boxes{"1.35", "1.35", "1.80", "1.04", "1.00", "1.00"}));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FinalMultipliersTest, AllFactorsTogether) {
  Open(WoodFamily::Western);
  ChooseSize(3, 1);                       // 6 in: 1.3, 1.3, 1.1
  Choose(FactorList::LoadDuration, 3);    // 1.15
  Choose(FactorList::ShearCondition, 2);  // 1.33
  Answer(FactorPair::RepetitiveUse, true);
  Answer(FactorPair::FlatUse, true);  // 1.15
  Answer(FactorPair::Moisture, true);
  Calculate();
  // Fb 1.15 x 1.3 x 1.15 x 1.15 x 0.85 = 1.6805669; Ft 1.3 x 1.15 x 1.0 = 1.495;
  // Fv 1.15 x 1.33 x 0.97 = 1.483615; Fc along 1.1 x 1.15 x 0.8 = 1.012.
  EXPECT_EQ(Multipliers(), (Boxes{"1.68", "1.50", "1.48", "1.01", "0.67", "0.90"}));
}

TEST_F(FinalMultipliersTest, TypedBoxOverridesTheButtons) {
  Open(WoodFamily::Western);
  window.panel.flatUse = "1.5";
  Calculate();
  // 1.5 x 0.9 x 1.5 = 2.025
  EXPECT_EQ(Multipliers()[0], "2.03");
  EXPECT_EQ(window.panel.factors.FlatUse.value(), 1.5F);
  window.panel.repetitive = " 2 times";
  window.panel.loadDuration = "1e1";
  window.panel.shearCondition = "+3";
  Calculate();
  // Fb 2 x 1.5 x 10 x 1.5; Ft 1.5 x 10; Fv 10 x 3; Fc along the grain 1.15 x 10.
  EXPECT_EQ(Multipliers(), (Boxes{"45.00", "15.00", "30.00", "11.50", "1.00", "1.00"}));
}

TEST_F(FinalMultipliersTest, FactorNotAbove0IsRefusedButStored) {
  std::string FactorPanel::*const boxes[] = {&FactorPanel::repetitive, &FactorPanel::loadDuration,
                                             &FactorPanel::shearCondition, &FactorPanel::flatUse};
  for (std::string FactorPanel::*box : boxes) {
    for (const char* text : {"0", "-1", "", "abc", "-0.001", "."}) {
      Open(WoodFamily::Western);
      window.panel.multipliers.fill("7.00");
      window.panel.*box = text;
      Calculate();
      EXPECT_EQ(platform.TakeTexts(), Texts{kNotAbove0}) << text;
      EXPECT_EQ(Multipliers()[0], "7.00") << text;
    }
  }
  EXPECT_EQ(window.panel.factors.FlatUse.value(), 0.0F);
}

TEST_F(FinalMultipliersTest, FactorTooLargeIsAFaultAndStoresNothing) {
  Open(WoodFamily::Western);
  window.panel.flatUse = "1e60";
  Calculate();
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(window.panel.factors.FlatUse.value(), 1.0F);
  EXPECT_EQ(Multipliers()[0], "1.35");
}

// "OK" of the panel.

TEST_F(FinalMultipliersTest, OkBeforeCalculateIsRefused) {
  Open(WoodFamily::Western);
  const Texts before = Selection();
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{kCalculateFirst});
  EXPECT_TRUE(window.panel.open);
  EXPECT_EQ(Selection(), before);
}

TEST_F(FinalMultipliersTest, OkMultipliesWithTheTwoCompressionsCrossed) {
  Open(WoodFamily::Western);
  Multipliers() = {"1.10", "1.20", "1.30", "1.40", "1.50", "1.60"};
  Accept();
  // Fb 1000 x 1.1; Ft 600 x 1.2; Fv 80 x 1.3; across 400 x 1.4 (the box of along); along
  // 1200 x 1.5 (the box of across); E 1500000 x 1.6.
  EXPECT_EQ(Selection(),
            (Texts{"No.1", "1100.00", "720.00", "104.00", "560.00", "1800.00", "2400000"}));
  EXPECT_FALSE(window.panel.open);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FinalMultipliersTest, WetServiceReachesTheCompressionsCrossed) {
  Open(WoodFamily::MachineRated);
  Choose(FactorList::LoadDuration, 2);  // 1.0
  Answer(FactorPair::Moisture, true);
  Calculate();
  EXPECT_EQ(Multipliers(), (Boxes{"0.85", "1.00", "1.94", "0.80", "0.67", "0.90"}));
  Accept();
  // Across the grain 400 x 0.80, along the grain 1200 x 0.67.
  EXPECT_EQ(Selection(),
            (Texts{"No.1", "850.00", "600.00", "155.20", "320.00", "804.00", "1350000"}));
}

TEST_F(FinalMultipliersTest, TwoDecimalsOfTheBoxesAreWhatCounts) {
  Open(WoodFamily::Western);
  window.panel.loadDuration = "1.25";
  window.panel.repetitive = "1.15";
  ChooseSize(6, 1);  // 12 in: size factor 1.0 on Fb
  Calculate();
  ASSERT_EQ(Multipliers()[0], "1.44");  // of 1.4375
  Accept();
  EXPECT_EQ(window.selection.fb, "1440.00");
}

TEST_F(FinalMultipliersTest, SecondOkStartsFromTheBaseValues) {
  Open(WoodFamily::Western);
  Calculate();
  Accept();
  const Texts once = Selection();
  EXPECT_EQ(once, (Texts{"No.1", "1350.00", "810.00", "144.00", "416.00", "1200.00", "1500000"}));
  Accept();
  EXPECT_EQ(Selection(), once);
}

TEST_F(FinalMultipliersTest, ModulusLosesItsFraction) {
  Open(WoodFamily::Western);
  ChooseGrade(window, session, platform, 2);
  Answer(FactorPair::Moisture, true);
  Calculate();
  Accept();
  EXPECT_EQ(window.selection.e, "899999");  // 999999 x 0.9 = 899999.1
}

TEST_F(FinalMultipliersTest, OkWithTheBlankGradeMultipliesWhatIsShown) {
  Open(WoodFamily::Western);
  ChooseGrade(window, session, platform, 0);
  Multipliers() = {"2.00", "1.00", "1.00", "1.00", "1.00", "1.00"};
  Accept();
  EXPECT_EQ(window.selection.fb, "2000.00");
  Accept();
  EXPECT_EQ(window.selection.fb, "4000.00");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(window.panel.open);
}

TEST_F(FinalMultipliersTest, OkWithoutAGradeShowsTheFaultThenMultiplies) {
  Open(WoodFamily::Western);
  ChooseSpeciesFile(window, session, platform, 1);  // no row is chosen now
  Multipliers() = {"2.00", "1.00", "1.00", "1.00", "1.00", "1.00"};
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{"No grade is selected"});
  EXPECT_EQ(window.selection.fb, "2000.00");
  EXPECT_FALSE(window.panel.open);
}

TEST_F(FinalMultipliersTest, OkWithNothingEverShownGivesZeros) {
  OpenFactorPanel(window, platform);
  Calculate();
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{"No grade is selected"});
  EXPECT_EQ(Selection(), (Texts{"", "0.00", "0.00", "0.00", "0.00", "0.00", "0"}));
}

TEST_F(FinalMultipliersTest, OkReadsGarbledBoxesAsTheirPrefixOrZero) {
  Open(WoodFamily::Western);
  Multipliers() = {"2x", "abc", "", "-1", ".5", "1e999"};
  Accept();
  // A multiplier too large is a fault: that value stays as shown from its base.
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(Selection(),
            (Texts{"No.1", "2000.00", "0.00", "0.00", "-400.00", "600.00", "1500000"}));
}

TEST_F(FinalMultipliersTest, AdjustedValuesReachTheMember) {
  Open(WoodFamily::Western);
  Calculate();
  Accept();
  AcceptSelection(window, session, platform);
  EXPECT_EQ(session.Member.AllowFb.value(), 1350.0F);
  EXPECT_EQ(session.Member.AllowFcPerp.value(), 416.0F);
  EXPECT_EQ(session.Member.AllowFc.value(), 1200.0F);
}

}  // namespace
}  // namespace lignara
