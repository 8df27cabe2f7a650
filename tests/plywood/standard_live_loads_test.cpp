#include "tests/plywood/floor_tables.h"
#include "tests/plywood/ply_fixture.h"

namespace lignara {
namespace {

constexpr const char* kRating = "Panel  Rating";
constexpr const char* kSpan = "Actual Span  (in)";
constexpr const char* kAttachment = "Attachment";

class StandardLiveLoadsTest : public PlyFixture {
 protected:
  StandardLiveLoadsTest() : PlyFixture(PlyPanel::StandardLiveLoads) {}

  void Choose3(const std::string& rating, const std::string& span, const std::string& nailing) {
    Choose(kRating, rating);
    Choose(kSpan, span);
    Choose(kAttachment, nailing);
  }
};

TEST_F(StandardLiveLoadsTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Standard Floors and Sheathing (APA Rated Panels)");
  EXPECT_EQ(kind.note, "");
  EXPECT_EQ(Entries(kRating), published::kLiveLoads.columns);
  EXPECT_EQ(Entries(kSpan), published::kLiveLoads.RowHeads());
  EXPECT_EQ(Entries(kAttachment), (Texts{"Nail/Glued", "Nail only"}));
  EXPECT_EQ(Key(kRating).form, PlyKeyForm::List);
  EXPECT_EQ(Key(kSpan).form, PlyKeyForm::List);
  EXPECT_EQ(Key(kAttachment).form, PlyKeyForm::Options);
  EXPECT_EQ(ResultCaptions(),
            (Texts{"Live Load (psf)", "Max. Def.(in)", "Nail Spacing, Int. Sup. (in)",
                   "Nail Spacing, edges (in)", "Nail type"}));
}

TEST_F(StandardLiveLoadsTest, OpensWithNailOnlyAndNothingElseChosen) {
  EXPECT_EQ(Key(kRating).choice.row, -1);
  EXPECT_EQ(Key(kSpan).choice.row, -1);
  EXPECT_EQ(Key(kAttachment).choice.Chosen(), "Nail only");
  EXPECT_EQ(Values(), Texts(5));
}

// The span divided by 360: 12 / 360 = 0.0333, 16 / 360 = 0.0444, 20 / 360 = 0.0556, 24 / 360 =
// 0.0667, 32 / 360 = 0.0889, 40 / 360 = 0.1111, 48 / 360 = 0.1333.
constexpr const char* kDeflections[] = {"0.033", "0.044", "0.056", "0.067",
                                        "0.089", "0.111", "0.133"};
constexpr const char* kLargeNail = "8d Ring or Screw Shank";
constexpr const char* kSmallNail = "6d Ring or Screw Shank";

TEST_F(StandardLiveLoadsTest, EveryCellGivesLoadDeflectionAndNails) {
  for (const std::string nailing : {"Nail only", "Nail/Glued"}) {
    for (std::size_t span = 0; span < 7; ++span) {
      const auto& [spanText, loads] = published::kLiveLoads.rows[span];
      for (std::size_t rating = 0; rating < 9; ++rating) {
        Choose3(published::kLiveLoads.columns[rating], spanText, nailing);
        const bool large = rating >= 2 && rating <= 4;
        const Texts expected =
            loads[rating] == "0"
                ? Texts{"0", "", "", "", ""}
                : Texts{loads[rating], kDeflections[span], rating == 4 && span == 6 ? "6" : "12",
                        nailing == "Nail only" || large ? "6" : "12",
                        large ? kLargeNail : kSmallNail};
        EXPECT_EQ(Values(), expected) << rating << " " << span << " " << nailing;
      }
    }
  }
}

TEST_F(StandardLiveLoadsTest, OnlyRating48AtSpan48HasInteriorNailsAt6) {
  Choose3("48", "48", "Nail only");
  EXPECT_EQ(Values(), (Texts{"55", "0.133", "6", "6", kLargeNail}));
  Choose(kSpan, "40");
  EXPECT_EQ(Values(), (Texts{"100", "0.111", "12", "6", kLargeNail}));
}

TEST_F(StandardLiveLoadsTest, Rating16AtSpan20IsNotRated) {
  Choose3("16", "20", "Nail only");
  EXPECT_EQ(Values(), (Texts{"0", "", "", "", ""}));
}

TEST_F(StandardLiveLoadsTest, OneListAloneGivesNoResult) {
  Choose(kRating, "16");
  EXPECT_EQ(Values(), Texts(5));
  ShowPanel(window, panel);
  Choose(kSpan, "12");
  EXPECT_EQ(Values(), Texts(5));
}

TEST_F(StandardLiveLoadsTest, AnOptionShowsTheNewNailsAtOnce) {
  Choose3("16", "12", "Nail only");
  EXPECT_EQ(Value("Nail Spacing, edges (in)"), "6");
  Choose(kAttachment, "Nail/Glued");
  EXPECT_EQ(Value("Nail Spacing, edges (in)"), "12");
}

TEST_F(StandardLiveLoadsTest, OpeningGoesBackToNailOnly) {
  Choose3("16", "12", "Nail/Glued");
  ShowPanel(window, panel);
  EXPECT_EQ(Key(kAttachment).choice.Chosen(), "Nail only");
}

TEST_F(StandardLiveLoadsTest, ReportsTheChoicesAndTheResults) {
  Choose3("40/20", "20", "Nail/Glued");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "Standard Floors and Sheathing Live Loads\n"
            "\n"
            "Panel Rating is 40/20\n"
            "Panel Span is 20\n"
            "Attached with nails and glue\n"
            "Live Load (psf) is 85\n"
            "Max. Def.(in) is 0.056\n"
            "Nail Spacing, Int. Sup. (in) is 12\n"
            "Nail Spacing, edges (in) is 12\n"
            "Nail type is 6d Ring or Screw Shank\n");
}

TEST_F(StandardLiveLoadsTest, ReportsTheLoadAloneWhereThePanelIsNotRated) {
  Choose3("16", "20", "Nail/Glued");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "Standard Floors and Sheathing Live Loads\n"
            "\n"
            "Panel Rating is 16\n"
            "Panel Span is 20\n"
            "Attached with nails and glue\n"
            "Live Load (psf) is 0\n"
            "Max. Def.(in) is \n"
            "Nail Spacing, Int. Sup. (in) is \n"
            "Nail Spacing, edges (in) is \n"
            "Nail type is \n");
}

TEST_F(StandardLiveLoadsTest, ReportsEmptyValuesWhereThereAreNone) {
  EXPECT_EQ(ReportBytes(),
            "\n"
            "Standard Floors and Sheathing Live Loads\n"
            "\n"
            "Panel Rating is \n"
            "Panel Span is \n"
            "Attached with nails only\n"
            "Live Load (psf) is \n"
            "Max. Def.(in) is \n"
            "Nail Spacing, Int. Sup. (in) is \n"
            "Nail Spacing, edges (in) is \n"
            "Nail type is \n");
}

// The stamp.

Texts DrawnTexts(const Drawing& drawing) {
  Texts texts;
  for (const Shape& shape : drawing.shapes) {
    if (const auto* text = std::get_if<TextShape>(&shape)) texts.push_back(text->text);
  }
  return texts;
}

TEST_F(StandardLiveLoadsTest, TheStampNamesClassAndGradeMarkOfEachRating) {
  const Texts marks = {"16 oc", "20 oc", "24 oc", "32 oc", "48 oc",
                       "24/16", "32/16", "40/20", "48/24"};
  for (std::size_t rating = 0; rating < marks.size(); ++rating) {
    Choose(kRating, static_cast<int>(rating));
    EXPECT_EQ(
        DrawnTexts(State().picture),
        (Texts{"APA", rating < 5 ? "RATED STURD-I-FLOOR" : "RATED SHEATHING", marks[rating]}));
  }
}

TEST_F(StandardLiveLoadsTest, TheSheetIsNotStampedBeforeARatingIsChosen) {
  EXPECT_TRUE(DrawnTexts(State().picture).empty());
  EXPECT_FALSE(State().picture.shapes.empty());
  Choose(kRating, 3);
  ShowPanel(window, panel);
  EXPECT_TRUE(DrawnTexts(State().picture).empty());
}

TEST_F(StandardLiveLoadsTest, TheStampFollowsTheRatingAlone) {
  Choose(kRating, 3);
  const Drawing stamped = State().picture;
  Choose(kSpan, 2);
  Choose(kAttachment, 0);
  EXPECT_EQ(State().picture, stamped);
}

/// A closed box of lines of one colour, as the drawing has them one behind the other.
bool HasBoxAround(const Drawing& drawing, const TextShape& text) {
  bool above = false, below = false, left = false, right = false;
  for (const Shape& shape : drawing.shapes) {
    const auto* line = std::get_if<LineShape>(&shape);
    if (line == nullptr || line->colour != Colour::Black) continue;
    const bool level = line->y1 == line->y2;
    above = above || (level && line->y1 < text.y);
    below = below || (level && line->y1 > text.y + drawing.textHeight);
    left = left || (!level && line->x1 < text.x);
    right = right || (!level && line->x1 > text.x);
  }
  return above && below && left && right;
}

TEST_F(StandardLiveLoadsTest, TheStampHasABorderAroundItsTextsInsideThePicture) {
  Choose(kRating, "24");
  const Drawing& stamp = State().picture;
  for (const Shape& shape : stamp.shapes) {
    if (const auto* text = std::get_if<TextShape>(&shape)) {
      EXPECT_TRUE(HasBoxAround(stamp, *text)) << text->text;
    }
    if (const auto* line = std::get_if<LineShape>(&shape)) {
      for (const double x : {line->x1, line->x2}) EXPECT_TRUE(x > 0 && x < stamp.width) << x;
      for (const double y : {line->y1, line->y2}) EXPECT_TRUE(y > 0 && y < stamp.height) << y;
    }
  }
}

}  // namespace
}  // namespace lignara
