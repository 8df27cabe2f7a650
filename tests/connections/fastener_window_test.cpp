#include "connections/fastener_window.h"

#include <gtest/gtest.h>

#include "tests/connections/fastener_pages.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class FastenerDataBaseTest : public testing::Test {
 protected:
  FastenerDataBaseTest() { OpenFastenerDataBase(window); }

  /// The texts of the fields, in the order of the screen.
  Texts Shown() const { return {window.fields.begin(), window.fields.end()}; }

  FastenerWindow window;
};

TEST_F(FastenerDataBaseTest, OpensOnTheFirstNailInDouglasFir) {
  EXPECT_EQ(window.kind, FastenerKind::Nails);
  EXPECT_EQ(window.wood, FastenerWood::DouglasFir);
  EXPECT_EQ(window.sizes.row, 0);
  EXPECT_EQ(window.embedments.row, 0);
  EXPECT_EQ(Shown(), (Texts{"2", ".113", "63", "29", "", ""}));
}

TEST_F(FastenerDataBaseTest, KindsAreNumberedFromOne) {
  EXPECT_EQ(static_cast<int>(FastenerKind::Nails), 1);
  EXPECT_EQ(static_cast<int>(FastenerKind::Spikes), 2);
  EXPECT_EQ(static_cast<int>(FastenerKind::WoodScrews), 3);
  EXPECT_EQ(static_cast<int>(FastenerKind::LagScrews), 4);
}

struct KindCase {
  FastenerKind kind;
  const char* caption;
  Texts fields;
  bool embedment;
  const char* firstNote;
};

const KindCase kKinds[] = {
    {FastenerKind::Nails,
     "Nails",
     {"Length (in)", "Dia. (in)", "Lat. Strength (lbs)", "Pull out Strength (lbs)"},
     false,
     "Based on insertion length of 11 diameters for lat. load."},
    {FastenerKind::Spikes,
     "Spikes",
     {"Length (in)", "Dia. (in)", "Lat. Strength (lbs)", "Pull out Strength (lbs)"},
     false,
     "Based on insertion length of 11 diameters for lat. load."},
    {FastenerKind::WoodScrews,
     "Wood Screws",
     {"Dia. (in)", "Lat. Strength (lbs)", "Pull out Strength (lbs)"},
     false,
     ""},
    {FastenerKind::LagScrews,
     "Lag Screws",
     {"Pull out Strength (lbs)", "Lat. Strength Parallel to Grain (lbs)",
      "Lat. Strength Perp. to Grain (lbs)"},
     true,
     "Select embedment length to obtain Lat. loads."},
};

TEST_F(FastenerDataBaseTest, EachKindShowsItsFieldsAndNotes) {
  ASSERT_EQ(std::size(kKinds), kFastenerKindTable.size());
  for (const KindCase& c : kKinds) {
    const FastenerKindEntry& entry = EntryOf(c.kind);
    Texts captions;
    for (std::size_t i = 0; i < kFastenerFields; ++i) {
      if (entry.shows[i]) captions.emplace_back(kFastenerFieldCaptions[i]);
    }
    EXPECT_STREQ(entry.caption, c.caption);
    EXPECT_EQ(captions, c.fields) << c.caption;
    EXPECT_EQ(entry.showsEmbedment, c.embedment) << c.caption;
    ChooseFastenerKind(window, c.kind);
    EXPECT_EQ(window.firstNote, c.firstNote) << c.caption;
    EXPECT_EQ(window.secondNote, "Pullout load is per inch of embedment.") << c.caption;
  }
}

TEST_F(FastenerDataBaseTest, FieldsThatAKindDoesNotShowAreEmpty) {
  for (const KindCase& c : kKinds) {
    ChooseFastenerKind(window, c.kind);
    for (std::size_t i = 0; i < kFastenerFields; ++i) {
      EXPECT_EQ(window.fields[i].empty(), !EntryOf(c.kind).shows[i]) << c.caption << i;
    }
  }
}

TEST_F(FastenerDataBaseTest, SizeListsAreThoseOfTheTables) {
  const std::pair<FastenerKind, const char*> pages[] = {{FastenerKind::Nails, kWireNails},
                                                        {FastenerKind::Spikes, kSpikes},
                                                        {FastenerKind::WoodScrews, kWoodScrews}};
  for (const auto& [kind, page] : pages) {
    Texts sizes;
    for (const Texts& row : PageRows(page)) sizes.push_back(row.front());
    ChooseFastenerKind(window, kind);
    EXPECT_EQ(window.sizes.rows, sizes);
  }
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  EXPECT_EQ(window.sizes.rows,
            (Texts{"Dia. 1/4", "Dia. 5/16", "Dia. 3/8", "Dia. 7/16", "Dia. 1/2", "Dia. 9/16",
                   "Dia. 5/8", "Dia. 3/4", "Dia. 7/8", "Dia. 1", "Dia. 1 1/8", "Dia. 1 1/4"}));
  EXPECT_EQ(window.embedments.rows,
            (Texts{"3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16"}));
}

TEST_F(FastenerDataBaseTest, EverySizeOfNailsAndSpikesIsShownInBothWoods) {
  const std::pair<FastenerKind, const char*> pages[] = {{FastenerKind::Nails, kWireNails},
                                                        {FastenerKind::Spikes, kSpikes}};
  for (const auto& [kind, page] : pages) {
    ChooseFastenerKind(window, kind);
    int row = 0;
    for (const Texts& cells : PageRows(page)) {
      ChooseFastenerSize(window, row++);
      ChooseFastenerWood(window, FastenerWood::DouglasFir);
      EXPECT_EQ(Shown(), (Texts{cells[1], cells[2], cells[3], cells[4], "", ""}));
      ChooseFastenerWood(window, FastenerWood::SouthernPine);
      EXPECT_EQ(Shown(), (Texts{cells[1], cells[2], cells[3], cells[5], "", ""}));
    }
  }
}

TEST_F(FastenerDataBaseTest, EverySizeOfWoodScrewsIsShownInBothWoods) {
  ChooseFastenerKind(window, FastenerKind::WoodScrews);
  int row = 0;
  for (const Texts& cells : PageRows(kWoodScrews)) {
    ChooseFastenerSize(window, row++);
    ChooseFastenerWood(window, FastenerWood::DouglasFir);
    EXPECT_EQ(Shown(), (Texts{"", cells[1], cells[2], cells[3], "", ""}));
    ChooseFastenerWood(window, FastenerWood::SouthernPine);
    EXPECT_EQ(Shown(), (Texts{"", cells[1], cells[2], cells[4], "", ""}));
  }
}

TEST_F(FastenerDataBaseTest, EveryLagScrewIsShownAtEveryEmbedmentInBothWoods) {
  const auto pullOut = PageRows(kLagPullOut);
  const auto parallel = PageRows(kLagParallel);
  const auto perpendicular = PageRows(kLagPerpendicular);
  const auto cell = [](const std::string& text) { return text == "-" ? "NA" : text; };
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  for (std::size_t size = 1; size <= kLagScrewSizes; ++size) {
    ChooseFastenerSize(window, static_cast<int>(size) - 1);
    for (std::size_t embedment = 1; embedment <= kEmbedments; ++embedment) {
      ChooseEmbedment(window, static_cast<int>(embedment) - 1);
      for (const FastenerWood wood : {FastenerWood::DouglasFir, FastenerWood::SouthernPine}) {
        ChooseFastenerWood(window, wood);
        EXPECT_EQ(Shown(),
                  (Texts{"", "", "", pullOut[static_cast<std::size_t>(wood) + 1][size],
                         cell(parallel[embedment][size]), cell(perpendicular[embedment][size])}));
      }
    }
  }
}

TEST_F(FastenerDataBaseTest, LagScrewOutsideOfItsEmbedmentsShowsNA) {
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  ChooseEmbedment(window, 2);
  EXPECT_EQ(Shown(), (Texts{"", "", "", "232", "NA", "NA"}));
}

TEST_F(FastenerDataBaseTest, ZeroAtTheEndOfADiameterStays) {
  ChooseFastenerKind(window, FastenerKind::WoodScrews);
  ChooseFastenerSize(window, 4);
  EXPECT_EQ(window.Field(FastenerField::Diameter), ".190");
}

TEST_F(FastenerDataBaseTest, TenPennyIsAnotherRowOfNailsAndOfSpikes) {
  ChooseFastenerSize(window, 2);
  ASSERT_EQ(window.sizes.Chosen(), "10d");
  EXPECT_EQ(Shown(), (Texts{"3", ".148", "94", "38", "", ""}));
  ChooseFastenerKind(window, FastenerKind::Spikes);
  ASSERT_EQ(window.sizes.Chosen(), "10d");
  EXPECT_EQ(Shown(), (Texts{"3", ".192", "139", "49", "", ""}));
}

TEST_F(FastenerDataBaseTest, KindPutsBothListsToTheirFirstRow) {
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  // The button of the kind that is shown already does the same.
  for (const FastenerKind kind : {FastenerKind::LagScrews, FastenerKind::Nails}) {
    ChooseFastenerSize(window, 5);
    ChooseEmbedment(window, 7);
    ChooseFastenerKind(window, kind);
    EXPECT_EQ(window.sizes.row, 0);
    EXPECT_EQ(window.embedments.row, 0);
  }
  EXPECT_EQ(Shown(), (Texts{"2", ".113", "63", "29", "", ""}));
}

TEST_F(FastenerDataBaseTest, WoodSurvivesAChangeOfKind) {
  ChooseFastenerWood(window, FastenerWood::SouthernPine);
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  EXPECT_EQ(window.Field(FastenerField::PullOut), "289");
  ChooseFastenerKind(window, FastenerKind::WoodScrews);
  EXPECT_EQ(window.Field(FastenerField::PullOut), "137");
}

TEST_F(FastenerDataBaseTest, LateralStrengthDoesNotDependOnTheWood) {
  for (const KindCase& c : kKinds) {
    ChooseFastenerKind(window, c.kind);
    for (int row = 0; row < static_cast<int>(window.sizes.rows.size()); ++row) {
      ChooseFastenerSize(window, row);
      std::vector<Texts> lateral;
      for (const FastenerWood wood : {FastenerWood::DouglasFir, FastenerWood::SouthernPine}) {
        ChooseFastenerWood(window, wood);
        lateral.push_back({window.Field(FastenerField::Lateral),
                           window.Field(FastenerField::LateralParallel),
                           window.Field(FastenerField::LateralPerp)});
      }
      EXPECT_EQ(lateral[0], lateral[1]) << c.caption << row;
    }
  }
}

TEST_F(FastenerDataBaseTest, ListWithoutAChoiceGoesToItsFirstRow) {
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  window.sizes.row = -1;
  window.embedments.row = -1;
  ShowFastenerValues(window);
  EXPECT_EQ(window.sizes.row, 0);
  EXPECT_EQ(window.embedments.row, 0);
  EXPECT_EQ(Shown(), (Texts{"", "", "", "232", "210", "160"}));
}

TEST_F(FastenerDataBaseTest, RowsOutsideOfAListChangeNothing) {
  ChooseFastenerSize(window, 3);
  for (const int row : {-1, 10}) {
    ChooseFastenerSize(window, row);
    EXPECT_EQ(window.sizes.row, 3);
  }
  for (const int row : {-1, 14}) {
    ChooseEmbedment(window, row);
    EXPECT_EQ(window.embedments.row, 0);
  }
  EXPECT_EQ(Shown(), (Texts{"3 1/4", ".148", "94", "38", "", ""}));
}

}  // namespace
}  // namespace lignara
