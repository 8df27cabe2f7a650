#include "truss/reactions.h"

#include <gtest/gtest.h>

#include "tests/support/expect_box.h"
#include "tests/support/truss_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

void ExpectReactions(TestTruss& truss, double left, double right) {
  EXPECT_NEAR(truss.model().NODE_RL.value(), left, 0.02);
  EXPECT_NEAR(truss.model().NODE_RR.value(), right, 0.02);
  EXPECT_NEAR(truss.model().TOTAL_LOAD.value(), left + right, 0.02);
}

TEST(Reactions, LeverRuleOfPitchedTrusses) {
  for (const char* type : {"PRATT1", "ENGLISH"}) {
    TestTruss truss = StandardTruss(type, 6);  // 48 ft, nodes at 8 and 16 ft from each end
    truss.model().PL[1] = 600;
    truss.model().PL[2] = 300;
    truss.model().PT = 1000;
    truss.model().PR[1] = 120;
    truss.model().PR[2] = 90;
    truss.Analyse();
    // Left: 600 x 40/48 + 300 x 32/48 + 1000/2 + 120 x 8/48 + 90 x 16/48
    //     = 500 + 200 + 500 + 20 + 30 = 1250, of 2110.
    ExpectReactions(truss, 1250, 860);
  }
}

TEST(Reactions, LoadOverTheHeelOfAPitchedTrussIsNotRead) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.model().PL[0] = 5000;
  truss.model().PL[3] = 5000;  // element N is no node either
  truss.Analyse();
  ExpectReactions(truss, 0, 0);
}

TEST(Reactions, FinkNodesStandOverTheHeadsOfTheWebs) {
  TestTruss truss = StandardTruss("FINK", 6);  // heads at 5.12 and 10.24 ft
  truss.model().PL[1] = 1000;
  truss.model().PR[2] = 600;
  truss.model().PT = 500;
  truss.Analyse();
  // Left: 1000 x 42.88/48 + 250 + 600 x 10.24/48 = 893.33 + 250 + 128 = 1271.33 of 2100.
  ExpectReactions(truss, 1271.33, 828.67);
}

TEST(Reactions, KingPostReadsThePeakAlone) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.model().PL[1] = 700;
  truss.model().PR[1] = 700;
  truss.model().PT = 1000;
  truss.Analyse();
  ExpectReactions(truss, 500, 500);
}

TEST(Reactions, ScissorsNodeStandsWhereTheWebMeetsTheRafter) {
  TestTruss truss = StandardTruss("SCI", 4);  // 40 ft, node at 10 ft
  truss.model().PL[1] = 800;
  truss.model().PT = 200;
  truss.model().PR[1] = 400;
  truss.Analyse();
  // Left: 800 x 30/40 + 100 + 400 x 10/40 = 800 of 1400.
  ExpectReactions(truss, 800, 600);
}

TEST(Reactions, ParallelChordsLoadTheSupportsToo) {
  for (const char* type : {"PRATT2", "HOWE"}) {
    TestTruss truss = StandardTruss(type, 4);  // 32 ft, nodes at 0 and 8 ft from each end
    truss.model().PL[1] = 100;
    truss.model().PL[2] = 800;
    truss.model().PT = 400;
    truss.model().PR[1] = 50;
    truss.model().PR[2] = 160;
    truss.Analyse();
    // Left: 100 + 800 x 24/32 + 200 + 160 x 8/32 = 940 of 1510; the 50 stand on the right support.
    ExpectReactions(truss, 940, 570);
  }
}

TEST(Reactions, WarrenWithATopNodeAtMidspan) {
  TestTruss truss = StandardTruss("WARREN", 8);  // 64 ft, nodes at 0 and 16 ft from each end
  truss.model().PL[0] = 100;
  truss.model().PL[1] = 800;
  truss.model().PT = 400;
  truss.model().PR[0] = 50;
  truss.model().PR[1] = 160;
  truss.model().PL[2] = 9999;  // NS / 4 is beyond the nodes
  truss.Analyse();
  // Left: 100 + 800 x 48/64 + 200 + 160 x 16/64 = 940 of 1510.
  ExpectReactions(truss, 940, 570);
}

TEST(Reactions, WarrenWithoutATopNodeAtMidspanLeavesThePeakOut) {
  TestTruss truss = StandardTruss("WARREN", 6);  // 48 ft, nodes at 0 and 16 ft from each end
  truss.model().PL[0] = 300;
  truss.model().PL[1] = 1200;
  truss.model().PT = 7777;
  truss.model().PR[0] = 300;
  truss.model().PR[1] = 600;
  truss.Analyse();
  // Left: 300 + 1200 x 32/48 + 600 x 16/48 = 1300 of 2400.
  ExpectReactions(truss, 1300, 1100);
}

TEST(Reactions, WarrenWithoutAChordNameLeavesAllAsItIs) {
  TestTruss truss = StandardTruss("WARREN", 6);
  truss.LoadAllNodes(100);
  truss.model().WarrenChord = "";
  truss.model().NODE_RL = 11;
  truss.model().NODE_RR = 12;
  truss.model().TOTAL_LOAD = 13;
  TrussJob job = truss.Job();
  REACTIONS_WARREN(job);
  EXPECT_EQ(truss.model().NODE_RL.value(), 11);
  EXPECT_EQ(truss.model().NODE_RR.value(), 12);
  EXPECT_EQ(truss.model().TOTAL_LOAD.value(), 13);
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(Reactions, EachRoutineRefusesNoLength) {
  for (void (*reactions)(TrussJob&) : {REACTIONS, REACTIONS_FINK, REACTIONS_KINGPOST, REACTIONS_SCI,
                                       REACTIONS_FLAT, REACTIONS_WARREN}) {
    TestTruss truss = StandardTruss("WARREN", 4);
    truss.session.TrussLength = 0;
    truss.model().PT = 100;
    truss.model().NODE_RL = 11;
    TrussJob job = truss.Job();
    TRUSS_ALLOC(job);
    reactions(job);
    ExpectSingleBox(truss.platform, "TOTAL LENGTH (TL) IS 0!", "ERROR!");
    EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
    EXPECT_EQ(truss.model().NODE_RL.value(), 11);
  }
}

TEST(Reactions, NegativeLoadsPullTheSupportsUp) {
  TestTruss truss = StandardTruss("PRATT1", 4);  // 32 ft
  truss.model().PL[1] = -400;
  truss.Analyse();
  ExpectReactions(truss, -300, -100);  // -400 x 24/32
}

TEST(ShowReactions, TwoDecimals) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.model().NODE_RL = 1234.567;
  truss.model().NODE_RR = -0.001;
  SHOW_REACTIONS(truss.window);
  EXPECT_EQ(truss.window.leftReaction, "1234.57");
  EXPECT_EQ(truss.window.rightReaction, "0.00");
}

}  // namespace
}  // namespace lignara
