#include "tests/support/expect_box.h"
#include "tests/support/glulam_fixture.h"
#include "wood/member_size_window.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class TransferTest : public GlulamTest {
 protected:
  TransferTest() { LoadDouglasFir(); }

  void Transfer() { TransferGlulamSelection(window, session, platform); }
  const MemberSelection& member() const { return session.Member; }
  const GlulamTransfer& glulam() const { return session.Glulam; }
};

TEST_F(TransferTest, NeedsLengthDepthAndWidth) {
  for (const auto& [feet, depth, width] :
       std::vector<std::array<const char*, 3>>{{"0", "12", "6"},
                                               {"10", "", "6"},
                                               {"10", "12", "x"},
                                               {"-1", "12", "6"},
                                               {"10", "-12", "6"},
                                               {"10", "12", "-6"}}) {
    Enter(feet, depth, width);
    platform = RecordingPlatform();
    Transfer();
    ExpectSingleBox(platform, "You need to enter a value for L, d and b!");
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(member().MemberSource.value(), 0);
    EXPECT_EQ(member().SizeName, "CUSTOM");
    EXPECT_EQ(glulam().MoistureCode.value(), 0);
  }
}

TEST_F(TransferTest, ASizeTooLargeIsRefused) {
  Enter("10", "12", "6");
  window.depth = "1e39";
  Transfer();
  EXPECT_EQ(platform.TakeTexts(),
            (Texts{"The number is too large", "You need to enter a value for L, d and b!"}));
  EXPECT_EQ(member().MemberSource.value(), 0);
}

// 12 by 6: area 72, Ix = 12^3 x 6 / 12 = 864, Iy = 6^3 x 12 / 12 = 216, Sx = 864 / 6 = 144,
// Sy = 216 / 3 = 72.
TEST_F(TransferTest, HandsTheSectionToTheMember) {
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(member().MemberSource.value(), 2);
  EXPECT_EQ(member().SectionArea.value(), 72.0F);
  EXPECT_EQ(member().DressedB.value(), 6.0F);
  EXPECT_EQ(member().DressedD.value(), 12.0F);
  EXPECT_EQ(member().SectionIx.value(), 864.0F);
  EXPECT_EQ(member().SectionIy.value(), 216.0F);
  EXPECT_EQ(member().SectionSx.value(), 144.0F);
  EXPECT_EQ(member().SectionSy.value(), 72.0F);
}

TEST_F(TransferTest, HandsTheStressesToTheMember) {
  Press("2 Month");
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(member().ModulusE.value(), 1800000.0F);
  EXPECT_EQ(member().AllowFb.value(), 2128.0F);
  EXPECT_EQ(member().AllowFv.value(), 305.0F);
  EXPECT_EQ(member().AllowFt.value(), 1265.0F);
  EXPECT_EQ(member().AllowFc.value(), 1898.0F);
  EXPECT_EQ(member().SizeName, "GL 24F-V4(DF/DF)");
}

TEST_F(TransferTest, LeavesTheOtherFieldsOfTheMember) {
  session.Member.GradeText = "No. 1";
  session.Member.AllowFcPerp = 405;
  session.Member.NominalWidth = 4;
  session.Member.BeamDepthOverB2 = 3;
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(member().GradeText, "No. 1");
  EXPECT_EQ(member().WoodTypeText, "CUSTOM");
  EXPECT_EQ(member().AllowFcPerp.value(), 405.0F);
  EXPECT_EQ(member().NominalWidth.value(), 4.0F);
  EXPECT_EQ(member().BeamDepthOverB2.value(), 3.0F);
  EXPECT_EQ(member().DataBaseReturn.value(), 0);
}

TEST_F(TransferTest, TheLesserBendingStressMayBeThatOfTheTensionZone) {
  TypeFactor(GlulamValue::FbxTensionZone, "0.5");
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(member().AllowFb.value(), 1200.0F);
}

TEST_F(TransferTest, EqualBendingStressesGiveThatStress) {
  Load({OwnCombination().With(GlulamValue::FbxCompressionZone, "2400")});
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(member().AllowFb.value(), 2400.0F);
}

TEST_F(TransferTest, KeepsTheFourteenValuesAsShown) {
  Press("2 Month");
  TypeFactor(GlulamValue::Fv, "0.85");
  Enter("10.125", "12", "6");
  Transfer();
  const std::array<float, kGlulamValues> expected = {
      2760, 2128, 748, 748, 259.25F, 1800000, 1668, 560, 265, 106, 1600000, 1265, 1898, 1840000};
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    EXPECT_EQ(glulam().Values[i].value(), expected[i]) << i;
  }
  EXPECT_EQ(glulam().UnbracedLength.value(), 10.125F);
  EXPECT_EQ(glulam().UseNote, "Not balanced, for dry or wet use.");
}

TEST_F(TransferTest, StoresTheUnbracedLengthForAllWindows) {
  Enter("10.125", "12", "6");
  Transfer();
  EXPECT_EQ(member().UnbracedLength.value(), 10.125F);
}

TEST_F(TransferTest, CodesOfMoisture) {
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(glulam().MoistureCode.value(), 1);
  ChooseWetUse();
  Transfer();
  EXPECT_EQ(glulam().MoistureCode.value(), 2);
}

TEST_F(TransferTest, CodesOfDurationPutWindBeforeSevenDays) {
  Enter("10", "12", "6");
  const std::vector<std::pair<const char*, int>> codes = {
      {"> 10 yr.", 1}, {"2 Month", 2}, {"7 Day", 4}, {"Wind/Earth Qk.", 3}, {"Impact", 5}};
  for (const auto& [caption, code] : codes) {
    Press(caption);
    Transfer();
    EXPECT_EQ(glulam().DurationCode.value(), code) << caption;
  }
}

TEST_F(TransferTest, CodesOfTheMainLoadType) {
  Enter("10", "12", "6");
  int code = 0;
  for (const char* caption : {"Single Consentrated", "Uniform", "1/3 Point Consentrated"}) {
    Press(caption);
    Transfer();
    EXPECT_EQ(glulam().LoadCode.value(), ++code) << caption;
  }
}

TEST_F(TransferTest, WithoutAChoiceACodeKeepsItsOldValue) {
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(glulam().DurationCode.value(), 0);
  EXPECT_EQ(glulam().LoadCode.value(), 0);
  Press("7 Day");
  Press("Uniform");
  Transfer();
  ChooseDuration(window, session, platform, -1);
  Transfer();
  EXPECT_EQ(glulam().DurationCode.value(), 4);
  OpenGlulamWindow(window, session, platform);
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(glulam().DurationCode.value(), 4);
  EXPECT_EQ(glulam().LoadCode.value(), 2);
}

TEST_F(TransferTest, HandsOverTheNoteShown) {
  Enter("10", "60", "2");
  Transfer();
  EXPECT_EQ(glulam().UseNote, "You L/D ratio is to high for axial loading");
  EXPECT_EQ(member().AllowFc.value(), 0.0F);
}

TEST_F(TransferTest, HidesTheWindowAndKeepsIt) {
  Enter("10", "12", "6");
  Transfer();
  EXPECT_EQ(platform.calls, Texts{"hide GL"});
  EXPECT_EQ(window.depth, "12");
}

TEST_F(TransferTest, WithoutACombinationZerosGoThrough) {
  OpenGlulamWindow(window, session, platform);
  Enter("10", "12", "6");
  Transfer();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(member().SizeName, "GL ()");
  EXPECT_EQ(member().MemberSource.value(), 2);
  EXPECT_EQ(member().AllowFb.value(), 0.0F);
  EXPECT_EQ(member().ModulusE.value(), 0.0F);
  EXPECT_EQ(member().SectionArea.value(), 72.0F);
  EXPECT_EQ(glulam().MoistureCode.value(), 1);
  EXPECT_EQ(glulam().UseNote, "");
}

// A section beyond 32 bits is told field by field; what faulted keeps its old content.
TEST_F(TransferTest, ASectionTooLargeIsTold) {
  Enter("10", "1e20", "1e20");
  platform = RecordingPlatform();
  Transfer();
  EXPECT_EQ(platform.TakeTexts().front(), "The number is too large");
  EXPECT_EQ(member().SectionIx.value(), 1.0F);
  EXPECT_EQ(member().MemberSource.value(), 2);
}

// The calculator shows what was handed over.

TEST_F(TransferTest, TheCalculatorShowsTheGlulamBeam) {
  Press("2 Month");
  Enter("10", "12", "6");
  Transfer();
  session.DesignMode = "BEAM";
  MemberSizeWindow calculator;
  OpenMemberSize(calculator, session, platform);
  const BeamPanel& beam = calculator.beam;
  EXPECT_EQ(beam.size, "GL 24F-V4(DF/DF)");
  EXPECT_EQ(beam.fb, "2128.00");
  EXPECT_EQ(beam.fa, "1898.00");
  EXPECT_EQ(beam.fv, "305.00");
  EXPECT_EQ(beam.ft, "1265.00");
  EXPECT_EQ(beam.e, "1.80E+06");
  EXPECT_EQ(beam.b, "6.00");
  EXPECT_EQ(beam.d, "12.00");
  EXPECT_EQ(beam.area, "72.00");
  EXPECT_EQ(beam.ix, "864.00");
  EXPECT_EQ(beam.iy, "216.00");
  EXPECT_EQ(beam.sx, "144.00");
  EXPECT_EQ(beam.sy, "72.00");
}

TEST_F(TransferTest, TheCalculatorsOkMakesTheMemberASawnOne) {
  Enter("10", "12", "6");
  Transfer();
  session.DesignMode = "BEAM";
  MemberSizeWindow calculator;
  OpenMemberSize(calculator, session, platform);
  AcceptMemberSize(calculator, session, platform);
  EXPECT_EQ(member().MemberSource.value(), 1);
  EXPECT_EQ(member().SizeName, "GL 24F-V4(DF/DF)");
  EXPECT_EQ(member().AllowFb.value(), 1850.0F);
}

TEST_F(TransferTest, TickedTrussGroupsTakeTheGlulamStresses) {
  Enter("10", "12", "6");
  Transfer();
  session.DesignMode = "TRUSS";
  MemberSizeWindow calculator;
  OpenMemberSize(calculator, session, platform);
  calculator.Group(MemberGroup::Bottom).ticked = true;
  VisitWoodDataBase(session, platform);
  ReturnFromWoodDataBase(calculator, session, platform);
  EXPECT_EQ(calculator.Group(MemberGroup::Bottom).ft, "1100.00");
  EXPECT_EQ(calculator.Group(MemberGroup::Bottom).fa, "1650.00");
  EXPECT_EQ(calculator.Group(MemberGroup::Bottom).e, "1.80E+06");
  EXPECT_EQ(calculator.Group(MemberGroup::Top).ft, "0.00");
}

TEST_F(TransferTest, ComingBackShowsTheStoredLengthOverATypedOneAndComputes) {
  Enter("50", "12", "12");
  EXPECT_EQ(Shown(GlulamValue::Fc), "192.00");
  session.Member.UnbracedLength = 20;
  ReturnToGlulam(window, session, platform);
  EXPECT_EQ(window.length, "20.00");
  EXPECT_EQ(Shown(GlulamValue::Fc), "1200.00");
}

// 10.126 ft is handed over, 10.13 ft comes back.
TEST_F(TransferTest, AfterATransferTheLengthComesBackWithTwoDecimals) {
  Enter("10.126", "12", "6");
  TransferGlulamSelection(window, session, platform);
  ReturnToGlulam(window, session, platform);
  EXPECT_EQ(window.length, "10.13");
  EXPECT_EQ(window.depth, "12");
  EXPECT_EQ(window.combinations.Chosen(), "24F-V4");
}

}  // namespace
}  // namespace lignara
