#include "tests/plywood/floor_tables.h"
#include "tests/plywood/ply_fixture.h"

namespace lignara {
namespace {

constexpr const char* kWood = "Joist Wood Type";
constexpr const char* kSize = "Joist Size";
constexpr const char* kSpacing = "Joist Spacing (in)";
constexpr const char* kRating = "Panel Rating";
constexpr const char* kJoistSpan = "Max Joist Span (ft-in)";

class GluedFloorsTest : public PlyFixture {
 protected:
  GluedFloorsTest() : PlyFixture(PlyPanel::GluedFloors) {}

  /// Every wood and size at a spacing and a rating.
  void ExpectTable(const char* spacing, const char* rating, const published::Table& table) {
    Choose(kSpacing, spacing);
    Choose(kRating, rating);
    for (std::size_t wood = 0; wood < table.columns.size(); ++wood) {
      Choose(kWood, static_cast<int>(wood));
      for (const auto& [size, spans] : table.rows) {
        Choose(kSize, size);
        EXPECT_EQ(Value(kJoistSpan), spans[wood])
            << spacing << " " << rating << " " << table.columns[wood] << " " << size;
      }
    }
  }
};

TEST_F(GluedFloorsTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "APA Rated Sturd-I-Floor Glued Floor Spans");
  EXPECT_EQ(kind.note,
            "Based on live load of 40 psf, with 1/360 deflection limit. Glue to joists and at "
            "tongue-and-groove joints. Glue blocking if square-edge panels are used.");
  EXPECT_EQ(Entries(kWood),
            (Texts{"Douglas fir-Larch No. 1", "Douglas fir-Larch N0. 2", "Douglas fir-South No. 1",
                   "Douglas fir-South No. 2", "Hem-Fir No. 1", "Hem-Fir No. 2",
                   "Southern Pine KD15 No. 1", "Southern Pine KD15 No. 2",
                   "Southern Pine MC19 No. 1", "Southern Pine MC19 No. 2"}));
  EXPECT_EQ(Entries(kSize), (Texts{"2X6", "2X8", "2X10", "2X12"}));
  EXPECT_EQ(Entries(kSpacing), (Texts{"16", "19.2", "24"}));
  EXPECT_EQ(Entries(kRating), (Texts{"16 oc", "20 oc", "24 oc"}));
  EXPECT_EQ(Key(kWood).form, PlyKeyForm::List);
  for (const char* key : {kSize, kSpacing, kRating}) {
    EXPECT_EQ(Key(key).form, PlyKeyForm::Options) << key;
  }
  EXPECT_EQ(ResultCaptions(), Texts{kJoistSpan});
}

TEST_F(GluedFloorsTest, EveryCellOfJoistsAt16) {
  ExpectTable("16", "16 oc", published::kGluedFloors1);
  ExpectTable("16", "20 oc", published::kGluedFloors1);
  ExpectTable("16", "24 oc", published::kGluedFloors2);
}

TEST_F(GluedFloorsTest, EveryCellOfJoistsAt19_2) {
  ExpectTable("19.2", "16 oc", published::kGluedFloors3);
  ExpectTable("19.2", "20 oc", published::kGluedFloors3);
  ExpectTable("19.2", "24 oc", published::kGluedFloors4);
}

TEST_F(GluedFloorsTest, JoistsAt24IgnoreTheRating) {
  for (const char* rating : {"16 oc", "20 oc", "24 oc"}) {
    ExpectTable("24", rating, published::kGluedFloors5);
  }
}

TEST_F(GluedFloorsTest, TheOddSpanOfDouglasFirStandsAsTabled) {
  Choose(kWood, "Douglas fir-Larch No. 1");
  Choose(kSize, "2X12");
  EXPECT_EQ(Key(kSpacing).choice.Chosen(), "16");
  EXPECT_EQ(Value(kJoistSpan), "12-7");
}

TEST_F(GluedFloorsTest, OptionsWithoutAWoodGiveNoResult) {
  Choose(kSize, "2X8");
  Choose(kSpacing, "24");
  EXPECT_EQ(Value(kJoistSpan), "");
}

TEST_F(GluedFloorsTest, ReportsTheChoicesTheSpanAndTheNote) {
  Choose(kWood, "Douglas fir-Larch N0. 2");
  Choose(kSize, "2X10");
  Choose(kSpacing, "19.2");
  Choose(kRating, "24 oc");
  EXPECT_EQ(ReportBytes(),
            "\n"
            " STURD-I-FLOOR GLUED FLOOR SYSTEM\n"
            "\n"
            "Joist wood type is Douglas fir-Larch N0. 2\n"
            "Joist spacing is 19.2 inches.\n"
            "Panel rating is 24 oc\n"
            "Joist size is 2X10\n"
            "Max Joist Span (ft-in) is 16-1\n"
            "Based on live load of 40 psf, with 1/360 deflection limit.\n"
            "Glue to joists are at tongue-and-groove joints.\n"
            "Glue blocking if square-edge panels are used.\n");
}

TEST_F(GluedFloorsTest, ReportsEachOption) {
  for (const std::string spacing : {"16", "19.2", "24"}) {
    Choose(kSpacing, spacing);
    EXPECT_NE(ReportBytes().find("\nJoist spacing is " + spacing + " inches.\n"),
              std::string::npos);
  }
  for (const std::string rating : {"16 oc", "20 oc", "24 oc"}) {
    Choose(kRating, rating);
    EXPECT_NE(ReportBytes().find("\nPanel rating is " + rating + "\n"), std::string::npos);
  }
  for (const std::string size : {"2X6", "2X8", "2X10", "2X12"}) {
    Choose(kSize, size);
    EXPECT_NE(ReportBytes().find("\nJoist size is " + size + "\n"), std::string::npos);
  }
}

TEST_F(GluedFloorsTest, ReportsEmptyValuesWhereThereAreNone) {
  EXPECT_EQ(ReportBytes(),
            "\n"
            " STURD-I-FLOOR GLUED FLOOR SYSTEM\n"
            "\n"
            "Joist wood type is \n"
            "Joist spacing is 16 inches.\n"
            "Panel rating is 16 oc\n"
            "Joist size is 2X6\n"
            "Max Joist Span (ft-in) is \n"
            "Based on live load of 40 psf, with 1/360 deflection limit.\n"
            "Glue to joists are at tongue-and-groove joints.\n"
            "Glue blocking if square-edge panels are used.\n");
}

}  // namespace
}  // namespace lignara
