#include "tests/wood/member_size_fixture.h"

namespace lignara {
namespace {

class CustomSizeTest : public MemberSizeTest {};

TEST_F(CustomSizeTest, TypedSidesOfAGroupMakeItCustom) {
  for (int i = 0; i < kMemberGroups; ++i) {
    const auto group = static_cast<MemberGroup>(i);
    Open("TRUSS");
    AcceptPair(2, 4);
    Select(group);
    TypeB(group, "3.125");
    const GroupPanel& panel = window.Group(group);
    EXPECT_EQ(panel.size, "CUSTOM");
    EXPECT_EQ(Group(group).GroupArea.value(), 10.9375F);  // 3.125 x 3.50
    EXPECT_EQ(panel.area, "10.94");
    TypeD(group, "9.75 in");
    EXPECT_EQ(Group(group).GroupArea.value(), 30.46875F);  // 3.125 x 9.75
    EXPECT_EQ(panel.area, "30.47");
    // Until "OK" and "Select" the rest of the group stays as it was.
    EXPECT_EQ(Group(group).GroupSizeName, "2X4");
    EXPECT_EQ(Group(group).GroupB.value(), 1.5F);
    EXPECT_EQ(Group(group).GroupD.value(), 3.5F);
  }
}

TEST_F(CustomSizeTest, TextThatIsNoNumberGivesAnAreaOf0) {
  Open("TRUSS");
  TypeB(MemberGroup::Top, "wide");
  TypeD(MemberGroup::Top, "5");
  EXPECT_EQ(window.Group(MemberGroup::Top).area, "0.00");
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "CUSTOM");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(CustomSizeTest, AreaTooLargeIsAFaultAndIsNotStored) {
  Open("TRUSS");
  TypeB(MemberGroup::Top, "2");
  TypeD(MemberGroup::Top, "3");
  TypeB(MemberGroup::Top, "1e60");
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(window.Group(MemberGroup::Top).area, "6.00");
}

TEST_F(CustomSizeTest, TypedAreaGoesToTheGroupAndLeavesTheCaption) {
  Open("TRUSS");
  AcceptPair(2, 4);
  Select(MemberGroup::Bottom);
  TypeArea(MemberGroup::Bottom, "7.125");
  EXPECT_EQ(Group(MemberGroup::Bottom).GroupArea.value(), 7.125F);
  EXPECT_EQ(window.Group(MemberGroup::Bottom).area, "7.125");
  EXPECT_EQ(window.Group(MemberGroup::Bottom).size, "2X4");
}

TEST_F(CustomSizeTest, TypedStressesWaitForOk) {
  Open("TRUSS");
  AcceptPair(2, 4);
  Select(MemberGroup::Top);
  window.Group(MemberGroup::Top).fa = "900";
  for (const GroupField field : {GroupField::Fa, GroupField::Ft, GroupField::E}) {
    EditGroupField(window, session, platform, MemberGroup::Top, field);
  }
  EXPECT_EQ(Group(MemberGroup::Top).GroupFa.value(), 0.0F);
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "2X4");
}

TEST_F(CustomSizeTest, AfterARefusedPairTypedSidesAreIgnoredUntilTheNextSize) {
  Open("TRUSS");
  AcceptPair(2, 4);
  Select(MemberGroup::Top);
  AcceptPair(1, 2);
  TypeB(MemberGroup::Top, "9");
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "2X4");
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 5.25F);
  TypeArea(MemberGroup::Top, "6");
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 6.0F);
  AcceptPair(2, 6);
  TypeB(MemberGroup::Top, "9");
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "CUSTOM");
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 31.5F);  // 9 x 3.50
}

TEST_F(CustomSizeTest, TypedSidesOfABeamGiveItsSection) {
  Open("BEAM");
  AcceptPair(2, 4);
  const float ratio = member().BeamDepthOverB2.value();
  TypeBeam("3", "12");
  const BeamPanel& beam = window.beam;
  // Ix = 12^3 x 3 / 12 = 432, Iy = 3^3 x 12 / 12 = 27, Sx = 432 / 6, Sy = 27 / 1.5.
  EXPECT_EQ((Texts{beam.area, beam.ix, beam.iy, beam.sx, beam.sy, beam.size}),
            (Texts{"36.00", "432.00", "27.00", "72.00", "18.00", "CUSTOM"}));
  EXPECT_EQ(member().NominalWidth.value(), 3.0F);
  EXPECT_EQ(member().DressedB.value(), 3.0F);
  EXPECT_EQ(member().NominalDepth.value(), 12.0F);
  EXPECT_EQ(member().DressedD.value(), 12.0F);
  EXPECT_EQ(member().SectionArea.value(), 36.0F);
  EXPECT_EQ(member().SectionIx.value(), 432.0F);
  EXPECT_EQ(member().BeamDepthOverB2.value(), ratio);
  EXPECT_EQ(window.selection.size, "2X4");
}

TEST_F(CustomSizeTest, BeamWithASideOf0IsLeftAlone) {
  Open("BEAM");
  AcceptPair(2, 4);
  for (const char* text : {"0", "", "0.00", "x"}) {
    TypeBeam(text, "9");
    TypeBeam("9", text);
    TypeBeam("1.5", "3.5");
  }
  window.beam.size = "2X4";
  TypeBeam("", "9");
  EXPECT_EQ(window.beam.size, "2X4");
  EXPECT_EQ(window.beam.area, "5.25");
  EXPECT_EQ(member().DressedD.value(), 3.5F);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(CustomSizeTest, BeamSideTooLargeIsAFault) {
  Open("BEAM");
  AcceptPair(2, 4);
  window.beam.b = "1e999";
  EditBeamSize(window, session, platform);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(member().DressedB.value(), 1.5F);
  EXPECT_EQ(window.beam.size, "2X4");
}

TEST_F(CustomSizeTest, AfterARefusedPairTypedSidesOfABeamAreIgnored) {
  Open("BEAM");
  AcceptPair(2, 4);
  AcceptPair(2, 16);
  TypeBeam("9", "9");
  EXPECT_EQ(window.beam.size, "2X4");
  EXPECT_EQ(member().SectionArea.value(), 5.25F);
  AcceptPair(2, 14);
  TypeBeam("9", "9");
  EXPECT_EQ(window.beam.size, "CUSTOM");
  EXPECT_EQ(member().SectionArea.value(), 81.0F);
}

}  // namespace
}  // namespace lignara
