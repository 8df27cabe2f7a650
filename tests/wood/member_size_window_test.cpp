#include "wood/member_size_window.h"

#include "app/number_pattern.h"
#include "tests/wood/member_size_fixture.h"

namespace lignara {
namespace {

class MemberSizeWindowTest : public MemberSizeTest {};

TEST_F(MemberSizeWindowTest, PanelsOfTheMode) {
  Open("TRUSS");
  EXPECT_TRUE(window.groupsShown);
  EXPECT_FALSE(window.beamShown);
  Open("BEAM");
  EXPECT_FALSE(window.groupsShown);
  EXPECT_TRUE(window.beamShown);
}

TEST_F(MemberSizeWindowTest, CaptionsOfTheGroups) {
  const std::array<Texts, 4> expected = {{{"Top Members ", "Top Mem."},
                                          {"Bottom Members ", "Bottom Mem."},
                                          {"Vertical Members ", "Vert. Mem."},
                                          {"Diagnal Members ", "Diag. Mem."}}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ((Texts{kGroupCaptions[i].panel, kGroupCaptions[i].check}), expected[i]);
  }
}

TEST_F(MemberSizeWindowTest, OpensWithoutAPickATickOrTheMark) {
  Open("TRUSS");
  AcceptPair(2, 4);
  AcceptPair(1, 2);
  window.Group(MemberGroup::Top).ticked = true;
  Open("TRUSS");
  EXPECT_EQ(window.widthPick, -1);
  EXPECT_EQ(window.depthPick, -1);
  EXPECT_FALSE(window.sizeInProgress);
  for (const GroupPanel& group : window.groups) EXPECT_FALSE(group.ticked);
  EXPECT_EQ(SizeTexts(), (Texts{"", "", ""}));
}

// Filling.

TEST_F(MemberSizeWindowTest, FirstBeamIsNeutral) {
  Open("BEAM");
  const BeamPanel& beam = window.beam;
  EXPECT_EQ((Texts{beam.fb, beam.fa, beam.fv, beam.ft, beam.e, beam.b, beam.d}),
            (Texts{"1.00", "1.00", "1.00", "1.00", "1.00E+06", "0.00", "0.00"}));
  EXPECT_EQ((Texts{beam.area, beam.ix, beam.iy, beam.sx, beam.sy, beam.size, beam.gradeLabel}),
            (Texts{"1.00", "1.00", "1.00", "1.00", "1.00", "CUSTOM", ", CUSTOM"}));
  EXPECT_EQ(SizeTexts(), (Texts{"CUSTOM", "", ""}));
}

TEST_F(MemberSizeWindowTest, EachBeamBoxShowsItsField) {
  MemberSelection& m = member();
  m.AllowFb = 1.125;
  m.AllowFc = 2;
  m.AllowFv = 3;
  m.AllowFt = 4;
  m.ModulusE = 1655000;
  m.DressedB = 5;
  m.DressedD = 6;
  m.SectionArea = 7;
  m.SectionIx = 8;
  m.SectionIy = 9;
  m.SectionSx = 10;
  m.SectionSy = 11;
  m.SizeName = "3X12";
  m.GradeText = "Stud";
  m.WoodTypeText = "Redwood";
  Open("BEAM");
  const BeamPanel& beam = window.beam;
  EXPECT_EQ((Texts{beam.fb, beam.fa, beam.fv, beam.ft, beam.e, beam.b, beam.d}),
            (Texts{"1.13", "2.00", "3.00", "4.00", "1.66E+06", "5.00", "6.00"}));
  EXPECT_EQ((Texts{beam.area, beam.ix, beam.iy, beam.sx, beam.sy, beam.size, beam.gradeLabel}),
            (Texts{"7.00", "8.00", "9.00", "10.00", "11.00", "3X12", "Stud, Redwood"}));
}

TEST_F(MemberSizeWindowTest, ShowingABeamChangesNothing) {
  member().DressedB = 5.125;
  member().DressedD = 18.0;
  member().SectionArea = 92.25;
  member().SectionIx = 2490.75;
  member().SizeName = "GLULAM";
  Open("BEAM");
  EXPECT_EQ(member().DressedB.value(), 5.125F);
  EXPECT_EQ(member().SectionArea.value(), 92.25F);
  EXPECT_EQ(window.beam.size, "GLULAM");
  Ok();
  EXPECT_EQ(member().SizeName, "GLULAM");
  EXPECT_EQ(member().SectionIx.value(), 2490.75F);
  EXPECT_EQ(member().DressedB.value(), 5.13F);  // the two decimals of its box
}

TEST_F(MemberSizeWindowTest, EachGroupBoxShowsItsField) {
  for (int i = 0; i < kMemberGroups; ++i) {
    TrussMemberGroup& g = Group(static_cast<MemberGroup>(i));
    g.GroupFa = 100 + i;
    g.GroupFt = 200 + i;
    g.GroupE = 1000000 + 10000 * i;
    g.GroupB = 1.5;
    g.GroupD = 3 + i;
    g.GroupSizeName = "SIZE" + std::to_string(i);
    g.GroupGradeLabel = "GRADE" + std::to_string(i);
  }
  Open("TRUSS");
  const std::array<Texts, 4> expected = {
      {{"100.00", "200.00", "1.00E+06", "1.50", "3.00", "4.50", "SIZE0", "GRADE0"},
       {"101.00", "201.00", "1.01E+06", "1.50", "4.00", "6.00", "SIZE1", "GRADE1"},
       {"102.00", "202.00", "1.02E+06", "1.50", "5.00", "7.50", "SIZE2", "GRADE2"},
       {"103.00", "203.00", "1.03E+06", "1.50", "6.00", "9.00", "SIZE3", "GRADE3"}}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const GroupPanel& p = window.groups[i];
    EXPECT_EQ((Texts{p.fa, p.ft, p.e, p.b, p.d, p.area, p.size, p.gradeLabel}), expected[i]);
  }
}

TEST_F(MemberSizeWindowTest, FillingAGroupTakesTheAreaFromTheTwoDecimals) {
  TrussMemberGroup& top = Group(MemberGroup::Top);
  top.GroupB = 3.125;
  top.GroupD = 10.376;
  top.GroupArea = 99.0;  // typed
  top.GroupSizeName = "2X4";
  Open("TRUSS");
  EXPECT_EQ(FormatNumber(top.GroupArea, "0.0000"), "32.4894");  // 3.13 x 10.38
  EXPECT_EQ(window.Group(MemberGroup::Top).area, "32.49");
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "2X4");
  EXPECT_EQ(top.GroupB.value(), 3.125F);
}

TEST_F(MemberSizeWindowTest, FillingUnderTheMarkKeepsTheArea) {
  Open("TRUSS");
  AcceptPair(2, 4);
  Select(MemberGroup::Top);
  AcceptPair(1, 2);
  TypeArea(MemberGroup::Top, "8");
  ReturnFromWoodDataBase(window, session, platform);
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 8.0F);
  EXPECT_EQ(window.Group(MemberGroup::Top).area, "8.00");
}

TEST_F(MemberSizeWindowTest, CustomCaptionLastsUntilTheNextFilling) {
  Open("TRUSS");
  AcceptPair(2, 4);
  Select(MemberGroup::Top);
  TypeB(MemberGroup::Top, "3");
  ASSERT_EQ(window.Group(MemberGroup::Top).size, "CUSTOM");
  ReturnFromWoodDataBase(window, session, platform);
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "2X4");
  EXPECT_EQ(window.Group(MemberGroup::Top).b, "1.50");
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 5.25F);
}

// Closing.

TEST_F(MemberSizeWindowTest, OkReadsTheBeamsBoxes) {
  Open("BEAM");
  AcceptPair(2, 10);
  BeamPanel& beam = window.beam;
  beam.e = "1.25e6 psi";
  beam.b = "1.625";
  beam.d = "9.5";
  beam.area = "10";
  beam.ix = "20";
  beam.iy = "30";
  beam.sx = "40";
  beam.sy = "50";
  beam.fb = beam.fa = beam.fv = beam.ft = "12345";
  Ok();
  const MemberSelection& m = member();
  EXPECT_EQ(m.MemberSource.value(), 1);
  EXPECT_EQ(m.SizeName, "2X10");
  EXPECT_EQ(m.ModulusE.value(), 1250000.0F);
  EXPECT_EQ(m.DressedB.value(), 1.625F);
  EXPECT_EQ(m.DressedD.value(), 9.5F);
  EXPECT_EQ(m.SectionArea.value(), 10.0F);
  EXPECT_EQ(m.SectionIx.value(), 20.0F);
  EXPECT_EQ(m.SectionIy.value(), 30.0F);
  EXPECT_EQ(m.SectionSx.value(), 40.0F);
  EXPECT_EQ(m.SectionSy.value(), 50.0F);
  EXPECT_EQ(m.BeamGradeLabel, ", CUSTOM");
  for (const Float32* stress : {&m.AllowFb, &m.AllowFc, &m.AllowFv, &m.AllowFt}) {
    EXPECT_EQ(stress->value(), 1.0F);
  }
  EXPECT_EQ(platform.calls, Texts{"close WTYPETR"});
}

TEST_F(MemberSizeWindowTest, OkOfABeamLeavesTheGroups) {
  Group(MemberGroup::Top).GroupArea = 5.25;
  Open("BEAM");
  Ok();
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 5.25F);
  EXPECT_EQ(member().DataBaseE.value(), 0.0F);
}

TEST_F(MemberSizeWindowTest, OkKeepsTheLastAcceptedNameOfACustomBeam) {
  Open("BEAM");
  AcceptPair(2, 10);
  TypeBeam("3", "9");
  Ok();
  EXPECT_EQ(member().SizeName, "2X10");
  EXPECT_EQ(member().SectionArea.value(), 27.0F);
}

TEST_F(MemberSizeWindowTest, OkAfterASizeButtonBlanksTheName) {
  Open("BEAM");
  AcceptPair(2, 10);
  PickWidth(window, Button(4));
  Ok();
  EXPECT_EQ(member().SizeName, "");
}

TEST_F(MemberSizeWindowTest, OkWithoutAcceptKeepsTheStoredName) {
  member().SizeName = "4X12";
  Open("BEAM");
  Ok();
  EXPECT_EQ(member().SizeName, "4X12");
}

TEST_F(MemberSizeWindowTest, OkReadsTheGroupsBoxes) {
  Open("TRUSS");
  for (int i = 0; i < kMemberGroups; ++i) {
    GroupPanel& panel = window.groups[static_cast<std::size_t>(i)];
    const std::string digit = std::to_string(i);
    panel.fa = "10" + digit + ".5";
    panel.ft = "20" + digit;
    panel.e = "1.2" + digit + "E+06";
    panel.b = "3." + digit;
    panel.d = "4." + digit + " in";
    panel.area = "5." + digit;
    panel.size = "CUSTOM";
    panel.gradeLabel = "GRADE" + digit;
  }
  Ok();
  EXPECT_EQ(member().MemberSource.value(), 1);
  EXPECT_EQ(member().DataBaseE.value(), 101.5F);  // the Bottom group's "Fa (psi)"
  for (int i = 0; i < kMemberGroups; ++i) {
    const TrussMemberGroup& g = Group(static_cast<MemberGroup>(i));
    const auto tenth = static_cast<double>(i) / 10;
    EXPECT_EQ(g.GroupFa.value(), 100.5F + static_cast<float>(i));
    EXPECT_EQ(g.GroupFt.value(), 200.0F + static_cast<float>(i));
    EXPECT_EQ(g.GroupE.value(), 1200000.0F + 10000.0F * static_cast<float>(i));
    EXPECT_EQ(g.GroupB.value(), static_cast<float>(3 + tenth));
    EXPECT_EQ(g.GroupD.value(), static_cast<float>(4 + tenth));
    EXPECT_EQ(g.GroupArea.value(), static_cast<float>(5 + tenth));
    EXPECT_EQ(g.GroupGradeLabel, "GRADE" + std::to_string(i));
    EXPECT_EQ(g.GroupSizeName, "");  // only "Select" names a size
  }
  EXPECT_EQ(member().SectionArea.value(), 1.0F);
  EXPECT_EQ(member().SizeName, "CUSTOM");
  EXPECT_EQ(platform.calls, Texts{"close WTYPETR"});
}

TEST_F(MemberSizeWindowTest, OkLeavesThreeDigitsOfAGroupsModulus) {
  Open("TRUSS");
  window.Group(MemberGroup::Top).ticked = true;
  VisitDataBase();
  member().ModulusE = 1234567.0;
  ReturnFromWoodDataBase(window, session, platform);
  ASSERT_EQ(Group(MemberGroup::Top).GroupE.value(), 1234567.0F);
  Ok();
  EXPECT_EQ(Group(MemberGroup::Top).GroupE.value(), 1230000.0F);
}

TEST_F(MemberSizeWindowTest, OkTakesABoxThatIsNoNumberAs0) {
  Open("TRUSS");
  AcceptPair(2, 4);
  Select(MemberGroup::Top);
  window.Group(MemberGroup::Top).fa = "psi";
  Ok();
  EXPECT_EQ(Group(MemberGroup::Top).GroupFa.value(), 0.0F);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(MemberSizeWindowTest, OkAndCancelTakeTheFlagDownExitDoesNot) {
  Open("TRUSS");
  VisitDataBase();
  Ok();
  EXPECT_EQ(member().DataBaseReturn.value(), 0);
  VisitDataBase();
  CancelMemberSize(session, platform);
  EXPECT_EQ(member().DataBaseReturn.value(), 0);
  VisitDataBase();
  platform.calls.clear();
  ExitMemberSize(platform);
  EXPECT_EQ(member().DataBaseReturn.value(), -1);
  EXPECT_EQ(platform.calls, Texts{"close WTYPETR"});
}

TEST_F(MemberSizeWindowTest, CancelKeepsWhatCameBackFromTheDataBaseButReadsNoBox) {
  Open("TRUSS");
  window.Group(MemberGroup::Top).ticked = true;
  VisitDataBase();
  window.Group(MemberGroup::Top).fa = "1";
  platform.calls.clear();
  CancelMemberSize(session, platform);
  EXPECT_EQ(Group(MemberGroup::Top).GroupFa.value(), 1300.25F);
  EXPECT_EQ(member().MemberSource.value(), 0);
  EXPECT_EQ(platform.calls, Texts{"close WTYPETR"});
}

}  // namespace
}  // namespace lignara
