// Stresses of the data base on their way to the members.

#include "wood/stresses_for_ticked_groups.h"

#include "tests/wood/member_size_fixture.h"

namespace lignara {
namespace {

class TickedGroups : public MemberSizeTest {};

TEST_F(TickedGroups, SaysBeforeTheVisitThatNoGroupIsTicked) {
  Open("TRUSS");
  EXPECT_EQ(TicksNote(window),
            "No members are ticked: stresses from the data base will go to none. Tick first.");
  window.Group(MemberGroup::Diagonal).ticked = true;
  EXPECT_EQ(TicksNote(window), "");
  Open("BEAM");
  window.groups = {};
  EXPECT_EQ(TicksNote(window), "");
}

TEST_F(TickedGroups, DataBaseOpensAndLeavesItsFlag) {
  Open("TRUSS");
  VisitWoodDataBase(session, platform);
  EXPECT_EQ(member().DataBaseReturn.value(), -1);
  EXPECT_EQ(platform.calls, Texts{"open wdb"});
}

TEST_F(TickedGroups, TickedGroupsTakeTheStresses) {
  Open("TRUSS");
  Group(MemberGroup::Bottom).GroupFa = 77.0;
  window.Group(MemberGroup::Top).ticked = true;
  window.Group(MemberGroup::Diagonal).ticked = true;
  VisitDataBase();
  for (const MemberGroup group : {MemberGroup::Top, MemberGroup::Diagonal}) {
    EXPECT_EQ(Group(group).GroupFt.value(), 525.0F);
    EXPECT_EQ(Group(group).GroupFa.value(), 1300.25F);
    EXPECT_EQ(Group(group).GroupE.value(), 1300000.0F);
    EXPECT_EQ(Group(group).GroupGradeLabel, "No.2, Hem-Fir");
    const GroupPanel& panel = window.Group(group);
    EXPECT_EQ((Texts{panel.ft, panel.fa, panel.e, panel.gradeLabel}),
              (Texts{"525.00", "1300.25", "1.30E+06", "No.2, Hem-Fir"}));
  }
  EXPECT_EQ(Group(MemberGroup::Bottom).GroupFa.value(), 77.0F);
  EXPECT_EQ(Group(MemberGroup::Bottom).GroupGradeLabel, "");
  EXPECT_EQ(window.Group(MemberGroup::Bottom).fa, "77.00");
  EXPECT_EQ(Group(MemberGroup::Vertical).GroupE.value(), 0.0F);
}

TEST_F(TickedGroups, WithoutAVisitTicksTakeNothing) {
  Open("TRUSS");
  for (GroupPanel& group : window.groups) group.ticked = true;
  ReturnFromWoodDataBase(window, session, platform);
  EXPECT_EQ(Group(MemberGroup::Top).GroupFa.value(), 0.0F);
}

TEST_F(TickedGroups, ASecondVisitCopiesAgain) {
  Open("TRUSS");
  window.Group(MemberGroup::Top).ticked = true;
  VisitDataBase();
  window.Group(MemberGroup::Top).ticked = false;
  window.Group(MemberGroup::Bottom).ticked = true;
  ReturnFromWoodDataBase(window, session, platform);
  EXPECT_EQ(Group(MemberGroup::Bottom).GroupFt.value(), 525.0F);
  EXPECT_EQ(Group(MemberGroup::Top).GroupFt.value(), 525.0F);
}

TEST_F(TickedGroups, BeamShowsTheStressesAfterAVisit) {
  Open("BEAM");
  AcceptPair(2, 10);
  VisitDataBase();
  const BeamPanel& beam = window.beam;
  EXPECT_EQ((Texts{beam.fb, beam.fa, beam.fv, beam.ft, beam.e, beam.gradeLabel}),
            (Texts{"850.00", "1300.25", "75.00", "525.00", "1.30E+06", "No.2, Hem-Fir"}));
  EXPECT_EQ((Texts{beam.b, beam.d, beam.area}), (Texts{"1.50", "9.25", "13.88"}));
  EXPECT_EQ(beam.size, "CUSTOM");  // the stored name: "OK" has not been pressed yet
  EXPECT_EQ(window.selection.size, "2X10");
}

}  // namespace
}  // namespace lignara
