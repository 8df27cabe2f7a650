#include "tests/plywood/floor_tables.h"
#include "tests/plywood/ply_fixture.h"

namespace lignara {
namespace {

constexpr const char* kSpacing = "Support Spacing (in)";
constexpr const char* kLoad = "Load (psf)";
constexpr const char* kResult = "Rating Sheathing, Sturd-I-Floor";

class HeavyDutyTest : public PlyFixture {
 protected:
  HeavyDutyTest() : PlyFixture(PlyPanel::HeavyDuty) {}
};

TEST_F(HeavyDutyTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Heavy Duty Loads, (APA Rated Sheathing  and Sturd-I-Floor)");
  EXPECT_EQ(kind.note, "All require 2\" wide supports except 48\", which requires 4\".");
  EXPECT_EQ(Entries(kSpacing), published::kHeavyDuty.RowHeads());
  EXPECT_EQ(Entries(kLoad), published::kHeavyDuty.columns);
  EXPECT_EQ(Key(kSpacing).form, PlyKeyForm::Options);
  EXPECT_EQ(Key(kLoad).form, PlyKeyForm::List);
  EXPECT_EQ(ResultCaptions(), Texts{kResult});
}

TEST_F(HeavyDutyTest, EveryCell) {
  for (const auto& [spacing, panels] : published::kHeavyDuty.rows) {
    Choose(kSpacing, spacing);
    for (std::size_t load = 0; load < panels.size(); ++load) {
      Choose(kLoad, static_cast<int>(load));
      EXPECT_EQ(Value(kResult), panels[load]) << spacing << " " << load;
    }
  }
}

TEST_F(HeavyDutyTest, AnotherSpacingShowsTheNewPanelAtOnce) {
  Choose(kLoad, "500");
  EXPECT_EQ(Value(kResult), "40/24, 24 oc");
  Choose(kSpacing, "24");
  EXPECT_EQ(Value(kResult), "NA, 1 1/2 ");
}

TEST_F(HeavyDutyTest, ReportsTheResultBetweenItsKeysWithTheBlankAtItsEnd) {
  Choose(kSpacing, "24");
  Choose(kLoad, "350");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "HEAVY DUTY LOADS\n"
            "\n"
            "Support spacing is 24 inches.\n"
            "Rating Sheathing, Sturd-I-Floor is NA, 1 1/8 \n"
            "Floor load is 350 lbs/sf\n");
}

TEST_F(HeavyDutyTest, ReportsEachSpacingAlsoWithoutALoad) {
  for (const std::string spacing : {"12", "16", "20", "24", "32", "48"}) {
    Choose(kSpacing, spacing);
    EXPECT_EQ(ReportBytes(), "\nHEAVY DUTY LOADS\n\nSupport spacing is " + spacing +
                                 " inches.\nRating Sheathing, Sturd-I-Floor is \n"
                                 "Floor load is  lbs/sf\n");
  }
}

}  // namespace
}  // namespace lignara
