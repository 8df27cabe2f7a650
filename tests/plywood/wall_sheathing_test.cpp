#include "tests/plywood/ply_fixture.h"
#include "tests/plywood/wall_and_roof_tables.h"

namespace lignara {
namespace {

constexpr const char* kApplication = "Application";
constexpr const char* kOrientation = "Panel Orientation";

class WallSheathingTest : public PlyFixture {
 protected:
  WallSheathingTest() : PlyFixture(PlyPanel::WallSheathing) {}

  const PlyKey& List() const { return State().keys.back(); }
};

TEST_F(WallSheathingTest, HasTheKeysOfThePanelAndOpensWithTheFirstApplication) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Wall Sheathing");
  EXPECT_EQ(kind.note, "Nail Spacing is 6\" along edges and 12\" along interior studs.");
  EXPECT_EQ(Entries(kApplication), (Texts{"Standard", "To Support Stucco", "Interior Ply Panels"}));
  EXPECT_EQ(Entries(kOrientation), (Texts{"Vert.", "Horiz."}));
  EXPECT_EQ(Key(kApplication).form, PlyKeyForm::Options);
  EXPECT_EQ(Key(kOrientation).form, PlyKeyForm::Options);
  EXPECT_EQ(List().form, PlyKeyForm::List);
  EXPECT_EQ(Key(kApplication).choice.Chosen(), "Standard");
}

TEST_F(WallSheathingTest, ListAndResultsBearTheCaptionsOfTheApplication) {
  for (int application = 0; application < 3; ++application) {
    Choose(kApplication, application);
    const auto& expected = published::kWallLists[application];
    EXPECT_EQ(List().caption, expected.list);
    EXPECT_EQ(List().choice.rows, expected.entries);
    EXPECT_EQ(ResultCaptions(), expected.results);
  }
}

TEST_F(WallSheathingTest, TheOrientationIsAskedForStuccoOnly) {
  EXPECT_FALSE(Key(kOrientation).shown);
  Choose(kApplication, "To Support Stucco");
  EXPECT_TRUE(Key(kOrientation).shown);
  Choose(kApplication, "Interior Ply Panels");
  EXPECT_FALSE(Key(kOrientation).shown);
}

TEST_F(WallSheathingTest, EveryRowOfEveryApplication) {
  for (const auto& expected : published::kWallCases) {
    Choose(kApplication, expected.application);
    Choose(kOrientation, expected.orientation);
    Choose(List().caption, expected.row);
    EXPECT_EQ(Values(), expected.results)
        << expected.application << " " << expected.orientation << " " << expected.row;
  }
}

TEST_F(WallSheathingTest, AnotherApplicationEmptiesBothResults) {
  Choose(List().caption, 0);
  Choose(kApplication, "Interior Ply Panels");
  EXPECT_EQ(List().choice.row, -1);
  EXPECT_EQ(Values(), Texts(2));
}

TEST_F(WallSheathingTest, AnotherOrientationKeepsTheStudSpacing) {
  Choose(kApplication, "To Support Stucco");
  Choose("Stud Spacing (in)", "24");
  EXPECT_EQ(Values(), (Texts{"19/32", "40/20"}));
  Choose(kOrientation, "Horiz.");
  EXPECT_EQ(List().choice.Chosen(), "24");
  EXPECT_EQ(Values(), (Texts{"7/16", "24/0"}));
}

TEST_F(WallSheathingTest, TheApplicationPressedAgainKeepsTheChoice) {
  Choose(List().caption, "Wall-24 oc");
  Choose(kApplication, "Standard");
  EXPECT_EQ(List().choice.Chosen(), "Wall-24 oc");
  EXPECT_EQ(Value("Stud Spacing(in)"), "24");
}

TEST_F(WallSheathingTest, OpeningGoesBackToTheFirstApplication) {
  Choose(kApplication, "To Support Stucco");
  Choose(kOrientation, "Horiz.");
  ShowPanel(window, panel);
  EXPECT_EQ(Key(kApplication).choice.Chosen(), "Standard");
  EXPECT_FALSE(Key(kOrientation).shown);
  EXPECT_EQ(List().caption, "Ply APA Rating");
}

TEST_F(WallSheathingTest, ReportsStandardPanels) {
  Choose(List().caption, "24/0");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "WALL SHEATHING\n"
            "\n"
            "STANDARD\n"
            "Ply APA Rating is 24/0\n"
            "Nail Size is 6D for thk.<=1/2 or 8D for thk. >1/2\n"
            "Stud Spacing(in) is 24\n");
}

TEST_F(WallSheathingTest, ReportsStuccoWithTheWayThatPanelsStand) {
  Choose(kApplication, "To Support Stucco");
  Choose("Stud Spacing (in)", "16");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "WALL SHEATHING\n"
            "\n"
            "To support Stucco\n"
            "Panels are placed vert.\n"
            "Stud Spacing (in) is 16\n"
            "Min. Panel Thk. (in) is 15/32\n"
            "Panel APA Rating is 32/16\n");
  Choose(kOrientation, "Horiz.");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "WALL SHEATHING\n"
            "\n"
            "To support Stucco\n"
            "Panels are placed horiz.\n"
            "Stud Spacing (in) is 16\n"
            "Min. Panel Thk. (in) is 3/8 OR 5/16\n"
            "Panel APA Rating is 24/0 or Wall-24 oc\n");
}

TEST_F(WallSheathingTest, ReportsInteriorPanelsAlsoWithoutAChoice) {
  Choose(kApplication, "Interior Ply Panels");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "WALL SHEATHING\n"
            "\n"
            "Interior Panels\n"
            "Panel Thk. (in) is \n"
            "Stud Spacing (in) is \n"
            "Nail Size is \n");
}

}  // namespace
}  // namespace lignara
