// The life of the window, its list and its choices.

#include "glulam/glulam_window.h"

#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class GlulamWindowTest : public GlulamTest {};

TEST_F(GlulamWindowTest, OpensDryWithoutDurationLoadTypeListOrValues) {
  EXPECT_TRUE(window.dryUse);
  EXPECT_TRUE(window.wetOffered);
  EXPECT_EQ(window.duration, -1);
  EXPECT_EQ(window.loadType, -1);
  EXPECT_TRUE(window.combinations.rows.empty());
  EXPECT_EQ(ShownValues(), Texts(kGlulamValues));
  EXPECT_EQ(window.depth, "");
  EXPECT_EQ(window.width, "");
}

TEST_F(GlulamWindowTest, OpensWithTheStoredUnbracedLength) {
  EXPECT_EQ(window.length, "0.00");
  session.Member.UnbracedLength = 12.346;
  OpenGlulamWindow(window, session, platform);
  EXPECT_EQ(window.length, "12.35");
}

TEST_F(GlulamWindowTest, LoadingFillsTheListFromTheSymbolsAndChoosesTheFirst) {
  OwnCombination second;
  second.symbol = "24F-V8";
  Load({OwnCombination(), second});
  EXPECT_EQ(window.combinations.rows.size(), 13U);
  EXPECT_EQ(window.combinations.rows[0], "24F-V4");
  EXPECT_EQ(window.combinations.rows[1], "24F-V8");
  EXPECT_EQ(window.combinations.row, 0);
  EXPECT_EQ(Shown(GlulamValue::FbxTensionZone), "2400.00");
}

TEST_F(GlulamWindowTest, ChoosingARowShowsItsCombination) {
  OwnCombination second;
  second.species = "SP/SP";
  second.With(GlulamValue::Fv, "300");
  Load({OwnCombination(), second});
  ChooseCombination(window, session, platform, 1);
  EXPECT_EQ(window.species, "SP/SP");
  EXPECT_EQ(Shown(GlulamValue::Fv), "300.00");
}

TEST_F(GlulamWindowTest, ARowOutsideOfTheListChangesNothing) {
  LoadDouglasFir();
  ChooseCombination(window, session, platform, 3);
  ChooseCombination(window, session, platform, 13);
  ChooseCombination(window, session, platform, -1);
  EXPECT_EQ(window.combinations.row, 3);
}

TEST_F(GlulamWindowTest, LoadingAnotherFileChoosesItsFirstRow) {
  LoadDouglasFir();
  ChooseCombination(window, session, platform, 5);
  LoadDouglasFir();
  EXPECT_EQ(window.combinations.row, 0);
}

TEST_F(GlulamWindowTest, ChoicesStayWhenAnotherCombinationIsChosen) {
  LoadDouglasFir();
  ChooseWetUse();
  Press("2 Month");
  TypeFactor(GlulamValue::Ft, "0.5");
  ChooseCombination(window, session, platform, 1);
  EXPECT_FALSE(window.dryUse);
  EXPECT_EQ(window.duration, 1);
  EXPECT_EQ(Shown(GlulamValue::Ft), "506.00");  // 1100 x 0.8 x 1.15 x 0.5
}

TEST_F(GlulamWindowTest, EmptyingASizeTakesItsReductionsBack) {
  LoadDouglasFir();
  Enter("50", "12", "12");
  EmptySize(window, session, platform, &GlulamWindow::length);
  EXPECT_EQ(window.length, "");
  EXPECT_EQ(Shown(GlulamValue::Fc), "1650.00");
}

TEST_F(GlulamWindowTest, ExitClosesIt) {
  ExitGlulam(platform);
  EXPECT_EQ(platform.calls, Texts{"close GL"});
}

TEST_F(GlulamWindowTest, FixedNotesAreWrittenSo) {
  EXPECT_STREQ(kGlulamFixedNote, "Greater than 4 laminations, Primary load is bending");
  EXPECT_STREQ(kGlulamFactorNote,
               "Note, if the user does not wish to use the database values, he can adjust these "
               "values by entering the user adjustment factors. If he wishes to use his factors as "
               "default, he can save his values as default by clicking the \"Set user adjustment "
               "as default\" button.");
}

}  // namespace
}  // namespace lignara
