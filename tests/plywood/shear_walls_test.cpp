#include "tests/plywood/ply_fixture.h"
#include "tests/plywood/wall_and_roof_tables.h"

namespace lignara {
namespace {

constexpr const char* kGrade = "Panel Grade";
constexpr const char* kBase = "Panel Base";
constexpr const char* kSpacing = "Nail Spacing at Pnl. edges (in)";
constexpr const char* kThickness = "Min. Panel Thk. (in)";
constexpr const char* kShear = "Allowable Shear (lbs/ft)";
constexpr const char* kPenetration = "Min. Nail Penetration (in)";
constexpr const char* kNail = "Nail Size";

/// By grade and base.
const published::Table* const kTables[3][2] = {
    {&published::kShear1Direct, &published::kShear1Gypsum},
    {&published::kShear2Direct, &published::kShear2Gypsum},
    {&published::kShear3Direct, &published::kShear3Gypsum}};

const Texts kNoteA = {"NOTE A:", "Loads may be increased to that for 15/32 ply,",
                      "if stud spacing is 16 in max and long dimension is across studs."};
const Texts kNoteB = {"NOTE B:", "Framing at ajoining panel edges shall be 3 in or wider.",
                      "Nails shall be stagered."};
const Texts kNoteC = {"NOTE C:", "Framing at ajoining panel edges shall be at least",
                      "3 in or wider and 10D nails shall be stagered when",
                      "penetration is more than 1-5/8 in and spacing is ", "3 in O.C.."};

Texts operator+(Texts a, const Texts& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

class ShearWallsTest : public PlyFixture {
 protected:
  ShearWallsTest() : PlyFixture(PlyPanel::ShearWalls) {}

  void Choose4(int grade, int base, int spacing, int row) {
    Choose(kGrade, grade);
    Choose(kBase, base);
    Choose(kSpacing, spacing);
    Choose(kThickness, row);
  }
};

TEST_F(ShearWallsTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Shear Walls");
  EXPECT_EQ(kind.note, "");
  EXPECT_EQ(kind.linesCaption, "Notes:");
  EXPECT_EQ(Entries(kGrade),
            (Texts{"APA Structural 1 Grades",
                   "APA Rat.Sheathing and other APA Grades, except Species Group 5",
                   "APA Rat. Siding and other APA Grades, except Species Group 5"}));
  EXPECT_EQ(Entries(kBase),
            (Texts{"Panels nailed directly to frame.", "Panels nailed over 1/2 or 5/8 Gypsum"}));
  EXPECT_EQ(Entries(kSpacing), (Texts{"6", "4", "3", "2"}));
  for (const char* key : {kGrade, kBase, kSpacing}) {
    EXPECT_EQ(Key(key).form, PlyKeyForm::Options) << key;
  }
  EXPECT_EQ(Key(kThickness).form, PlyKeyForm::List);
  EXPECT_EQ(ResultCaptions(), (Texts{kShear, kPenetration, kNail}));
}

TEST_F(ShearWallsTest, OpensWithTheFirstGradeDirectlyToTheFrameAt6) {
  Choose4(2, 1, 3, 0);
  ShowPanel(window, panel);
  for (const char* key : {kGrade, kBase, kSpacing}) EXPECT_EQ(Key(key).choice.row, 0) << key;
  EXPECT_EQ(Key(kThickness).choice.row, -1);
  EXPECT_EQ(Entries(kThickness), published::kShear1Direct.columns);
  EXPECT_EQ(Values(), Texts(3));
  EXPECT_TRUE(Lines().empty());
}

TEST_F(ShearWallsTest, EveryCellOfTheSixTables) {
  for (int grade = 0; grade < 3; ++grade) {
    for (int base = 0; base < 2; ++base) {
      const published::Table& table = *kTables[grade][base];
      Choose4(grade, base, 0, 0);
      EXPECT_EQ(Entries(kThickness), table.columns);
      for (const auto& [spacing, shear] : table.rows) {
        Choose(kSpacing, spacing);
        for (std::size_t row = 0; row < shear.size(); ++row) {
          Choose(kThickness, static_cast<int>(row));
          EXPECT_EQ(Value(kShear), shear[row]) << grade << base << " " << spacing << " " << row;
        }
      }
    }
  }
}

TEST_F(ShearWallsTest, EveryNailAtEverySpacing) {
  for (const auto& expected : published::kShearNails) {
    for (int spacing = 0; spacing < 4; ++spacing) {
      Choose4(expected.grade, expected.base, spacing, expected.row);
      EXPECT_EQ(Value(kPenetration), expected.penetration);
      EXPECT_EQ(Value(kNail), expected.nail);
    }
  }
}

TEST_F(ShearWallsTest, TheNotesOfEveryCombination) {
  for (const auto& nails : published::kShearNails) {
    for (int spacing = 0; spacing < 4; ++spacing) {
      Choose4(nails.grade, nails.base, spacing, nails.row);
      const bool direct = nails.base == 0;
      Texts expected;
      if (direct && nails.grade == 0 && (nails.row == 1 || nails.row == 2)) expected = kNoteA;
      if (direct && nails.grade == 1 && (nails.row == 2 || nails.row == 3)) expected = kNoteA;
      if (spacing == 3) expected = expected + kNoteB;
      if (std::string(nails.nail) == "10D") expected = expected + kNoteC;
      EXPECT_EQ(Lines(), expected) << nails.grade << nails.base << spacing << nails.row;
    }
  }
}

TEST_F(ShearWallsTest, TheNotesFollowTheSpacingAlsoWithoutAThickness) {
  Choose(kSpacing, "2");
  EXPECT_EQ(Lines(), kNoteB);
  EXPECT_EQ(Values(), Texts(3));
  Choose(kSpacing, "3");
  EXPECT_TRUE(Lines().empty());
}

TEST_F(ShearWallsTest, TheSameThicknessTwiceIsTwoRows) {
  Choose4(1, 0, 0, 1);
  EXPECT_EQ(Key(kThickness).choice.Chosen(), "3/8");
  EXPECT_EQ(Values(), (Texts{"200", "1-1/4", "6D"}));
  Choose(kThickness, 2);
  EXPECT_EQ(Key(kThickness).choice.Chosen(), "3/8");
  EXPECT_EQ(Values(), (Texts{"220", "1-1/2", "8D"}));
}

TEST_F(ShearWallsTest, StructuralOverGypsumAt7_16HasNoLoadButTheLongNailAndItsNote) {
  Choose4(0, 1, 0, 2);
  EXPECT_EQ(Values(), (Texts{"NA", "1-1/2", "10D"}));
  EXPECT_EQ(Lines(), kNoteC);
}

TEST_F(ShearWallsTest, StructuralOverGypsumAtTheThickestPanelHasNeitherLoadNorNail) {
  Choose4(0, 1, 0, 4);
  EXPECT_EQ(Values(), (Texts{"NA", "NA", "NA"}));
  EXPECT_TRUE(Lines().empty());
}

TEST_F(ShearWallsTest, AnotherGradeEmptiesTheResults) {
  Choose4(0, 0, 3, 1);
  Choose(kGrade, 2);
  EXPECT_EQ(Key(kThickness).choice.row, -1);
  EXPECT_EQ(Values(), Texts(3));
  EXPECT_EQ(Lines(), kNoteB);
}

TEST_F(ShearWallsTest, TheGradePressedAgainKeepsTheThickness) {
  Choose4(1, 0, 0, 3);
  Choose(kGrade, 1);
  EXPECT_EQ(Key(kThickness).choice.row, 3);
  EXPECT_EQ(Value(kShear), "240");
}

TEST_F(ShearWallsTest, AnotherBaseOrSpacingShowsTheNewValuesAtOnce) {
  Choose4(0, 0, 1, 1);
  EXPECT_EQ(Values(), (Texts{"260", "1-1/2", "8D"}));
  EXPECT_EQ(Lines(), kNoteA);
  Choose(kBase, 1);
  EXPECT_EQ(Values(), (Texts{"430", "1-1/2", "10D"}));
  EXPECT_EQ(Lines(), kNoteC);
  Choose(kSpacing, "2");
  EXPECT_EQ(Value(kShear), "730");
  EXPECT_EQ(Lines(), kNoteB + kNoteC);
}

TEST_F(ShearWallsTest, ReportsTheChoicesTheResultsAndTheNotes) {
  Choose4(0, 0, 3, 2);
  EXPECT_EQ(ReportBytes(),
            "\n"
            "SHEAR WALL\n"
            "\n"
            "APA Structural 1 Grades\n"
            "Panel thickness is 7/16 inches\n"
            "Ply is nailed directly to frame.\n"
            "Nail spacing is 2 inches at edges\n"
            "Min. nail penetration is 1-1/2\n"
            "Nail size is 8D\n"
            "Shear load is 670 lbs/ft\n"
            "NOTES:\n"
            "NOTE A:\n"
            "Loads may be increased to that for 15/32 ply,\n"
            "if stud spacing is 16 in max and long dimension is across studs.\n"
            "NOTE B:\n"
            "Framing at ajoining panel edges shall be 3 in or wider.\n"
            "Nails shall be stagered.\n");
}

TEST_F(ShearWallsTest, ReportsTheOtherGradesAndBaseInTheirOwnWords) {
  Choose4(1, 1, 2, 4);
  EXPECT_EQ(ReportBytes(),
            "\n"
            "SHEAR WALL\n"
            "\n"
            "APA Sheathing and other APA Grades, except species group 5\n"
            "Panel thickness is 15/32 inches\n"
            "Ply is nailed on top of gypsum.\n"
            "Nail spacing is 3 inches at edges\n"
            "Min. nail penetration is 1-1/2\n"
            "Nail size is 10D\n"
            "Shear load is NA lbs/ft\n"
            "NOTES:\n"
            "NOTE C:\n"
            "Framing at ajoining panel edges shall be at least\n"
            "3 in or wider and 10D nails shall be stagered when\n"
            "penetration is more than 1-5/8 in and spacing is \n"
            "3 in O.C..\n");
  Choose4(2, 0, 1, 0);
  EXPECT_EQ(ReportBytes(),
            "\n"
            "SHEAR WALL\n"
            "\n"
            "APA rated Siding and other APA grades, except species group 5\n"
            "Panel thickness is 5/16 inches\n"
            "Ply is nailed directly to frame.\n"
            "Nail spacing is 4 inches at edges\n"
            "Min. nail penetration is 1-1/4\n"
            "Nail size is 6D\n"
            "Shear load is 210 lbs/ft\n"
            "NOTES:\n");
}

TEST_F(ShearWallsTest, ReportsEmptyValuesWhereThereAreNone) {
  EXPECT_EQ(ReportBytes(),
            "\n"
            "SHEAR WALL\n"
            "\n"
            "APA Structural 1 Grades\n"
            "Panel thickness is  inches\n"
            "Ply is nailed directly to frame.\n"
            "Nail spacing is 6 inches at edges\n"
            "Min. nail penetration is \n"
            "Nail size is \n"
            "Shear load is  lbs/ft\n"
            "NOTES:\n");
}

}  // namespace
}  // namespace lignara
