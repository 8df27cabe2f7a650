#include "truss/force_and_length_lists.h"

#include <gtest/gtest.h>

#include "tests/support/expect_box.h"
#include "tests/support/truss_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

TEST(ShowAxial, BlankRowThenMagnitudesOfAllMembers) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.model().PT = 1000;
  truss.Analyse();
  SHOW_AXIAL(truss.window, truss.session);
  // Rafter 500/0.6, tie 500/0.75; the rafter is in compression and shown without its sign.
  EXPECT_EQ(truss.window.axialRows, (Texts{"", "TL1 = 833.33", "TR1 = 833.33", "CL1 = 666.67",
                                           "CR1 = 666.67", "CV = 0.00"}));
}

TEST(ShowAxial, NoLoadsNoForcesButAllRows) {
  TestTruss truss = StandardTruss("PRATT1", 4);
  truss.Analyse();
  SHOW_AXIAL(truss.window, truss.session);
  EXPECT_EQ(truss.window.axialRows,
            (Texts{"", "TL 1 = 0.00", "TL 2 = 0.00", "TR 1 = 0.00", "TR 2 = 0.00", "CL 1 = 0.00",
                   "CL 2 = 0.00", "CR 1 = 0.00", "CR 2 = 0.00", "DL 2 = 0.00", "DR 2 = 0.00",
                   "VL 1 = 0.00", "VR 1 = 0.00", "CV = 0.00"}));
}

TEST(ShowAxial, ParallelChordsByHand) {
  TestTruss truss = StandardTruss("HOWE", 4);
  for (Float32Array* loads : {&truss.model().PL, &truss.model().PR}) {
    (*loads)[1] = 500;
    (*loads)[2] = 1000;
  }
  truss.model().PT = 1000;
  truss.Analyse();
  SHOW_AXIAL(truss.window, truss.session);
  // Shear 1500 and 500: diagonals / 0.6, chords 1500/0.75 and + 500/0.75.
  EXPECT_EQ(
      truss.window.axialRows,
      (Texts{"", "TL 1 = 0.00", "TL 2 = 2000.00", "TR 1 = 0.00", "TR 2 = 2000.00", "CL 1 = 2000.00",
             "CL 2 = 2666.67", "CR 1 = 2000.00", "CR 2 = 2666.67", "DL 1 = 2500.00",
             "DL 2 = 833.33", "DR 1 = 2500.00", "DR 2 = 833.33", "VL 1 = 500.00", "VL 2 = 500.00",
             "VR 1 = 500.00", "VR 2 = 500.00", "CV = 0.00"}));
}

TEST(ShowAxial, ReplacesTheListOfTheRunBefore) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.window.axialRows = {"old", "older"};
  truss.Analyse();
  SHOW_AXIAL(truss.window, truss.session);
  EXPECT_EQ(truss.window.axialRows.size(), 6u);
  EXPECT_EQ(truss.window.axialRows[0], "");
}

TEST(MemberLengths, NeedARunWithoutError) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  ShowMemberLengths(truss.window, truss.session, truss.platform);
  ExpectSingleBox(truss.platform, "YOU MUST HIT RUN TO GET LENGTHS!");
  EXPECT_FALSE(truss.window.lengthsOpen);
  EXPECT_TRUE(truss.window.lengthRows.empty());
}

TEST(MemberLengths, SameRowsFromTheLengths) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  ShowMemberLengths(truss.window, truss.session, truss.platform);
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_TRUE(truss.window.lengthsOpen);
  EXPECT_EQ(truss.window.lengthRows,
            (Texts{"", "TL1 = 20.00", "TR1 = 20.00", "CL1 = 16.00", "CR1 = 16.00", "CV = 12.00"}));
  CloseMemberLengths(truss.window);
  EXPECT_FALSE(truss.window.lengthsOpen);
}

TEST(MemberLengths, HalvesOfEnglishDiffer) {
  TestTruss truss = StandardTruss("ENGLISH", 6);
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  ShowMemberLengths(truss.window, truss.session, truss.platform);
  const Texts& rows = truss.window.lengthRows;
  // sqrt(8^2 + 12^2), sqrt(8^2 + 18^2); on the right sqrt(8^2 + 6^2)
  EXPECT_EQ((Texts{rows[13], rows[14], rows[15], rows[16]}),
            (Texts{"DL 2 = 14.42", "DL 3 = 19.70", "DR 2 = 10.00", "DR 3 = 19.70"}));
}

// The lists are those of the last run, which stands behind them whether they are open or not.
}  // namespace
}  // namespace lignara
