#include <gtest/gtest.h>

#include "tests/support/opened_truss.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

void ApplyLine(OpenedTruss& truss, const std::string& load) {
  OpenLineLoad(truss.window);
  truss.window.lineLoad = load;
  ApplyLineLoad(truss.window, truss.session, truss.platform);
}

/// The elements of PL; PR has to hold the same.
std::vector<float> Loads(OpenedTruss& truss) {
  std::vector<float> loads;
  for (int i = 0; i <= truss.model().PL.upper(); ++i) {
    loads.push_back(truss.model().PL[i].value());
    EXPECT_EQ(truss.model().PR[i].value(), truss.model().PL[i].value()) << "PR " << i;
  }
  return loads;
}

using Floats = std::vector<float>;

// P = 100 x 30 / 6 = 500; the end nodes take half of it.
TEST(DistributedLoad, FlatTypesLoadTheEndNodesWithHalfAPanel) {
  for (const char* type : {"PRATT2", "HOWE"}) {
    OpenedTruss truss(type, 6, 30, 5);
    ApplyLine(truss, "100");
    EXPECT_EQ(Loads(truss), (Floats{0, 250, 500, 500})) << type;
    EXPECT_EQ(truss.model().PT.value(), 500.0f);
  }
}

// P = 100 x 40 / 4 = 1000: top nodes stand two panels of 5 ft apart.
TEST(DistributedLoad, WarrenWithTopNodeAtMidspanFillsOneElementMore) {
  OpenedTruss truss("WARREN", 8, 40, 5);
  ApplyLine(truss, "100");
  EXPECT_EQ(Loads(truss), (Floats{500, 1000, 1000, 0, 0}));
  EXPECT_EQ(truss.model().PT.value(), 1000.0f);
}

// P = 100 x 30 / 3 = 1000.
TEST(DistributedLoad, WarrenWithBottomNodeAtMidspanLeavesThePeakAlone) {
  OpenedTruss truss("WARREN", 6, 30, 5);
  truss.model().PT = 77;
  ApplyLine(truss, "100");
  EXPECT_EQ(Loads(truss), (Floats{500, 1000, 0, 0}));
  EXPECT_EQ(truss.model().PT.value(), 77.0f);
}

// Slope 3 in 4 (12 ft in 16 ft): sin = 0.6, and the webs lean by the same angle, so a node that is
// I x 0.36 x L short of its bottom node leaves L - 0.36 L = 0.64 L to each: with L = 8 ft, 5.12 ft.
// The peak takes 2 x (100 x 16 - 512).
TEST(DistributedLoad, FinkSpreadsByTributaryLengthAndThePeakTakesTheRest) {
  OpenedTruss truss("FINK", 4, 32, 12);
  ApplyLine(truss, "100");
  // The right angle of four decimals moves the lean of the webs by less than 1e-5.
  EXPECT_NEAR(truss.model().PL[1].value(), 512, 0.01);
  EXPECT_EQ(truss.model().PR[1].value(), truss.model().PL[1].value());
  EXPECT_NEAR(truss.model().PT.value(), 2176, 0.02);
  EXPECT_EQ(truss.model().PL[0].value(), 0.0f);
}

// The same with three panels a half: 0.64 x 8 = 5.12 ft at both nodes; 2 x (100 x 24 - 1024) at the
// peak.
TEST(DistributedLoad, FinkPeakTakesTheRestOfAllItsNodes) {
  OpenedTruss truss("FINK", 6, 48, 18);
  ApplyLine(truss, "100");
  EXPECT_NEAR(truss.model().PL[1].value(), 512, 0.01);
  EXPECT_NEAR(truss.model().PL[2].value(), 512, 0.02);
  EXPECT_NEAR(truss.model().PT.value(), 2752, 0.05);
}

// The web in line with the other bottom chord meets the rafter at TL H1 / (H + H1) from the heel:
// 40 x 5 / 20 = 10 ft. PL = 100 x 10, PT = 2 x 100 x (20 - 10).
TEST(DistributedLoad, ScissorsTakeTheDistanceOfTheNode) {
  OpenedTruss truss("SCI", 4, 40, 15, 5);
  ApplyLine(truss, "100");
  EXPECT_NEAR(truss.model().SCI_RUN.value(), 10, 2e-3);
  const float run = truss.model().SCI_RUN.value();
  EXPECT_FLOAT_EQ(truss.model().PL[1].value(), 100 * run);
  EXPECT_FLOAT_EQ(truss.model().PR[1].value(), 100 * run);
  EXPECT_FLOAT_EQ(truss.model().PT.value(), 200 * (20 - run));
}

// P = 100 x 15 / 3 = 500; the half panels at the heels go unloaded, the peak takes two panels.
TEST(DistributedLoad, PitchedTypesLeaveTheHeelsUnloaded) {
  for (const char* type : {"PRATT1", "ENGLISH"}) {
    OpenedTruss truss(type, 6, 30, 7.5);
    ApplyLine(truss, "100");
    EXPECT_EQ(Loads(truss), (Floats{0, 500, 500, 0})) << type;
    EXPECT_EQ(truss.model().PT.value(), 1000.0f) << type;
  }
}

// P = 100 x 8 / 2 = 400 goes into an element that no king post reads; PT is 100 x 16.
TEST(DistributedLoad, KingPostPutsTheWholeLoadOnThePeak) {
  OpenedTruss truss("KINGPOST", 4, 16, 6);
  ApplyLine(truss, "100");
  EXPECT_EQ(Loads(truss), (Floats{0, 400, 0}));
  EXPECT_EQ(truss.model().PT.value(), 1600.0f);
  EXPECT_EQ(truss.window.nodeRows, (Texts{"", "PT = 1600.00"}));
}

// 2 ft x 50 lb/sf = 100 lb/ft.
TEST(DistributedLoad, AreaLoadIsSpacingTimesLoad) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  OpenAreaLoad(truss.window);
  truss.window.trussSpacing = "2 ft";
  truss.window.areaLoad = "50";
  ApplyAreaLoad(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.session.LineLoad.value(), 100.0f);
  EXPECT_EQ(truss.model().PL[1].value(), 500.0f);
  EXPECT_FALSE(truss.window.areaLoadOpen);
}

TEST(DistributedLoad, ApplyRemembersRefillsAndCloses) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  ApplyLine(truss, "-40");
  EXPECT_EQ(truss.session.LineLoad.value(), -40.0f);
  EXPECT_EQ(truss.window.nodeRows, (Texts{"", "PL 1 = -200.00", "PT = -400.00", "PR 1 = -200.00"}));
  EXPECT_FALSE(truss.window.lineLoadOpen);
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(DistributedLoad, UnreadableFieldCountsAsZeroLoad) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  ApplyLine(truss, "40");
  ApplyLine(truss, "");
  EXPECT_EQ(truss.window.nodeRows, (Texts{"", "PL 1 = 0.00", "PT = 0.00", "PR 1 = 0.00"}));
}

TEST(DistributedLoad, WithoutSpansNothingIsDone) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  ApplyLine(truss, "40");
  truss.session.TrussSpans = 0;
  ApplyLine(truss, "80");
  ASSERT_EQ(truss.platform.messages.size(), 1u);
  EXPECT_EQ(truss.platform.messages[0].text, "BN=0,ERROR");
  EXPECT_EQ(truss.platform.messages[0].title, "Lignara");
  EXPECT_EQ(truss.session.LineLoad.value(), 40.0f);
  EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 200.00");
  EXPECT_TRUE(truss.window.lineLoadOpen);
}

TEST(DistributedLoad, LoadTooLargeToKeepChangesNothing) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  ApplyLine(truss, "40");
  ApplyLine(truss, "1e39");
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(truss.session.LineLoad.value(), 40.0f);
  EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 200.00");
  EXPECT_TRUE(truss.window.lineLoadOpen);
}

TEST(DistributedLoad, LineLoadAndAreaLoadPanelsCloseEachOther) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  OpenLineLoad(truss.window);
  EXPECT_TRUE(truss.window.lineLoadOpen);
  OpenAreaLoad(truss.window);
  EXPECT_FALSE(truss.window.lineLoadOpen);
  EXPECT_TRUE(truss.window.areaLoadOpen);
  OpenLineLoad(truss.window);
  EXPECT_TRUE(truss.window.lineLoadOpen);
  EXPECT_FALSE(truss.window.areaLoadOpen);
}

TEST(DistributedLoad, CancelOnlyClosesThePanel) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  ApplyLine(truss, "40");
  OpenLineLoad(truss.window);
  truss.window.lineLoad = "80";
  CancelDistributedLoad(truss.window);
  EXPECT_FALSE(truss.window.lineLoadOpen);
  EXPECT_FALSE(truss.window.areaLoadOpen);
  EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 200.00");
  EXPECT_EQ(truss.session.LineLoad.value(), 40.0f);
}

TEST(DistributedLoad, LaterEditsChangeOnlyTheNode) {
  OpenedTruss truss("PRATT1", 4, 20, 5);
  ApplyLine(truss, "40");
  truss.window.nodeRow = 1;
  truss.window.nodeLoad = "1";
  EnterNodeLoad(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.window.nodeRows, (Texts{"", "PL 1 = 1.00", "PT = 400.00", "PR 1 = 200.00"}));
}

}  // namespace
}  // namespace lignara
