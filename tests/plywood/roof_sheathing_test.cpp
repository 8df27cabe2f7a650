#include "tests/plywood/ply_fixture.h"
#include "tests/plywood/wall_and_roof_tables.h"

namespace lignara {
namespace {

constexpr const char* kOrientation = "Orientation";
constexpr const char* kGrade = "Grade";
constexpr const char* kSpacing = "Support Spacing";
constexpr const char* kEdge = "Edge Support";
constexpr const char* kRating = "Panel Rating";
constexpr int kAcross = 0;
constexpr int kAlong = 1;

const Texts kNotes1And2 = {"NOTE 1:", "Loads are based on 10 psf dead load.",
                           "NOTE 2:", "Values assume panels are at least 2 ft wide."};
const Texts kAllNotes = {"NOTE 1:",     "Loads are based on 10 psf dead load.",
                         "NOTE 2:",     "Values assume panels are at least 2 ft wide.",
                         "NOTE 3:",     "Edge support required. Tounge & Groove, panel clips",
                         "or blocking."};

/// The table of a grade laid across the supports.
struct AcrossTable {
  const published::Table& loads;
  const Texts& spansEdge;
  const Texts& spansNoEdge;
  const Texts& thickness;
  const Texts& nails;
};

const AcrossTable kGrades[] = {
    {published::kRoofLoads1, published::kRoofSpansEdge1, published::kRoofSpansNoEdge1,
     published::kRoofThickness1, published::kRoofNails1},
    {published::kRoofLoads2, published::kRoofSpansEdge2, published::kRoofSpansNoEdge2,
     published::kRoofThickness2, published::kRoofNails2}};

class RoofSheathingTest : public PlyFixture {
 protected:
  RoofSheathingTest() : PlyFixture(PlyPanel::RoofSheathing) {}

  void ChooseLists(int orientation, int grade, int rating) {
    Choose(kOrientation, orientation);
    Choose(kGrade, grade);
    Choose(kRating, rating);
  }
};

TEST_F(RoofSheathingTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Roof Sheathing");
  EXPECT_EQ(kind.note, "");
  EXPECT_EQ(kind.linesCaption, "Notes:");
  EXPECT_EQ(Entries(kOrientation),
            (Texts{"Long dim. perp. to supports", "Long dim. parallel to supports"}));
  EXPECT_EQ(Entries(kSpacing), published::kRoofLoads1.RowHeads());
  EXPECT_EQ(Entries(kSpacing), published::kRoofLoads2.RowHeads());
  EXPECT_EQ(Entries(kEdge), (Texts{"Edge Support", "No Edge Support"}));
  for (const char* key : {kOrientation, kGrade, kSpacing, kEdge}) {
    EXPECT_EQ(Key(key).form, PlyKeyForm::Options) << key;
  }
  EXPECT_EQ(Key(kRating).form, PlyKeyForm::List);
  EXPECT_EQ(ResultCaptions(), (Texts{"Allowable Live Load (psf)", "Max. Panel Span (in)",
                                     "Min. Panel Thickness (in)", "Nail Size"}));
}

TEST_F(RoofSheathingTest, GradesAndRatingsFollowTheOrientation) {
  for (const auto& expected : published::kRoofLists) {
    Choose(kOrientation, expected.orientation);
    Choose(kGrade, expected.grade);
    EXPECT_EQ(Key(kGrade).choice.Chosen(), expected.caption);
    EXPECT_EQ(Entries(kRating), expected.ratings);
    EXPECT_EQ(Key(kSpacing).shown, expected.orientation == kAcross);
    EXPECT_EQ(Key(kEdge).shown, expected.orientation == kAcross);
  }
}

TEST_F(RoofSheathingTest, EveryCellAcrossTheSupports) {
  for (int grade = 0; grade < 2; ++grade) {
    const AcrossTable& table = kGrades[grade];
    for (std::size_t rating = 0; rating < table.loads.columns.size(); ++rating) {
      ChooseLists(kAcross, grade, static_cast<int>(rating));
      EXPECT_EQ(Key(kRating).choice.Chosen(), table.loads.columns[rating]);
      for (const auto& [spacing, loads] : table.loads.rows) {
        Choose(kSpacing, spacing);
        for (const bool edge : {true, false}) {
          Choose(kEdge, edge ? 0 : 1);
          const Texts& spans = edge ? table.spansEdge : table.spansNoEdge;
          EXPECT_EQ(Values(), (Texts{loads[rating], spans[rating], table.thickness[rating],
                                     table.nails[rating]}))
              << grade << " " << rating << " " << spacing << " " << edge;
        }
      }
    }
  }
}

TEST_F(RoofSheathingTest, EveryRowAlongTheSupports) {
  for (const auto& expected : published::kRoofAlong) {
    ChooseLists(kAlong, expected.grade, expected.row);
    EXPECT_EQ(Values(), expected.results) << expected.grade << " " << expected.row;
  }
}

TEST_F(RoofSheathingTest, AlongTheSupportsSpacingAndEdgesDoNotCount) {
  Choose(kSpacing, "60");
  Choose(kEdge, "No Edge Support");
  for (const auto& expected : published::kRoofAlong) {
    ChooseLists(kAlong, expected.grade, expected.row);
    EXPECT_EQ(Values(), expected.results) << expected.grade << " " << expected.row;
  }
}

TEST_F(RoofSheathingTest, Rating12_0At16CarriesNothingButHasSpanAndThickness) {
  ChooseLists(kAcross, 0, 0);
  Choose(kSpacing, "16");
  EXPECT_EQ(Values(), (Texts{"0", "12", "5/16", "6D"}));
}

// What the help tells: load and span are looked up each by its own key.
TEST_F(RoofSheathingTest, TenLoadsStandBeyondTheSpanThatIsShown) {
  Texts beyond;
  for (int grade = 0; grade < 2; ++grade) {
    for (const char* edge : {"Edge Support", "No Edge Support"}) {
      Choose(kGrade, grade);
      Choose(kEdge, edge);
      for (const std::string& rating : Texts(Entries(kRating))) {
        for (const std::string& spacing : Texts(Entries(kSpacing))) {
          Choose(kRating, rating);
          Choose(kSpacing, spacing);
          const bool farther = std::stoi(spacing) > std::stoi(Value("Max. Panel Span (in)"));
          if (!farther || Value("Allowable Live Load (psf)") == "0") continue;
          beyond.push_back(std::string(edge) + ": " + rating + " at " + spacing);
        }
      }
    }
  }
  EXPECT_EQ(beyond, (Texts{"No Edge Support: 24/0 at 24", "No Edge Support: 32/16 at 32",
                           "No Edge Support: 40/20 at 40", "No Edge Support: 48/24 at 40",
                           "No Edge Support: 48/24 at 48", "Edge Support: 24 oc at 48",
                           "No Edge Support: 24 oc at 40", "No Edge Support: 24 oc at 48",
                           "No Edge Support: 32 oc at 48", "No Edge Support: 48 oc at 60"}));
}

TEST_F(RoofSheathingTest, Note3StandsWhereEdgesAreSupportedOrPanelsLieAlong) {
  EXPECT_EQ(Lines(), kAllNotes);  // also without a rating
  Choose(kEdge, "No Edge Support");
  EXPECT_EQ(Lines(), kNotes1And2);
  Choose(kRating, 0);
  EXPECT_EQ(Lines(), kNotes1And2);
  Choose(kOrientation, kAlong);
  EXPECT_EQ(Lines(), kAllNotes);
  Choose(kOrientation, kAcross);
  EXPECT_EQ(Lines(), kNotes1And2);
  Choose(kEdge, "Edge Support");
  EXPECT_EQ(Lines(), kAllNotes);
}

TEST_F(RoofSheathingTest, AnotherOrientationKeepsTheGradeAndEmptiesTheResults) {
  ChooseLists(kAcross, 1, 2);
  Choose(kOrientation, kAlong);
  EXPECT_EQ(Key(kGrade).choice.row, 1);
  EXPECT_EQ(Key(kRating).choice.row, -1);
  EXPECT_EQ(Values(), Texts(4));
}

TEST_F(RoofSheathingTest, AnotherOrientationAndBackKeepsSpacingAndEdges) {
  Choose(kSpacing, "48");
  Choose(kEdge, "No Edge Support");
  Choose(kOrientation, kAlong);
  Choose(kOrientation, kAcross);
  EXPECT_EQ(Key(kSpacing).choice.Chosen(), "48");
  EXPECT_EQ(Key(kEdge).choice.Chosen(), "No Edge Support");
}

TEST_F(RoofSheathingTest, AnotherGradeEmptiesTheResults) {
  ChooseLists(kAlong, 0, 2);
  Choose(kGrade, 1);
  EXPECT_EQ(Key(kRating).choice.row, -1);
  EXPECT_EQ(Values(), Texts(4));
}

TEST_F(RoofSheathingTest, ReportsAPanelAcrossItsSupports) {
  ChooseLists(kAcross, 1, 2);
  Choose(kSpacing, "48");
  Choose(kEdge, "No Edge Support");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "ROOF SHEATHING\n"
            "\n"
            "Long dim. is perp. to supports\n"
            "APA Rated Sturd-I-Floor\n"
            "Panel edges are not supported.\n"
            "Support Spacing is 48 inches\n"
            "Panel Rating is 24 oc\n"
            "Max. Live Load is 25 psf\n"
            "Min. panel thickness is 23/32 inches\n"
            "Nail size is 8D\n"
            "Max. Support Span / Spacing is 36\n"
            "NOTES:\n"
            "NOTE 1:\n"
            "Loads are based on 10 psf dead load.\n"
            "NOTE 2:\n"
            "Values assume panels are at least 2 ft wide.\n");
}

TEST_F(RoofSheathingTest, ReportsAPanelAlongItsSupportsWithoutSpacingAndEdges) {
  ChooseLists(kAlong, 1, 0);
  EXPECT_EQ(ReportBytes(),
            "\n"
            "ROOF SHEATHING\n"
            "\n"
            "Long dim. is parallel. to supports\n"
            "APA Rated Sheathing\n"
            "Panel Rating is 24/20, 24/16\n"
            "Max. Live Load is 40 psf\n"
            "Min. panel thickness is 7/16 inches\n"
            "Nail size is 8D\n"
            "Max. Support Span / Spacing is 16\n"
            "NOTES:\n"
            "NOTE 1:\n"
            "Loads are based on 10 psf dead load.\n"
            "NOTE 2:\n"
            "Values assume panels are at least 2 ft wide.\n"
            "NOTE 3:\n"
            "Edge support required. Tounge & Groove, panel clips\n"
            "or blocking.\n");
}

TEST_F(RoofSheathingTest, ReportsTheCaptionOfEachGradeOfEachOrientation) {
  for (const auto& expected : published::kRoofLists) {
    Choose(kOrientation, expected.orientation);
    Choose(kGrade, expected.grade);
    const char* orientation = expected.orientation == kAcross
                                  ? "Long dim. is perp. to supports"
                                  : "Long dim. is parallel. to supports";
    const std::string head =
        std::string("\nROOF SHEATHING\n\n") + orientation + "\n" + expected.caption + "\n";
    EXPECT_EQ(ReportBytes().substr(0, head.size()), head);
  }
}

TEST_F(RoofSheathingTest, ReportsEachSpacingAlsoWithoutARating) {
  for (const std::string spacing : {"12", "16", "20", "24", "32", "40", "48", "60"}) {
    Choose(kSpacing, spacing);
    EXPECT_EQ(ReportBytes(),
              "\nROOF SHEATHING\n\nLong dim. is perp. to supports\nAPA Rated Sheathing\n"
              "Panel edges are supported.\nSupport Spacing is " +
                  spacing +
                  " inches\nPanel Rating is \nMax. Live Load is  psf\nMin. panel thickness is  "
                  "inches\nNail size is \nMax. Support Span / Spacing is \nNOTES:\nNOTE 1:\nLoads "
                  "are based on 10 psf dead load.\nNOTE 2:\nValues assume panels are at least 2 ft "
                  "wide.\nNOTE 3:\nEdge support required. Tounge & Groove, panel clips\nor "
                  "blocking.\n");
  }
}

}  // namespace
}  // namespace lignara
