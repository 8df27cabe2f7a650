#include "tests/plywood/floor_tables.h"
#include "tests/plywood/ply_fixture.h"

namespace lignara {
namespace {

constexpr const char* kRating = "Panel Rating";
constexpr const char* kFloor = "Supporting Floor Type";

class SubFloorsTest : public PlyFixture {
 protected:
  SubFloorsTest() : PlyFixture(PlyPanel::SubFloors) {}
};

TEST_F(SubFloorsTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Sub Floors (APA Rated Sheathing)");
  EXPECT_EQ(kind.note, "All nail spacing is 6\" at edges and 12\" along internal joists.");
  EXPECT_EQ(Entries(kRating), (Texts{"24/16", "32/16", "40/20", "48/24"}));
  EXPECT_EQ(Entries(kFloor), (Texts{"3/4\" Wood Strip Flooring at Rt. angle  to joists.",
                                    "1 1/2\" Lightweight Concrete", "Other ", "Tile"}));
  EXPECT_EQ(Key(kRating).form, PlyKeyForm::List);
  EXPECT_EQ(Key(kFloor).form, PlyKeyForm::Options);
  EXPECT_EQ(ResultCaptions(), (Texts{"Min. Panel Thickness (in)", "Max. Span bet. Joists (in)",
                                     "Nail Size and Type"}));
}

TEST_F(SubFloorsTest, EveryRatingUnderEveryFloor) {
  for (const auto& expected : published::kSubFloors) {
    Choose(kRating, expected.rating);
    Choose(kFloor, expected.floor);
    EXPECT_EQ(Values(), expected.results) << expected.rating << " " << expected.floor;
  }
}

TEST_F(SubFloorsTest, TileOnThe24_16PanelIsNotAvailable) {
  Choose(kFloor, "Tile");
  Choose(kRating, "24/16");
  EXPECT_EQ(Values(), (Texts{"NA", "NA", "NA"}));
}

TEST_F(SubFloorsTest, TheFloorAloneGivesNoResult) {
  Choose(kFloor, "Tile");
  EXPECT_EQ(Values(), Texts(3));
}

TEST_F(SubFloorsTest, ReportsTheFloorOnALineOfItsOwn) {
  Choose(kRating, "32/16");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "SUB FLOORING\n"
            "\n"
            "Panel Rating is 32/16\n"
            "Panel supports the following floor type:\n"
            "3/4\" Wood Strip Flooring at Rt. angle  to joists.\n"
            "Min. Panel Thickness (in) is 15/32\n"
            "Max. Span bet. Joists (in) is 24\n"
            "Nail Size and Type is 8D COMMON\n");
}

TEST_F(SubFloorsTest, ReportsNAThreeTimesUnderTileOnThe24_16Panel) {
  Choose(kRating, "24/16");
  Choose(kFloor, "Tile");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "SUB FLOORING\n"
            "\n"
            "Panel Rating is 24/16\n"
            "Panel supports the following floor type:\n"
            "Tile\n"
            "Min. Panel Thickness (in) is NA\n"
            "Max. Span bet. Joists (in) is NA\n"
            "Nail Size and Type is NA\n");
}

TEST_F(SubFloorsTest, ReportsEachFloorAsItsOptionReads) {
  for (const std::string floor : {"1 1/2\" Lightweight Concrete", "Other ", "Tile"}) {
    Choose(kFloor, floor);
    EXPECT_EQ(ReportBytes(),
              "\nSUB FLOORING\n\nPanel Rating is \n"
              "Panel supports the following floor type:\n" +
                  floor +
                  "\nMin. Panel Thickness (in) is \n"
                  "Max. Span bet. Joists (in) is \nNail Size and Type is \n");
  }
}

}  // namespace
}  // namespace lignara
