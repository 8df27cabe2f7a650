#include "truss/truss_window.h"

#include <gtest/gtest.h>

#include "tests/support/opened_truss.h"
#include "tests/support/truss_fixture.h"

namespace lignara {
namespace {

TEST(OpenTruss, TitleByType) {
  const std::pair<const char*, const char*> titles[] = {
      {"PRATT1", "PRATT1 TRUSS"},      {"ENGLISH", "ENGLISH TRUSS"}, {"FINK", "FINK TRUSS"},
      {"KINGPOST", "KING POST TRUSS"}, {"SCI", "SCISSORS TRUSS"},    {"PRATT2", "PRATT2 TRUSS"},
      {"HOWE", "HOWE TRUSS"},          {"WARREN", "WARREN TRUSS"},
  };
  for (const auto& [type, title] : titles) {
    EXPECT_EQ(OpenedTruss(type, 4, 30, 7.5, 3).window.title, title);
  }
}

TEST(OpenTruss, SetsThePanelLength) {
  EXPECT_EQ(OpenedTruss("PRATT1", 6, 30, 7.5).session.PanelLength.value(), 5.0f);
  EXPECT_EQ(OpenedTruss("SCI", 4, 30, 7.5, 3).session.PanelLength.value(), 7.5f);
  EXPECT_EQ(OpenedTruss("KINGPOST", 4, 30, 7.5).session.PanelLength.value(), 15.0f)
      << "a panel on each side of the post";
}

TEST(OpenTruss, StartsEmpty) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  EXPECT_EQ(truss.model().RunState.value(), 0);
  EXPECT_EQ(truss.model().ErrorFlag.value(), 0);
  EXPECT_EQ(truss.model().PL.upper(), 3);
  EXPECT_EQ(truss.model().PR.upper(), 3);
  EXPECT_EQ(truss.model().PT.value(), 0.0f);
  EXPECT_EQ(truss.window.axialRows.size(), 0u);
  EXPECT_EQ(truss.window.leftReaction, "");
  EXPECT_FALSE(truss.window.lineLoadOpen || truss.window.areaLoadOpen || truss.window.lengthsOpen ||
               truss.window.deflectionsOpen || truss.window.stressOpen ||
               truss.window.headingsOpen || truss.window.fontsOpen);
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(OpenTruss, ThrowsTheTrussBeforeAway) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  truss.LoadAllNodes(100);
  truss.model().RunState = 1;
  truss.window.stressOpen = true;
  EnlargeTruss(truss.window, truss.session, truss.platform);
  truss.session.TrussType = "KINGPOST";
  truss.session.TrussSpans = 4;
  OpenTruss(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.window.title, "KING POST TRUSS");
  EXPECT_EQ(truss.window.nodeRows, (std::vector<std::string>{"", "PT = 0.00"}));
  EXPECT_EQ(truss.model().RunState.value(), 0);
  EXPECT_FALSE(truss.window.stressOpen);
  EXPECT_EQ(truss.window.view.ZoomFactor.value(), 1.0f);
}

TEST(OpenTruss, SetsWhatIsWorkedOutWhenDrawn) {
  OpenedTruss bottom("WARREN", 6, 30, 7.5);
  EXPECT_EQ(bottom.model().WarrenChord, "BOTTOM");
  OpenedTruss top("WARREN", 8, 30, 7.5);
  EXPECT_EQ(top.model().WarrenChord, "TOP");
  OpenedTruss fink("FINK", 6, 30, 7.5);
  EXPECT_GT(fink.model().ANG_W.value(), 0.0f);
  OpenedTruss scissors("SCI", 4, 30, 7.5, 3);
  EXPECT_GT(scissors.model().SCI_RUN.value(), 0.0f);
}

TEST(OpenTruss, ReportPanelsShowTheSession) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  EXPECT_TRUE(truss.window.fontTimes);
  EXPECT_TRUE(truss.window.fontTen);
  truss.session.ReportTitle = "Barn";
  truss.session.ReportDescription = "North wing";
  truss.session.ReportFont.Name = "Arial";
  truss.session.ReportFont.Size = 8;
  OpenTruss(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.window.titleText, "Barn");
  EXPECT_EQ(truss.window.descriptionText, "North wing");
  EXPECT_FALSE(truss.window.fontTimes);
  EXPECT_FALSE(truss.window.fontTen);
}

TEST(OpenTruss, DimensionsBeyondTheArraysAreFaultsAndNoCrash) {
  OpenedTruss truss("PRATT1", 100000, 30, 7.5);
  EXPECT_FALSE(truss.platform.messages.empty());
  for (const std::string& text : truss.platform.TakeTexts()) {
    EXPECT_EQ(text, "The number is too large");
  }
}

TEST(WoodType, OpensTheCalculatorForATruss) {
  SessionState session;
  RecordingPlatform platform;
  session.DesignMode = "BEAM";
  OpenWoodType(session, platform);
  EXPECT_EQ(session.DesignMode, "TRUSS");
  EXPECT_EQ(platform.calls, std::vector<std::string>{"open WTYPETR"});
}

TEST(ResultPanels, OpenAndCloseWithTheirListsAsTheyAre) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.window.deflectionRows = {"TN = 0.001"};
  truss.window.stressRows = {"", "TL1"};
  OpenDeflections(truss.window);
  EXPECT_TRUE(truss.window.deflectionsOpen);
  EXPECT_FALSE(truss.window.stressOpen);
  OpenStresses(truss.window);
  EXPECT_TRUE(truss.window.stressOpen);
  CloseDeflections(truss.window);
  EXPECT_FALSE(truss.window.deflectionsOpen);
  EXPECT_TRUE(truss.window.stressOpen);
  CloseStresses(truss.window);
  EXPECT_FALSE(truss.window.stressOpen);
  EXPECT_EQ(truss.window.deflectionRows, std::vector<std::string>{"TN = 0.001"});
  EXPECT_EQ(truss.window.stressRows, (std::vector<std::string>{"", "TL1"}));
}

}  // namespace
}  // namespace lignara
