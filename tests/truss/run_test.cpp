#include <gtest/gtest.h>

#include "tests/support/opened_truss.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

const char* const kNoDeflections = "AREA OR MOD. PROP. NOT SELECTED, NO DEF. WILL BE CALCULATED";
const char* const kNoStress = "NO STRESS WILL BE CALCULATED, NEED WOOD TYPE & SIZE";

TEST(Run, WithoutMembersShowsForcesAndCountsAsFailed) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.model().PT = 1000;
  truss.window.deflectionRows = {"of an older run"};
  truss.window.stressRows = {"of an older run"};
  truss.Run();
  EXPECT_EQ(truss.platform.messages.size(), 2u);
  for (const Message& message : truss.platform.messages) EXPECT_EQ(message.title, "Lignara");
  EXPECT_EQ(truss.platform.TakeTexts(), (Texts{kNoDeflections, kNoStress}));
  EXPECT_EQ(truss.model().RunState.value(), 0);
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.window.leftReaction, "500.00");
  EXPECT_EQ(truss.window.rightReaction, "500.00");
  EXPECT_EQ(truss.window.axialRows.at(1), "TL1 = 833.33");
  EXPECT_EQ(truss.window.deflectionRows, Texts{"of an older run"});
  EXPECT_EQ(truss.window.stressRows, Texts{"of an older run"});
}

TEST(Run, WithMembersFillsAllListsAndSucceeds) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.model().PT = 1000;
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_EQ(truss.model().RunState.value(), 1);
  EXPECT_EQ(truss.model().ErrorFlag.value(), 0);
  EXPECT_EQ(truss.window.deflectionRows.size(), 1u);
  EXPECT_EQ(truss.window.stressRows.size(), 1u + 4 * 5);
  EXPECT_TRUE(truss.window.view.resultsShown);
}

TEST(Run, SuccessClearsTheErrorOfTheRunBefore) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.Run();
  EXPECT_EQ(truss.model().RunState.value(), 0);
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_EQ(truss.model().RunState.value(), 1);
}

TEST(Run, PointerIsBusyForTheLengthOfTheRun) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_EQ(truss.platform.calls, (Texts{"busy on", "busy off"}));
}

TEST(Run, EveryTypeRunsFromLoadsToStresses) {
  for (const char* type : {"PRATT1", "FINK", "KINGPOST", "SCI", "HOWE", "PRATT2", "WARREN"}) {
    for (const int spans : {4, 6, 8}) {
      TestTruss truss = StandardTruss(type, spans);
      truss.LoadAllNodes(1000);
      truss.ChooseMembers(10, 1e6);
      truss.Run();
      EXPECT_EQ(truss.platform.TakeTexts(), Texts{}) << type << spans;
      EXPECT_EQ(truss.model().RunState.value(), 1) << type << spans;
      EXPECT_FALSE(truss.window.deflectionRows.empty()) << type << spans;
      EXPECT_GT(truss.window.stressRows.size(), 1u) << type << spans;
    }
  }
}

// The stress list of an English truss names diagonals of the end panels, which are no members.
TEST(Run, EnglishRunsToItsEndWithoutABox) {
  TestTruss truss = StandardTruss("ENGLISH", 6);
  truss.LoadAllNodes(1000);
  truss.ChooseMembers(10, 1e6);
  for (TrussMemberGroup& group : truss.session.Member.Groups) {
    group.GroupB = 1.5;
    group.GroupD = 5.5;
  }
  truss.Run();
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_EQ(truss.model().RunState.value(), 1);
}

TEST(Run, LoadsOfTheUserAreAsBefore) {
  TestTruss truss = StandardTruss("FINK", 6);
  truss.model().PL[0] = 1;
  truss.model().PL[1] = 2;
  truss.model().PL[2] = 3;
  truss.model().PL[3] = 4;
  truss.model().PR[1] = 5;
  truss.model().PT = 6;
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  for (int i = 0; i <= 3; ++i) EXPECT_EQ(truss.model().PL[i].value(), i + 1);
  EXPECT_EQ(truss.model().PR[1].value(), 5);
  EXPECT_EQ(truss.model().PT.value(), 6);
}

TEST(Run, ReactionsOnScreenAreTheTruthAndThoseOfTheModelAreOfTheLastUnitLoad) {
  TestTruss truss = StandardTruss("PRATT1", 4);
  truss.LoadAllNodes(1000);
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_EQ(truss.window.leftReaction, "1500.00");
  EXPECT_EQ(truss.window.rightReaction, "1500.00");
  EXPECT_NEAR(truss.model().NODE_RL.value(), 0.5, 1e-6);  // 1 lb on the peak
  EXPECT_NEAR(truss.model().AX_TL[1].value(), -2500, 0.05);
}

TEST(Run, ScissorsWithTooHighBottomChordsFailOncePerAnalysis) {
  TestTruss truss("SCI", 4, 40, 15, 20);
  truss.LoadAllNodes(1000);
  truss.Run();
  EXPECT_EQ(truss.platform.TakeTexts(),
            (Texts{"TEMP2 OR TOPARM=0, ERROR", kNoDeflections, kNoStress}));
  // With members: the run itself, and the unit loads on PL 1, PR 1 and PT.
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_EQ(truss.platform.TakeTexts(), Texts(4, "TEMP2 OR TOPARM=0, ERROR"));
  EXPECT_EQ(truss.model().RunState.value(), 0);
  EXPECT_EQ(truss.window.axialRows.at(1), "TL1 = 0.00");
}

TEST(Run, AnAreaOfAnyGroupIsNeededForTheStresses) {
  for (const MemberGroup group :
       {MemberGroup::Top, MemberGroup::Bottom, MemberGroup::Vertical, MemberGroup::Diagonal}) {
    TestTruss truss = StandardTruss("KINGPOST", 4);  // has no diagonals
    truss.ChooseMembers(10, 1e6);
    truss.session.Member.Group(group).GroupArea = 0;
    truss.Run();
    EXPECT_EQ(truss.platform.TakeTexts(), (Texts{kNoDeflections, kNoStress}));
  }
}

TEST(Run, WithoutAModulusTheStressesAreCheckedAllTheSame) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.ChooseMembers(10, 1e6);
  truss.session.Member.Group(MemberGroup::Diagonal).GroupE = 0;
  truss.Run();
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{kNoDeflections});
  EXPECT_EQ(truss.window.stressRows.size(), 1u + 4 * 5);
  EXPECT_EQ(truss.model().RunState.value(), 0);
}

TEST(Run, NegativeAreaHasStressesButNoDeflections) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.ChooseMembers(10, 1e6);
  truss.session.Member.Group(MemberGroup::Top).GroupArea = -10;
  truss.Run();
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{kNoDeflections});
  EXPECT_EQ(truss.window.stressRows.size(), 1u + 4 * 5);
}

TEST(Run, AFaultShowsItsBoxAndTheRunGoesOn) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.session.TrussHeight = 1e30;  // the square of the rafter passes 32 bits, its root does not
  truss.session.TrussLength = 1e30;
  truss.session.PanelLength = 5e29;
  truss.model().PT = 3e38;
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_NEAR(truss.model().LEN_TL[1].value() / 1.118034e30, 1, 1e-5);  // 1e30 sqrt(1 + 1/4)
  // Products of force and length pass 32 bits in the deflection, which is then left out.
  const Texts boxes = truss.platform.TakeTexts();
  EXPECT_FALSE(boxes.empty());
  for (const std::string& text : boxes) EXPECT_EQ(text, FaultText(Fault::Overflow));
  EXPECT_EQ(truss.model().RunState.value(), 1);
  EXPECT_FALSE(truss.window.stressRows.empty());
}

TEST(Run, TellsNoFaultOfThePictureOnceMore) {
  // 4320 canvas units over 0.1 ft are 43200 a foot, more than 16 bits hold: opening tells so.
  OpenedTruss truss("PRATT1", 4, 0.1, 1);
  EXPECT_FALSE(truss.platform.TakeTexts().empty());
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{});
}

}  // namespace
}  // namespace lignara
