#include "tests/plywood/floor_tables.h"
#include "tests/plywood/ply_fixture.h"

namespace lignara {
namespace {

constexpr const char* kTread = "Tire Tread Print Width (in)";
constexpr const char* kSpacing = "Support Spacing (in)";
constexpr const char* kLoad = "Load per wheel (lbs)";
constexpr const char* kResult = "Structural 1, A-C Plywood  U.N.O.    Thickness (in)";

class TruckDutyTest : public PlyFixture {
 protected:
  TruckDutyTest() : PlyFixture(PlyPanel::TruckDuty) {}

  void ExpectTable(const char* tread, const published::Table& table) {
    Choose(kTread, tread);
    EXPECT_EQ(Entries(kLoad), table.columns) << tread;
    for (const auto& [spacing, panels] : table.rows) {
      Choose(kSpacing, spacing);
      for (std::size_t load = 0; load < panels.size(); ++load) {
        Choose(kLoad, static_cast<int>(load));
        EXPECT_EQ(Value(kResult), panels[load]) << tread << " " << spacing << " " << load;
      }
    }
  }
};

TEST_F(TruckDutyTest, HasTheKeysAndResultsOfThePanel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, "Fork Truck Traffic (Structural 1 A-C)");
  EXPECT_EQ(kind.note, "Require 3\" wide supports");
  EXPECT_EQ(Entries(kTread), (Texts{"3", "5", "7", "9"}));
  EXPECT_EQ(Entries(kSpacing), published::kTread3.RowHeads());
  EXPECT_EQ(Key(kTread).form, PlyKeyForm::Options);
  EXPECT_EQ(Key(kSpacing).form, PlyKeyForm::Options);
  EXPECT_EQ(Key(kLoad).form, PlyKeyForm::List);
  EXPECT_EQ(ResultCaptions(), Texts{kResult});
}

TEST_F(TruckDutyTest, EveryCellOfEveryTread) {
  ExpectTable("3", published::kTread3);
  ExpectTable("5", published::kTread5);
  ExpectTable("7", published::kTread7);
  ExpectTable("9", published::kTread9);
}

TEST_F(TruckDutyTest, AnotherTreadNeedsALoadOfItsOwn) {
  Choose(kLoad, "2000");
  ASSERT_EQ(Value(kResult), "2");
  Choose(kTread, "7");
  EXPECT_EQ(Key(kLoad).choice.row, -1);
  EXPECT_EQ(Value(kResult), "");
  Choose(kSpacing, "24");
  EXPECT_EQ(Value(kResult), "");
  Choose(kLoad, "6000");
  EXPECT_EQ(Value(kResult), "3");
}

TEST_F(TruckDutyTest, TheTreadPressedAgainKeepsTheLoad) {
  Choose(kTread, "5");
  Choose(kLoad, "2500");
  Choose(kTread, "5");
  EXPECT_EQ(Key(kLoad).choice.Chosen(), "2500");
  EXPECT_EQ(Value(kResult), "1-1/2");
}

TEST_F(TruckDutyTest, AnotherSpacingShowsTheNewPanelAtOnce) {
  Choose(kTread, "5");
  Choose(kLoad, "1000");
  EXPECT_EQ(Value(kResult), "48 oc Sturd-I-Floor, PS-1");
  Choose(kSpacing, "20");
  EXPECT_EQ(Value(kResult), "1-1/8");
}

TEST_F(TruckDutyTest, ReportsTheLoadTheSupportsTheTreadAndTheResult) {
  Choose(kTread, "9");
  Choose(kSpacing, "16");
  Choose(kLoad, "7000");
  EXPECT_EQ(ReportBytes(),
            "\n"
            "Fork Truck Flooring\n"
            "\n"
            "Wheel load is 7000 lbs\n"
            "Support spacing is 16 inches\n"
            "Tire tread print width is 9 inches\n"
            "Structural 1, A-C Plywood  U.N.O.    Thickness (in) is 2-1/4\n");
}

TEST_F(TruckDutyTest, ReportsEachOptionAlsoWithoutALoad) {
  for (const std::string tread : {"3", "5", "7", "9"}) {
    for (const std::string spacing : {"12", "16", "20", "24"}) {
      Choose(kTread, tread);
      Choose(kSpacing, spacing);
      EXPECT_EQ(ReportBytes(), "\nFork Truck Flooring\n\nWheel load is  lbs\nSupport spacing is " +
                                   spacing + " inches\nTire tread print width is " + tread +
                                   " inches\nStructural 1, A-C Plywood  U.N.O.    Thickness (in) "
                                   "is \n");
    }
  }
}

}  // namespace
}  // namespace lignara
