// What the window tells besides its figures: tension and compression beside the forces, the highest
// stress ratio, results that are older than their input, and why a list is empty.
//
// The trusses are King posts of 24 ft by 5 ft: with P at the peak the rafters bear P/2 x 13/5 = 1.3
// P in compression and the tie P/2 x 12/5 = 1.2 P in tension.

#include "truss/window_marks.h"

#include <gtest/gtest.h>

#include "tests/support/opened_truss.h"
#include "truss/changed_since_run.h"
#include "truss/force_and_length_lists.h"

namespace lignara {
namespace {

class WindowMarksTest : public testing::Test {
 protected:
  WindowMarksTest() : truss("KINGPOST", 4, 24, 5) {
    truss.ChooseMembers(10, 1e6);
    for (TrussMemberGroup& group : truss.session.Member.Groups) {
      group.GroupFt = 100;
      group.GroupFa = 120;
    }
    truss.model().PT = 1000;
  }

  void Run() {
    truss.Run();
    Show();
  }
  void Show() { ShowMarks(truss.window, truss.session); }
  TrussWindow& window() { return truss.window; }

  OpenedTruss truss;
};

TEST_F(WindowMarksTest, RowsOfForcesTellTensionFromCompression) {
  Run();
  ASSERT_EQ(window().axialRows.size(), 6u);
  ASSERT_EQ(window().axialNotes.size(), 6u);
  EXPECT_EQ(window().axialNotes[0].note, "");  // the blank row
  EXPECT_EQ(window().axialRows[1], "TL1 = 1300.00");
  EXPECT_EQ(window().axialNotes[1].note, "C");
  EXPECT_EQ(window().axialRows[3], "CL1 = 1200.00");
  EXPECT_EQ(window().axialNotes[3].note, "T");
  EXPECT_EQ(window().axialRows[5], "CV = 0.00");
  EXPECT_EQ(window().axialNotes[5].note, "");
}

TEST_F(WindowMarksTest, BeforeARunThereAreNoNotes) {
  Show();
  EXPECT_TRUE(window().axialNotes.empty());
  EXPECT_EQ(window().status, "");
}

TEST_F(WindowMarksTest, MembersAboveTheirAllowableStressAreMarked) {
  // 1300 lbs on 10 in^2 are 130 psi, 1200 lbs are 120 psi; allowable is the lesser, 100 psi.
  Run();
  EXPECT_TRUE(window().axialNotes[1].warned);
  EXPECT_TRUE(window().axialNotes[3].warned);
  EXPECT_FALSE(window().axialNotes[5].warned);
  EXPECT_EQ(window().axialNotes[1].spoken, "compression, above its allowable stress");
  EXPECT_EQ(window().status,
            "Highest stress ratio 1.30: TL 1, 130.00 of 100.00 psi; 4 members above their "
            "allowable stress");
}

TEST_F(WindowMarksTest, AStressThatIsJustAllowedIsNotMarked) {
  truss.session.Member.Group(MemberGroup::Top).GroupFt = 130;
  truss.session.Member.Group(MemberGroup::Top).GroupFa = 140;
  truss.session.Member.Group(MemberGroup::Bottom).GroupFt = 130;
  truss.session.Member.Group(MemberGroup::Bottom).GroupFa = 125;
  Run();
  EXPECT_FALSE(window().axialNotes[1].warned);
  EXPECT_EQ(window().status, "Highest stress ratio 1.00: TL 1, 130.00 of 130.00 psi");
}

TEST_F(WindowMarksTest, OneMemberAboveItsAllowableStressIsCountedAsOne) {
  truss.model().PT = 10;  // 1.3 psi and 1.2 psi
  truss.session.Member.Group(MemberGroup::Top).GroupFt = 1.25;
  truss.session.Member.Group(MemberGroup::Bottom).GroupFt = 1.25;
  Run();
  EXPECT_EQ(window().status,
            "Highest stress ratio 1.04: TL 1, 1.30 of 1.25 psi; 2 members above their allowable "
            "stress");
}

TEST_F(WindowMarksTest, StressLinesShowTheRatioAtTheHeadOfEachMember) {
  Run();
  ASSERT_EQ(window().stressNotes.size(), window().stressRows.size());
  EXPECT_EQ(window().stressRows[1], "TL1");
  EXPECT_EQ(window().stressNotes[1].note, "1.30");
  EXPECT_TRUE(window().stressNotes[1].warned);
  EXPECT_TRUE(window().stressNotes[4].warned);
  EXPECT_EQ(window().stressNotes[4].note, "");
  EXPECT_EQ(window().stressRows[17], "CV");
  EXPECT_EQ(window().stressNotes[17].note, "0.00");
  EXPECT_FALSE(window().stressNotes[17].warned);
}

TEST_F(WindowMarksTest, WithoutAnAllowableStressThereIsNoRatio) {
  for (TrussMemberGroup& group : truss.session.Member.Groups) group.GroupFt = 0;
  Run();
  EXPECT_EQ(window().status,
            "No allowable stress to compare with: TL 1; 4 members above their allowable stress");
  EXPECT_EQ(window().stressNotes[1].note, "");
  EXPECT_TRUE(window().stressNotes[1].warned);
}

TEST_F(WindowMarksTest, WithoutMembersTheStatusTellsWhatIsMissing) {
  for (TrussMemberGroup& group : truss.session.Member.Groups) group.GroupArea = 0;
  Run();
  EXPECT_EQ(window().status, "No stresses: needs wood type and size");
  EXPECT_EQ(window().whyNoStresses, "needs wood type and size");
  EXPECT_EQ(window().whyNoDeflections, "needs wood type and size");
}

TEST_F(WindowMarksTest, EmptyListsWaitForARun) {
  Show();
  EXPECT_EQ(window().whyNoForces, "needs a run");
  EXPECT_EQ(window().whyNoStresses, "needs a run");
  EXPECT_EQ(window().whyNoDeflections, "needs a run");
}

TEST_F(WindowMarksTest, ResultsAreOutOfDateFromAChangedLoadToTheNextRun) {
  Run();
  EXPECT_FALSE(window().outOfDate);
  window().nodeRow = 1;
  window().nodeLoad = "1,200";  // read as 1
  EnterNodeLoad(window(), truss.session, truss.platform);
  Show();
  EXPECT_TRUE(window().outOfDate);
  EXPECT_EQ(window().status, "Results are out of date: loads or members have changed. Run again.");
  EXPECT_EQ(window().view.drawing.scene.note, "Forces are out of date: run again");
  Run();
  EXPECT_FALSE(window().outOfDate);
  EXPECT_EQ(window().view.drawing.scene.note, "");
}

TEST_F(WindowMarksTest, ALoadThatIsTakenBackIsNoChange) {
  Run();
  truss.model().PT = 2000;
  EXPECT_TRUE(IsOutOfDate(window(), truss.session));
  truss.model().PT = 1000;
  EXPECT_FALSE(IsOutOfDate(window(), truss.session));
}

TEST_F(WindowMarksTest, ResultsAreOutOfDateAfterAnyChangeOfAMember) {
  Run();
  for (Float32 TrussMemberGroup::*number :
       {&TrussMemberGroup::GroupArea, &TrussMemberGroup::GroupB, &TrussMemberGroup::GroupD,
        &TrussMemberGroup::GroupFt, &TrussMemberGroup::GroupFa, &TrussMemberGroup::GroupE}) {
    Float32& value = truss.session.Member.Group(MemberGroup::Diagonal).*number;
    const Float32 before = value;
    value = before + 1;
    EXPECT_TRUE(IsOutOfDate(window(), truss.session));
    value = before;
    EXPECT_FALSE(IsOutOfDate(window(), truss.session));
  }
}

TEST_F(WindowMarksTest, BeforeARunNothingIsOutOfDate) {
  truss.model().PT = 5;
  EXPECT_FALSE(IsOutOfDate(window(), truss.session));
}

TEST_F(WindowMarksTest, StressesOfAnOlderRunAreMarkedAsOlder) {
  Run();
  EXPECT_FALSE(AreStressesOlder(window()));
  EXPECT_FALSE(AreDeflectionsOlder(window()));
  truss.session.Member.Group(MemberGroup::Top).GroupArea = 0;
  Run();
  EXPECT_FALSE(window().outOfDate);  // the forces are new
  EXPECT_FALSE(window().stressRows.empty());
  EXPECT_TRUE(AreStressesOlder(window()));
  EXPECT_TRUE(AreDeflectionsOlder(window()));
}

TEST_F(WindowMarksTest, AChosenRowLightsItsMember) {
  Run();
  SelectAxialRow(window(), 3);
  const auto lit = LitMember(window(), truss.session);
  ASSERT_TRUE(lit);
  EXPECT_EQ(MemberLabel(*lit), "CL 1");
  SelectAxialRow(window(), 0);  // the blank row
  EXPECT_FALSE(LitMember(window(), truss.session));
}

TEST_F(WindowMarksTest, AMemberHitLightsItsRowAndTellsItsSense) {
  Run();
  const MarkPoint mark = window().view.MemberMark.at({Family::CR, 1});
  HitTruss(window(), truss.session, mark.x.value(), mark.y.value());
  Show();
  EXPECT_EQ(window().axialRow, 4);
  EXPECT_EQ(window().axialRows[4], "CR1 = 1200.00");
  EXPECT_EQ(window().hitSense, "T");
  const MarkPoint rafter = window().view.MemberMark.at({Family::TL, 1});
  HitTruss(window(), truss.session, rafter.x.value(), rafter.y.value());
  Show();
  EXPECT_EQ(window().axialRow, 1);
  EXPECT_EQ(window().hitSense, "C");
}

TEST_F(WindowMarksTest, ReportsDoNotReadTheMarks) {
  Run();
  const std::vector<std::string> rows = window().stressRows;
  truss.model().PT = 5;
  Show();
  EXPECT_EQ(window().stressRows, rows);
}

}  // namespace
}  // namespace lignara
