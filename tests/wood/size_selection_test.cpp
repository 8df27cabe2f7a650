#include "app/number_pattern.h"
#include "tests/wood/member_size_fixture.h"

namespace lignara {
namespace {

constexpr const char* kClickFirst = "YOU NEED TO CLICK A WIDTH & DEPTH BUTTON!";
constexpr const char* kWidthIs0 = "YOUR 'B' VALUE IS 0 !";

class SizeSelectionTest : public MemberSizeTest {};

TEST_F(SizeSelectionTest, PickingBlanksTheAcceptedSize) {
  Open("TRUSS");
  AcceptPair(2, 4);
  ASSERT_EQ(SizeTexts(), (Texts{"2X4", "1.50", "3.50"}));
  PickWidth(window, Button(4));
  EXPECT_EQ(window.widthPick, 3);
  EXPECT_EQ(SizeTexts(), (Texts{"", "", ""}));
  Accept();
  ASSERT_EQ(window.selection.size, "4X4");
  PickDepth(window, Button(6));
  EXPECT_EQ(window.depthPick, 4);
  EXPECT_EQ(SizeTexts(), (Texts{"", "", ""}));
}

TEST_F(SizeSelectionTest, AcceptNeedsAWidthAndADepth) {
  Open("TRUSS");
  member().DressedB = 9.0;
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{kClickFirst});
  PickWidth(window, Button(2));
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{kClickFirst});
  EXPECT_EQ(member().NominalWidth.value(), 2.0F);
  EXPECT_EQ(member().NominalDepth.value(), 0.0F);
  EXPECT_EQ(member().DressedB.value(), 9.0F);
  EXPECT_TRUE(window.sizeInProgress);
  EXPECT_EQ(SizeTexts(), (Texts{"", "", ""}));
}

TEST_F(SizeSelectionTest, AcceptNeedsAWidthToo) {
  Open("BEAM");
  PickDepth(window, Button(2));
  Accept();
  EXPECT_EQ(platform.TakeTexts(), Texts{kClickFirst});
}

TEST_F(SizeSelectionTest, AcceptGivesTheDressedSize) {
  Open("TRUSS");
  AcceptPair(2, 4);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(SizeTexts(), (Texts{"2X4", "1.50", "3.50"}));
  EXPECT_EQ(window.beam.size, "2X4");
  EXPECT_EQ(member().NominalWidth.value(), 2.0F);
  EXPECT_EQ(member().NominalDepth.value(), 4.0F);
  EXPECT_EQ(member().DressedB.value(), 1.5F);
  EXPECT_EQ(member().DressedD.value(), 3.5F);
  EXPECT_EQ(member().ScratchArea.value(), 5.25F);
  EXPECT_FALSE(window.sizeInProgress);
}

TEST_F(SizeSelectionTest, AcceptForATrussLeavesTheBeamsSection) {
  Open("TRUSS");
  AcceptPair(2, 4);
  EXPECT_EQ(member().SectionArea.value(), 1.0F);
  EXPECT_EQ(member().SectionIx.value(), 1.0F);
  EXPECT_EQ(member().BeamDepthOverB2.value(), 0.0F);
  EXPECT_EQ(member().SizeName, "CUSTOM");
  EXPECT_EQ(window.beam.b, "");
}

TEST_F(SizeSelectionTest, AcceptForABeamGivesTheSection) {
  Open("BEAM");
  AcceptPair(2, 4);
  const BeamPanel& beam = window.beam;
  // Ix = 3.5^3 x 1.5 / 12 = 5.359, Iy = 1.5^3 x 3.5 / 12 = 0.984, Sx = Ix / 1.75, Sy = Iy / 0.75.
  EXPECT_EQ((Texts{beam.b, beam.d, beam.area, beam.ix, beam.iy, beam.sx, beam.sy, beam.size}),
            (Texts{"1.50", "3.50", "5.25", "5.36", "0.98", "3.06", "1.31", "2X4"}));
  EXPECT_EQ(member().SectionArea.value(), 5.25F);
  EXPECT_EQ(member().SectionIx.value(), 5.359375F);
  EXPECT_EQ(member().SectionIy.value(), 0.984375F);
  EXPECT_EQ(member().SectionSx.value(), 3.0625F);
  EXPECT_EQ(member().SectionSy.value(), 1.3125F);
  EXPECT_EQ(FormatNumber(member().BeamDepthOverB2, "0.0000"), "1.5556");  // 3.5 / 2.25
}

TEST_F(SizeSelectionTest, AcceptForABeamOverwritesTheNominalSize) {
  Open("BEAM");
  AcceptPair(6, 8);
  EXPECT_EQ(member().NominalWidth.value(), 5.5F);
  EXPECT_EQ(member().NominalDepth.value(), 7.5F);
  EXPECT_EQ(member().DressedB.value(), 5.5F);
  EXPECT_EQ(member().DressedD.value(), 7.5F);
  EXPECT_EQ(window.selection.size, "6X8");
  EXPECT_EQ(member().SizeName, "CUSTOM");  // until "OK"
}

TEST_F(SizeSelectionTest, RefusedPairShowsItsMessageAndKeepsTheDressedSize) {
  struct Case {
    int width, depth;
    const char* message;
  };
  const Case cases[] = {
      {1, 2, "Depth must be greater than 2 in for width of 1 in"},
      {1, 14, "Depth must be less than 14 in for width of 1 in"},
      {2, 16, "Depth must be less than 16 in for width of 2 in"},
      {3, 18, "Depth must be less than 18 in for width of 3 in"},
      {14, 1, "Depth must be greater than 1 in for a width of 14 in"},
      {24, 4, "Depth must be greater than 4 in for a width of 24 in"},
  };
  for (const char* mode : {"TRUSS", "BEAM"}) {
    Open(mode);
    AcceptPair(2, 4);
    for (const Case& c : cases) {
      AcceptPair(c.width, c.depth);
      EXPECT_EQ(platform.TakeTexts(), Texts{c.message});
      EXPECT_EQ(member().DressedB.value(), 1.5F);
      EXPECT_EQ(member().DressedD.value(), 3.5F);
      EXPECT_EQ(member().NominalWidth.value(), static_cast<float>(c.width));
      EXPECT_EQ(SizeTexts(), (Texts{"", "", ""}));
      EXPECT_TRUE(window.sizeInProgress);
    }
  }
}

TEST_F(SizeSelectionTest, EveryPairOfButtonsIsDressedOrRefused) {
  Open("BEAM");
  int accepted = 0;
  for (const int width : kNominalSizes) {
    for (const int depth : kNominalSizes) {
      AcceptPair(width, depth);
      if (platform.TakeTexts().empty()) {
        ++accepted;
        EXPECT_EQ(window.selection.size, std::to_string(width) + "X" + std::to_string(depth));
        // The section is that of the dressed sides.
        const double b = member().DressedB.value();
        const double d = member().DressedD.value();
        EXPECT_EQ(window.beam.area, FormatNumber(b * d, "0.00"));
        EXPECT_NEAR(member().SectionSx.value(), b * d * d / 6, 1e-4 * d * d);
        EXPECT_NEAR(member().SectionSy.value(), d * b * b / 6, 1e-4 * b * b);
        EXPECT_FALSE(window.sizeInProgress);
      } else {
        EXPECT_EQ(window.selection.size, "");
      }
    }
  }
  // Widths 1 to 4: 6, 7, 10 and 10 of 14 depths; 6 to 12: all; 14: 13; 16: 12; 18 to 24: 10 each.
  EXPECT_EQ(accepted, 6 + 7 + 10 + 10 + 4 * 14 + 13 + 12 + 4 * 10);
}

TEST_F(SizeSelectionTest, SelectCopiesTheAcceptedSizeIntoItsGroupAlone) {
  for (int i = 0; i < kMemberGroups; ++i) {
    const auto group = static_cast<MemberGroup>(i);
    StartSession(session, "/data");
    Open("TRUSS");
    AcceptPair(2, 6);
    Select(group);
    const GroupPanel& panel = window.Group(group);
    EXPECT_EQ((Texts{panel.b, panel.d, panel.area, panel.size}),
              (Texts{"1.50", "5.50", "8.25", "2X6"}));
    EXPECT_EQ(Group(group).GroupSizeName, "2X6");
    EXPECT_EQ(Group(group).GroupB.value(), 1.5F);
    EXPECT_EQ(Group(group).GroupD.value(), 5.5F);
    EXPECT_EQ(Group(group).GroupArea.value(), 8.25F);
    EXPECT_EQ(FormatNumber(Group(group).GroupDepthOverB2, "0.0000"), "2.4444");  // 5.5 / 2.25
    EXPECT_EQ(member().ScratchArea.value(), 8.25F);
    for (int other = 0; other < kMemberGroups; ++other) {
      if (other == i) continue;
      EXPECT_EQ(window.groups[static_cast<std::size_t>(other)].size, "");
      EXPECT_EQ(Group(static_cast<MemberGroup>(other)).GroupArea.value(), 0.0F);
    }
  }
}

TEST_F(SizeSelectionTest, SelectWithoutAnyAcceptedSizeGivesZerosAndTheMessage) {
  Open("TRUSS");
  Select(MemberGroup::Top);
  EXPECT_EQ(platform.TakeTexts(), Texts{kWidthIs0});
  const GroupPanel& panel = window.Group(MemberGroup::Top);
  EXPECT_EQ((Texts{panel.b, panel.d, panel.area, panel.size}),
            (Texts{"0.00", "0.00", "0.00", "0X0"}));
  EXPECT_EQ(Group(MemberGroup::Top).GroupSizeName, "0X0");
}

TEST_F(SizeSelectionTest, SelectKeepsTheRatioWhereTheWidthIs0) {
  Open("TRUSS");
  Group(MemberGroup::Bottom).GroupDepthOverB2 = 7.0;
  Select(MemberGroup::Bottom);
  EXPECT_EQ(Group(MemberGroup::Bottom).GroupDepthOverB2.value(), 7.0F);
}

TEST_F(SizeSelectionTest, SelectCopiesTheSizeAcceptedInAnEarlierWindow) {
  Open("TRUSS");
  AcceptPair(4, 8);
  Open("TRUSS");
  ASSERT_EQ(window.selection.size, "");
  Select(MemberGroup::Top);
  EXPECT_EQ(Group(MemberGroup::Top).GroupSizeName, "4X8");
  EXPECT_EQ(window.Group(MemberGroup::Top).area, "25.38");  // 3.5 x 7.25 = 25.375
}

TEST_F(SizeSelectionTest, SelectAfterARefusedPairNamesThePairButKeepsTheOldSides) {
  Open("TRUSS");
  AcceptPair(2, 4);
  AcceptPair(1, 2);
  platform.messages.clear();
  Select(MemberGroup::Top);
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "1X2");
  EXPECT_EQ(Group(MemberGroup::Top).GroupArea.value(), 5.25F);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SizeSelectionTest, ChordsTakeTheFullSidesAndWebsTheTwoDecimals) {
  Open("TRUSS");
  for (const MemberGroup group : {MemberGroup::Top, MemberGroup::Bottom}) {
    member().DressedB = 3.125;
    member().DressedD = 10.376;
    Select(group);
    EXPECT_EQ(Group(group).GroupB.value(), 3.125F);
    EXPECT_EQ(Group(group).GroupD.value(), 10.376F);
    EXPECT_EQ(FormatNumber(Group(group).GroupArea, "0.0000"), "32.4250");  // 3.125 x 10.376
    EXPECT_EQ(member().DressedB.value(), 3.125F);
    EXPECT_EQ(window.Group(group).b, "3.13");
  }
  for (const MemberGroup group : {MemberGroup::Vertical, MemberGroup::Diagonal}) {
    member().DressedB = 3.125;
    member().DressedD = 10.376;
    Select(group);
    EXPECT_EQ(Group(group).GroupB.value(), 3.13F);
    EXPECT_EQ(Group(group).GroupD.value(), 10.38F);
    EXPECT_EQ(FormatNumber(Group(group).GroupArea, "0.0000"), "32.4894");  // 3.13 x 10.38
    EXPECT_EQ(member().DressedB.value(), 3.13F);
    EXPECT_EQ(member().DressedD.value(), 10.38F);
  }
}

TEST_F(SizeSelectionTest, ABeamsDressedSizeIsRoundedInTheSizeText) {
  Open("BEAM");
  AcceptPair(2, 4);  // leaves 1.5 by 3.5 as the nominal size
  Open("TRUSS");
  Select(MemberGroup::Top);
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "2X4");
  Open("BEAM");
  AcceptPair(8, 4);  // 7.25 by 3.5
  Open("TRUSS");
  Select(MemberGroup::Top);
  EXPECT_EQ(window.Group(MemberGroup::Top).size, "7X4");
}

}  // namespace
}  // namespace lignara
