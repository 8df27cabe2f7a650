#include "app/session_state.h"

#include <gtest/gtest.h>

#include "app/launcher.h"

namespace lignara {
namespace {

SessionState StartedSession() {
  SessionState session;
  StartSession(session, "work");
  return session;
}

TEST(SessionStart, NothingIsChosenYet) {
  const SessionState session = StartedSession();
  EXPECT_EQ(session.TrussType, "");
  EXPECT_EQ(session.DesignMode, "");
  EXPECT_EQ(session.SpanCount.value(), 0);
  EXPECT_EQ(session.ReportTitle, "");
  EXPECT_EQ(session.ReportDescription, "");
  EXPECT_EQ(session.LastWoodTypes, "");
  EXPECT_EQ(session.LastGrade, "");
  EXPECT_EQ(session.unitSystem.value(), 0);
}

TEST(SessionStart, NoTrussHasDimensions) {
  const SessionState session = StartedSession();
  for (const Float32* number :
       {&session.TrussSpans, &session.TrussLength, &session.TrussHeight, &session.TrussInnerHeight,
        &session.PanelLength, &session.LineLoad}) {
    EXPECT_EQ(number->value(), 0.0f);
  }
}

TEST(SessionStart, DataDirectoryIsTheCurrentOneWithABackslash) {
  EXPECT_EQ(StartedSession().DataDirectory, "work\\");
}

TEST(SessionStart, ReportsAreSetInTimesAtTenPoints) {
  const SessionState session = StartedSession();
  EXPECT_EQ(session.ReportFont.Name, "Times New Roman");
  EXPECT_EQ(session.ReportFont.Size.value(), 10);
}

TEST(MemberSelectionStart, TheBeamMemberIsNeutral) {
  const SessionState session = StartedSession();
  const MemberSelection& member = session.Member;
  for (const Float32* number :
       {&member.SectionArea, &member.SectionIx, &member.SectionIy, &member.SectionSx,
        &member.SectionSy, &member.AllowFb, &member.AllowFc, &member.AllowFcPerp, &member.AllowFt,
        &member.AllowFv}) {
    EXPECT_EQ(number->value(), 1.0f);
  }
  EXPECT_EQ(member.ModulusE.value(), 1000000.0f);
  EXPECT_EQ(member.SizeName, "CUSTOM");
  EXPECT_EQ(member.WoodTypeText, "CUSTOM");
}

TEST(MemberSelectionStart, NothingWasPickedOrRead) {
  const SessionState session = StartedSession();
  const MemberSelection& member = session.Member;
  for (const Float32* number :
       {&member.NominalWidth, &member.NominalDepth, &member.DressedB, &member.DressedD,
        &member.ScratchArea, &member.BeamDepthOverB2, &member.DataBaseE}) {
    EXPECT_EQ(number->value(), 0.0f);
  }
  EXPECT_EQ(member.GradeText, "");
  EXPECT_EQ(member.BeamGradeLabel, "");
  EXPECT_EQ(member.DataBaseReturn.value(), 0);
  EXPECT_EQ(member.MemberSource.value(), 0);
}

TEST(MemberSelectionStart, TheFourTrussGroupsAreEmpty) {
  const SessionState session = StartedSession();
  ASSERT_EQ(session.Member.Groups.size(), 4u);
  for (const TrussMemberGroup& group : session.Member.Groups) {
    for (const Float32* number : {&group.GroupArea, &group.GroupDepthOverB2, &group.GroupB,
                                  &group.GroupD, &group.GroupFt, &group.GroupFa, &group.GroupE}) {
      EXPECT_EQ(number->value(), 0.0f);
    }
    EXPECT_EQ(group.GroupSizeName, "");
    EXPECT_EQ(group.GroupGradeLabel, "");
  }
}

TEST(MemberSelection, GroupsStandInTheOrderTopBottomVerticalDiagonal) {
  MemberSelection member;
  member.Group(MemberGroup::Top).GroupArea = 1;
  member.Group(MemberGroup::Bottom).GroupArea = 2;
  member.Group(MemberGroup::Vertical).GroupArea = 3;
  member.Group(MemberGroup::Diagonal).GroupArea = 4;
  for (int i = 0; i < kMemberGroups; ++i) {
    EXPECT_EQ(member.Groups[static_cast<std::size_t>(i)].GroupArea.value(), i + 1.0f);
  }
  const MemberSelection& read = member;
  EXPECT_EQ(read.Group(MemberGroup::Vertical).GroupArea.value(), 3.0f);
}

TEST(SessionStart, StartingAnewForgetsTheMember) {
  SessionState session = StartedSession();
  session.Member.SizeName = "2X4";
  session.Member.Group(MemberGroup::Top).GroupArea = 5.25;
  session.ReportFont.Size = 8;
  StartSession(session, "work");
  EXPECT_EQ(session.Member.SizeName, "CUSTOM");
  EXPECT_EQ(session.Member.Group(MemberGroup::Top).GroupArea.value(), 0.0f);
  EXPECT_EQ(session.ReportFont.Size.value(), 10);
}

}  // namespace
}  // namespace lignara
