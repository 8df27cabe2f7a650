#include "tests/wood/stress_adjustment_fixture.h"

namespace lignara {
namespace {

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

}  // namespace
}  // namespace lignara
