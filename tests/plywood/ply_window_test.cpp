// What holds for all panels: one at a time, as new on each opening, printed and saved as they
// stand.

#include "plywood/ply_window.h"

#include <random>

#include "tests/plywood/ply_fixture.h"
#include "tests/support/data_folder.h"

namespace lignara {
namespace {

std::vector<PlyPanel> AllPanels() {
  std::vector<PlyPanel> panels;
  for (std::size_t i = 0; i < kPlyPanels; ++i) panels.push_back(static_cast<PlyPanel>(i));
  return panels;
}

/// What a panel shows, as one text.
std::string Shown(const PlyPanelState& state) {
  std::string text;
  for (const PlyKey& key : state.keys) {
    text += key.caption + (key.shown ? "+" : "-") + std::to_string(key.choice.row);
    for (const std::string& entry : key.choice.rows) text += "|" + entry;
  }
  for (const PlyResult& result : state.results) text += "\n" + result.caption + "=" + result.value;
  for (const std::string& line : state.lines) text += "\n" + line;
  return text + "\n" + std::to_string(state.picture.shapes.size());
}

class PlyWindow : public testing::TestWithParam<PlyPanel> {
 protected:
  PlyWindow() { OpenPlyWindow(window); }

  PlyPanelState& State() { return window.Panel(GetParam()); }

  /// Chooses the last entry of each key.
  void ChooseLast() {
    for (std::size_t key = 0; key < State().keys.size(); ++key) {
      const auto count = static_cast<int>(State().keys[key].choice.rows.size());
      ChoosePlyRow(window, GetParam(), key, count - 1);
    }
  }

  PlyPanelWindow window;
  RecordingPlatform platform;
};

TEST_P(PlyWindow, ShowsNoPanelAtFirst) { EXPECT_FALSE(window.open.has_value()); }

TEST_P(PlyWindow, ShowsOnePanelInPlaceOfAnother) {
  ShowPanel(window, PlyPanel::SubFloors);
  ShowPanel(window, GetParam());
  EXPECT_EQ(window.open, GetParam());
}

TEST_P(PlyWindow, CloseLeavesTheStripAlone) {
  ShowPanel(window, GetParam());
  ClosePanel(window);
  EXPECT_FALSE(window.open.has_value());
}

TEST_P(PlyWindow, OpensEachPanelAsNewAlsoWhileItIsShown) {
  ShowPanel(window, GetParam());
  const std::string asNew = Shown(State());
  ChooseLast();
  EXPECT_NE(Shown(State()), asNew);
  ShowPanel(window, GetParam());
  EXPECT_EQ(Shown(State()), asNew);
  ChooseLast();
  ClosePanel(window);
  ShowPanel(window, GetParam());
  EXPECT_EQ(Shown(State()), asNew);
}

TEST_P(PlyWindow, ListsOpenWithoutAChoiceAndOptionsWithOne) {
  ShowPanel(window, GetParam());
  for (const PlyKey& key : State().keys) {
    EXPECT_EQ(key.choice.row < 0, key.form == PlyKeyForm::List) << key.caption;
    EXPECT_FALSE(key.choice.rows.empty()) << key.caption;
  }
  for (const PlyResult& result : State().results) EXPECT_EQ(result.value, "") << result.caption;
}

TEST_P(PlyWindow, AChoiceMadeAgainShowsTheSame) {
  ShowPanel(window, GetParam());
  ChooseLast();
  const std::string once = Shown(State());
  ChooseLast();
  EXPECT_EQ(Shown(State()), once);
}

TEST_P(PlyWindow, EachKeyChosenAsItIsChangesNothing) {
  ShowPanel(window, GetParam());
  ChooseLast();
  const std::string before = Shown(State());
  for (std::size_t key = 0; key < State().keys.size(); ++key) {
    ASSERT_GE(State().keys[key].choice.row, 0) << State().keys[key].caption;
    ChoosePlyRow(window, GetParam(), key, State().keys[key].choice.row);
    EXPECT_EQ(Shown(State()), before) << State().keys[key].caption;
  }
}

TEST_P(PlyWindow, RowsOutsideOfAListChangeNothing) {
  ShowPanel(window, GetParam());
  ChooseLast();
  const std::string before = Shown(State());
  for (std::size_t key = 0; key < State().keys.size(); ++key) {
    for (const int row : {-1, -30, 15, 1000000}) ChoosePlyRow(window, GetParam(), key, row);
  }
  EXPECT_EQ(Shown(State()), before);
}

TEST_P(PlyWindow, OneChoiceLeavesTheOtherPanelsAlone) {
  std::vector<std::string> before;
  for (const PlyPanel panel : AllPanels()) before.push_back(Shown(window.Panel(panel)));
  ChooseLast();
  for (const PlyPanel panel : AllPanels()) {
    if (panel == GetParam()) continue;
    EXPECT_EQ(Shown(window.Panel(panel)), before[static_cast<std::size_t>(panel)]);
  }
}

TEST_P(PlyWindow, PrintsAndSavesTheSameLines) {
  const DataFolder folder;
  ShowPanel(window, GetParam());
  for (const bool chosen : {false, true}) {
    if (chosen) ChooseLast();
    platform.fileAnswers = {folder.Path("panel.txt")};
    PrintPlyReport(window, GetParam(), platform);
    SavePlyReport(window, GetParam(), platform);
    EXPECT_EQ(FileBytes(folder.Path("panel.txt")), ReportText(platform.printed.back()));
  }
  EXPECT_EQ(platform.printed.size(), 2U);
  EXPECT_EQ(platform.filters.back(), "Text(*.txt)|*.txt|All(*.*)|*.*|");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_P(PlyWindow, ACancelledSaveWritesNothing) {
  ShowPanel(window, GetParam());
  platform.fileAnswers = {std::nullopt};
  SavePlyReport(window, GetParam(), platform);
  EXPECT_EQ(platform.filters.size(), 1U);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_P(PlyWindow, PrintsInTimes) {
  PrintPlyReport(window, GetParam(), platform);
  const std::string font = platform.printed.back().fontName;
  EXPECT_TRUE(font == "Times New Roman" || font == "TIMES NEW ROMAN") << font;
}

TEST_P(PlyWindow, SurvivesChoicesAtRandom) {
  std::mt19937 random(17);
  const auto pick = [&](int most) { return std::uniform_int_distribution<int>(-1, most)(random); };
  ShowPanel(window, GetParam());
  for (int i = 0; i < 2000; ++i) {
    const auto key = static_cast<std::size_t>(pick(static_cast<int>(State().keys.size()) - 1));
    if (key < State().keys.size()) ChoosePlyRow(window, GetParam(), key, pick(16));
    bool complete = true;
    for (const PlyKey& each : State().keys) {
      ASSERT_TRUE(each.choice.row == -1 || each.choice.Has(each.choice.row));
      complete = complete && each.choice.row >= 0;
    }
    for (const PlyResult& result : State().results) {
      if (!complete) {
        ASSERT_EQ(result.value, "");
      }
    }
    ASSERT_FALSE(ReportText(PlyReport(window, GetParam())).empty());
  }
}

INSTANTIATE_TEST_SUITE_P(All, PlyWindow, testing::ValuesIn(AllPanels()));

struct OpenerCase {
  PlyPanel panel;
  const char* opener;
};

TEST(PlyPanelOpeners, StripAndMenuNameThePanels) {
  const OpenerCase cases[] = {{PlyPanel::StandardLiveLoads, "Standard Live Loads"},
                              {PlyPanel::GluedFloors, "Glued Floors"},
                              {PlyPanel::SubFloors, "Sub Floors"},
                              {PlyPanel::HeavyDuty, "Heavy Duty"},
                              {PlyPanel::TruckDuty, "Truck Duty"},
                              {PlyPanel::WallSheathing, "Wall Sheathing"},
                              {PlyPanel::ShearWalls, "Shear Walls"},
                              {PlyPanel::RoofSheathing, "Roof Sheeting"},
                              {PlyPanel::VeneerGrades, "Veneer Grades..."},
                              {PlyPanel::ExposureLevels, "Exposure Ratings..."},
                              {PlyPanel::SpeciesGroups, "Species Classificaiton..."}};
  EXPECT_EQ(std::size(cases), kPlyPanels);
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(static_cast<std::size_t>(cases[i].panel), i);
    std::string plain = PlyPanelKindOf(cases[i].panel).opener;
    ASSERT_NE(plain.find('&'), std::string::npos) << plain;
    plain.erase(plain.find('&'), 1);
    EXPECT_EQ(plain, cases[i].opener);
  }
}

}  // namespace
}  // namespace lignara
