#include <gtest/gtest.h>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"
#include "wood/wood_data_base.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kNotAbove0 = " An adjustment factor is <= 0, Enter a value!";
constexpr const char* kCalculateFirst = "HIT THE CALCULATE FACTORS BUTTON !";

class FactorPanelTest : public testing::Test {
 protected:
  FactorPanelTest() {
    folder.Write("WWTRK.CSV", "1\nHem-Fir,HF.CSV\n");
    folder.Write("SPTRK.CSV", "1\nHem-Fir,HF.CSV\n");
    folder.Write("MSRTRK.CSV", "1\nHem-Fir,HF.CSV\n");
    folder.Write(
        "HF.CSV",
        "1\nHem-Fir\n2\nNo.1,1000,600,80,400,1200,1500000\nNo.2,100,200,300,400,500,999999\n");
    session.DataDirectory = folder.DataDirectory();
  }

  void Open(WoodFamily family) {
    if (family != WoodFamily::None) {
      ChooseFamily(window, session, platform, family);
      ChooseSpeciesFile(window, session, platform, 1);
      ChooseGrade(window, session, platform, 1);
    }
    OpenFactorPanel(window, platform);
  }
  void Choose(FactorList list, int row) { ChooseFactorRow(window, platform, list, row); }
  void ChooseSize(int width, int thickness) {
    Choose(FactorList::Width, width);
    Choose(FactorList::Thickness, thickness);
  }
  void Answer(FactorPair pair, bool yes) { AnswerFactorPair(window, platform, pair, yes); }
  void Calculate() { CalculateFactors(window, platform); }
  void Accept() { AcceptFactors(window, session, platform); }

  std::array<std::string, kStressKinds>& Multipliers() { return window.panel.multipliers; }
  Texts Selection() const {
    const FinalSelection& s = window.selection;
    return {s.grade, s.fb, s.ft, s.fv, s.fcPerp, s.fcPar, s.e};
  }
  Texts FourBoxes() const {
    const FactorPanel& p = window.panel;
    return {p.repetitive, p.loadDuration, p.shearCondition, p.flatUse};
  }

  DataFolder folder;
  SessionState session;
  RecordingPlatform platform;
  WoodDataBaseWindow window;
};

using Boxes = std::array<std::string, kStressKinds>;

// Opening.

TEST_F(FactorPanelTest, BeforeTheFirstOpening) {
  EXPECT_FALSE(window.panel.open);
  EXPECT_EQ(FourBoxes(), (Texts{"1.0", "1.0", "1.0", "1.0"}));
  EXPECT_EQ(Multipliers(), Boxes());
  for (const ListRows& list : window.panel.lists) EXPECT_EQ(list.rows, Texts{});
}

TEST_F(FactorPanelTest, OpensWithItsDefaults) {
  Open(WoodFamily::Western);
  const FactorPanel& panel = window.panel;
  EXPECT_TRUE(panel.open);
  EXPECT_FALSE(panel.settingUp);
  const std::array<std::size_t, kFactorLists> rows = {8, 4, 10, 8, 4};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(panel.lists[i].rows.size(), rows[i]) << kFactorListCaptions[i];
    EXPECT_EQ(panel.lists[i].rows.front(), "") << kFactorListCaptions[i];
    EXPECT_EQ(panel.lists[i].row, 1) << kFactorListCaptions[i];
  }
  EXPECT_EQ(FourBoxes(), (Texts{"1.0", "0.90", "2.00", "1.0"}));
  EXPECT_EQ(panel.sizeRows, (Texts{"", "FB = 1.50", "FT = 1.50", "FC // =1.15"}));
  EXPECT_EQ(panel.wetRows, Texts{});
  EXPECT_EQ(panel.yes, (std::array<bool, 3>{false, false, false}));
  EXPECT_EQ(Multipliers(), Boxes());
  EXPECT_EQ(panel.factors.Repetitive.value(), 1.0F);
  EXPECT_EQ(panel.factors.LoadDuration.value(), 0.9F);
  EXPECT_EQ(panel.factors.ShearCondition.value(), 2.0F);
  EXPECT_EQ(panel.factors.FlatUse.value(), 1.0F);
  for (const Float32& wet : panel.factors.WetUse) EXPECT_EQ(wet.value(), 1.0F);
}

TEST_F(FactorPanelTest, TextsOfTheLists) {
  Open(WoodFamily::None);
  const FactorPanel& panel = window.panel;
  EXPECT_EQ(panel.List(FactorList::Width).rows.at(7), "Greater than 14 in");
  EXPECT_EQ(panel.List(FactorList::Thickness).rows.at(3), "Greater than 4 in");
  EXPECT_EQ(panel.List(FactorList::Grade).rows.at(9), "Stud");
  EXPECT_EQ(panel.List(FactorList::LoadDuration).rows.at(6), "10 min (earthquake)");
  EXPECT_EQ(panel.List(FactorList::ShearCondition).rows.at(3), "Split >= 1/2 thru");
}

TEST_F(FactorPanelTest, Captions) {
  EXPECT_EQ(
      Texts(kFactorListCaptions.begin(), kFactorListCaptions.end()),
      (Texts{"Member Width", "Member Thk.", "Member Grade", "Load Duration", "Shear Condition"}));
  EXPECT_EQ(Texts(kFactorPairCaptions.begin(), kFactorPairCaptions.end()),
            (Texts{"Repetative Use", "Flat Use", "Moisture > 19%"}));
  EXPECT_EQ(Texts(kMultiplierCaptions.begin(), kMultiplierCaptions.end()),
            (Texts{"Fb", "Ft", "Fv", "Fc parell", "Fc perp.", "E"}));
}

TEST_F(FactorPanelTest, OpeningAgainKeepsNothingButTheMultipliers) {
  Open(WoodFamily::Western);
  ChooseSize(5, 2);
  Choose(FactorList::Grade, 8);
  Choose(FactorList::LoadDuration, 7);
  Choose(FactorList::ShearCondition, 3);
  for (const FactorPair pair :
       {FactorPair::RepetitiveUse, FactorPair::FlatUse, FactorPair::Moisture}) {
    Answer(pair, true);
  }
  window.panel.flatUse = "1.5";
  Calculate();
  const Boxes kept = Multipliers();
  ASSERT_NE(kept, Boxes());
  CancelFactors(window);
  OpenFactorPanel(window, platform);
  EXPECT_EQ(FourBoxes(), (Texts{"1.0", "0.90", "2.00", "1.0"}));
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.50", "FT = 1.50", "FC // =1.15"}));
  EXPECT_EQ(window.panel.wetRows, Texts{});
  EXPECT_EQ(window.panel.yes, (std::array<bool, 3>{false, false, false}));
  EXPECT_EQ(window.panel.factors.WetUse[5].value(), 1.0F);
  EXPECT_EQ(Multipliers(), kept);
}

TEST_F(FactorPanelTest, SetUpMarkBlocksTheSizeLists) {
  Open(WoodFamily::Western);
  window.panel.settingUp = true;
  ChooseSize(4, 2);
  Choose(FactorList::Grade, 8);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.50", "FT = 1.50", "FC // =1.15"}));
  Choose(FactorList::LoadDuration, 2);
  EXPECT_EQ(window.panel.loadDuration, "1.00");
}

TEST_F(FactorPanelTest, CancelHidesAndLeavesTheSelection) {
  Open(WoodFamily::Western);
  Calculate();
  const Texts before = Selection();
  CancelFactors(window);
  EXPECT_FALSE(window.panel.open);
  EXPECT_EQ(Selection(), before);
}

// Size factors.

TEST_F(FactorPanelTest, SizeListBeginsWithABlankRowForWesternWoodsAndWithoutAFamily) {
  Open(WoodFamily::None);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.50", "FT = 1.50", "FC // =1.15"}));
  Open(WoodFamily::SouthernPine);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"FB = 1.00", "FT = 1.00", "FC // =1.00"}));
  Open(WoodFamily::MachineRated);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"FB = 1.00", "FT = 1.00", "FC // =1.00"}));
}

TEST_F(FactorPanelTest, EachSizeListFollowsAClick) {
  Open(WoodFamily::Western);
  Choose(FactorList::Width, 4);  // 8 in by 2 or 3 in
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.20", "FT = 1.20", "FC // =1.05"}));
  Choose(FactorList::Thickness, 2);  // 8 in by 4 in
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.30", "FT = 1.20", "FC // =1.05"}));
  Choose(FactorList::Grade, 9);  // Stud
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.00", "FT = 1.00", "FC // =1.00"}));
  EXPECT_EQ(window.panel.factors.SizeFactor[1].value(), 1.0F);
}

TEST_F(FactorPanelTest, SouthernPineExamples) {
  struct Case {
    int width, thickness;
    Texts rows;
  };
  const Case cases[] = {
      {4, 2, {"FB = 1.10", "FT = 1.00", "FC // =1.00"}},  // 8 in by 4 in
      {6, 1, {"FB = 0.90", "FT = 0.90", "FC // =0.90"}},  // 12 in by 2 or 3 in
      {6, 3, {"FB = 1.00", "FT = 1.00", "FC // =1.00"}},  // 12 in by greater than 4 in
      {2, 3, {"FB = 1.00", "FT = 1.00", "FC // =1.00"}},  // 5 in by greater than 4 in
  };
  Open(WoodFamily::SouthernPine);
  for (const Case& c : cases) {
    ChooseSize(c.width, c.thickness);
    EXPECT_EQ(window.panel.sizeRows, c.rows) << c.width << " " << c.thickness;
  }
}

TEST_F(FactorPanelTest, MachineRatedIgnoresTheLists) {
  Open(WoodFamily::MachineRated);
  ChooseSize(7, 1);
  Choose(FactorList::Grade, 8);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"FB = 1.00", "FT = 1.00", "FC // =1.00"}));
}

TEST_F(FactorPanelTest, BlankRowsGiveOne) {
  Open(WoodFamily::Western);
  Choose(FactorList::Width, 0);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.00", "FT = 1.00", "FC // =1.00"}));
  ChooseSize(1, 1);
  Choose(FactorList::Grade, 0);
  EXPECT_EQ(window.panel.sizeRows, (Texts{"", "FB = 1.00", "FT = 1.00", "FC // =1.00"}));
  Choose(FactorList::LoadDuration, 0);
  EXPECT_EQ(window.panel.loadDuration, "1.00");
  EXPECT_EQ(window.panel.factors.LoadDuration.value(), 1.0F);
  Choose(FactorList::ShearCondition, 0);
  EXPECT_EQ(window.panel.shearCondition, "1.00");
  Answer(FactorPair::FlatUse, true);
  ChooseSize(5, 1);
  EXPECT_EQ(window.panel.flatUse, "1.20");
  Choose(FactorList::Thickness, 0);
  EXPECT_EQ(window.panel.flatUse, "1.00");
}

TEST_F(FactorPanelTest, RowsOutsideOfAListChangeNothing) {
  Open(WoodFamily::Western);
  Choose(FactorList::Width, 8);
  Choose(FactorList::LoadDuration, -1);
  EXPECT_EQ(window.panel.Row(FactorList::Width), 1);
  EXPECT_EQ(window.panel.Row(FactorList::LoadDuration), 1);
  EXPECT_EQ(window.panel.loadDuration, "0.90");
}

// Load duration and shear condition.

TEST_F(FactorPanelTest, LoadDurationShowsItsRowInTwoDecimals) {
  Open(WoodFamily::Western);
  const Texts expected = {"1.00", "0.90", "1.00", "1.15", "1.25", "1.33", "1.60", "2.00"};
  for (int row = 0; row <= 7; ++row) {
    Choose(FactorList::LoadDuration, row);
    EXPECT_EQ(window.panel.loadDuration, expected[static_cast<std::size_t>(row)]);
  }
}

TEST_F(FactorPanelTest, ShearConditionShowsItsRowInTwoDecimals) {
  Open(WoodFamily::Western);
  const Texts expected = {"1.00", "2.00", "1.33", "1.00"};
  for (int row = 0; row <= 3; ++row) {
    Choose(FactorList::ShearCondition, row);
    EXPECT_EQ(window.panel.shearCondition, expected[static_cast<std::size_t>(row)]);
  }
}

// Yes and no.

TEST_F(FactorPanelTest, RepetitiveUse) {
  Open(WoodFamily::Western);
  Answer(FactorPair::RepetitiveUse, true);
  EXPECT_EQ(window.panel.repetitive, "1.15");
  EXPECT_TRUE(window.panel.Yes(FactorPair::RepetitiveUse));
  Answer(FactorPair::RepetitiveUse, false);
  EXPECT_EQ(window.panel.repetitive, "1.00");
  EXPECT_FALSE(window.panel.Yes(FactorPair::RepetitiveUse));
}

TEST_F(FactorPanelTest, FlatUseFollowsWidthAndThicknessWhileYes) {
  Open(WoodFamily::Western);
  Choose(FactorList::Width, 3);
  EXPECT_EQ(window.panel.flatUse, "1.0");
  Answer(FactorPair::FlatUse, true);
  EXPECT_EQ(window.panel.flatUse, "1.15");
  Choose(FactorList::Thickness, 3);
  EXPECT_EQ(window.panel.flatUse, "1.05");
  Choose(FactorList::Width, 7);
  EXPECT_EQ(window.panel.flatUse, "1.10");
  Answer(FactorPair::FlatUse, false);
  EXPECT_EQ(window.panel.flatUse, "1.00");
  Choose(FactorList::Width, 3);
  EXPECT_EQ(window.panel.flatUse, "1.00");
}

TEST_F(FactorPanelTest, GradeDoesNotLookUpFlatUseAgain) {
  Open(WoodFamily::Western);
  Choose(FactorList::Width, 3);
  Answer(FactorPair::FlatUse, true);
  window.panel.flatUse = "1.5";
  Choose(FactorList::Grade, 4);
  EXPECT_EQ(window.panel.flatUse, "1.5");
  Choose(FactorList::Width, 3);
  EXPECT_EQ(window.panel.flatUse, "1.15");
}

TEST_F(FactorPanelTest, MoistureListsTheWetFactors) {
  Open(WoodFamily::Western);
  Answer(FactorPair::Moisture, true);
  EXPECT_EQ(window.panel.wetRows, (Texts{"", "Fb = 0.85", "Ft = 1.00", "Fc // = 0.80", "Fv = 0.97",
                                         "Fc perp = 0.67", "E = 0.90"}));
  const std::array<float, 8> wet = {1.0F, 0.85F, 1.0F, 0.8F, 0.97F, 0.67F, 0.9F, 1.0F};
  for (std::size_t i = 0; i < wet.size(); ++i) {
    EXPECT_EQ(window.panel.factors.WetUse[i].value(), wet[i]) << i;
  }
  Answer(FactorPair::Moisture, true);
  EXPECT_EQ(window.panel.wetRows.size(), 7U);
  Answer(FactorPair::Moisture, false);
  EXPECT_EQ(window.panel.wetRows, Texts{});
  for (const Float32& factor : window.panel.factors.WetUse) EXPECT_EQ(factor.value(), 1.0F);
}

// "Calculate Factors".

TEST_F(FactorPanelTest, DefaultMultipliersOfWesternWoods) {
  Open(WoodFamily::Western);
  Calculate();
  // Fb 1.5 x 0.9; Ft 1.5 x 0.9; Fv 0.9 x 2.0; Fc along the grain 1.15 x 0.9 = 1.035.
  EXPECT_EQ(Multipliers(), (Boxes{"1.35", "1.35", "1.80", "1.04", "1.00", "1.00"}));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FactorPanelTest, AllFactorsTogether) {
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

TEST_F(FactorPanelTest, TypedBoxOverridesTheButtons) {
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

TEST_F(FactorPanelTest, FactorNotAbove0IsRefusedButStored) {
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

TEST_F(FactorPanelTest, FactorTooLargeIsAFaultAndStoresNothing) {
  Open(WoodFamily::Western);
  window.panel.flatUse = "1e60";
  Calculate();
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(window.panel.factors.FlatUse.value(), 1.0F);
  EXPECT_EQ(Multipliers()[0], "1.35");
}

// "OK" of the panel.

TEST_F(FactorPanelTest, OkBeforeCalculateIsRefused) {
  Open(WoodFamily::Western);
  const Texts before = Selection();
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{kCalculateFirst});
  EXPECT_TRUE(window.panel.open);
  EXPECT_EQ(Selection(), before);
}

TEST_F(FactorPanelTest, OkMultipliesWithTheTwoCompressionsCrossed) {
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

TEST_F(FactorPanelTest, WetServiceReachesTheCompressionsCrossed) {
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

TEST_F(FactorPanelTest, TwoDecimalsOfTheBoxesAreWhatCounts) {
  Open(WoodFamily::Western);
  window.panel.loadDuration = "1.25";
  window.panel.repetitive = "1.15";
  ChooseSize(6, 1);  // 12 in: size factor 1.0 on Fb
  Calculate();
  ASSERT_EQ(Multipliers()[0], "1.44");  // of 1.4375
  Accept();
  EXPECT_EQ(window.selection.fb, "1440.00");
}

TEST_F(FactorPanelTest, SecondOkStartsFromTheBaseValues) {
  Open(WoodFamily::Western);
  Calculate();
  Accept();
  const Texts once = Selection();
  EXPECT_EQ(once, (Texts{"No.1", "1350.00", "810.00", "144.00", "416.00", "1200.00", "1500000"}));
  Accept();
  EXPECT_EQ(Selection(), once);
}

TEST_F(FactorPanelTest, ModulusLosesItsFraction) {
  Open(WoodFamily::Western);
  ChooseGrade(window, session, platform, 2);
  Answer(FactorPair::Moisture, true);
  Calculate();
  Accept();
  EXPECT_EQ(window.selection.e, "899999");  // 999999 x 0.9 = 899999.1
}

TEST_F(FactorPanelTest, OkWithTheBlankGradeMultipliesWhatIsShown) {
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

TEST_F(FactorPanelTest, OkWithoutAGradeShowsTheFaultThenMultiplies) {
  Open(WoodFamily::Western);
  ChooseSpeciesFile(window, session, platform, 1);  // no row is chosen now
  Multipliers() = {"2.00", "1.00", "1.00", "1.00", "1.00", "1.00"};
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{"No grade is selected"});
  EXPECT_EQ(window.selection.fb, "2000.00");
  EXPECT_FALSE(window.panel.open);
}

TEST_F(FactorPanelTest, OkWithNothingEverShownGivesZeros) {
  OpenFactorPanel(window, platform);
  Calculate();
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{"No grade is selected"});
  EXPECT_EQ(Selection(), (Texts{"", "0.00", "0.00", "0.00", "0.00", "0.00", "0"}));
}

TEST_F(FactorPanelTest, OkReadsGarbledBoxesAsTheirPrefixOrZero) {
  Open(WoodFamily::Western);
  Multipliers() = {"2x", "abc", "", "-1", ".5", "1e999"};
  Accept();
  // A multiplier too large is a fault: that value stays as shown from its base.
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(Selection(),
            (Texts{"No.1", "2000.00", "0.00", "0.00", "-400.00", "600.00", "1500000"}));
}

TEST_F(FactorPanelTest, AdjustedValuesReachTheMember) {
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
