#include <gtest/gtest.h>

#include "beam/stress_check.h"
#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

const std::string kNoArea = "Check your values required for stress, an area value is missing!";
const std::string kInputMissing = "YOU ARE MISSING INPUT REQUIRED FOR STRESS CHECK!";

/// A 4X12 (3.5 by 11.25 in, 39.38 in^2, Sx 73.83 in^3) of E 1,600,000 psi under 500 ft-lbs and 100
/// lbs: fv = 100 / 26.253 = 3.809 psi, fb = 500 x 12 / 73.83 = 81.268 psi.
class SawnCheckTest : public testing::Test {
 protected:
  SawnCheckTest() {
    MemberSelection& m = beam.session.Member;
    m.MemberSource = 1;
    m.SizeName = "4X12";
    m.ModulusE = 1600000;
    m.SectionArea = 39.38;
    m.SectionSx = 73.83;
    m.DressedB = 3.5;
    m.DressedD = 11.25;
    m.AllowFb = 1000;
    m.AllowFv = 95;
    m.AllowFc = 1500;
    m.AllowFt = 675;
    FillFromMember(beam.window, beam.session);
    beam.window.maxMoment = "500.00";
    beam.window.maxShear = "-100.00";
    beam.window.axial = "0.00";
    beam.window.beam.hasRun = -1;
  }

  void Type(StressField field, const std::string& text) {
    beam.window.Field(field).text = text;
    EditStressField(beam.window, field);
  }
  /// A member whose slenderness is what a test wants, under E and Fb as they are in the session.
  void TypeSection(const std::string& b, const std::string& d) {
    Type(StressField::B, b);
    Type(StressField::D, d);
  }
  Texts Check(const std::string& unbraced, const std::string& axial = "0.00") {
    beam.window.unbraced = unbraced;
    beam.window.axial = axial;
    CheckSawnMember(beam.window, beam.session, beam.platform);
    return beam.window.check.rows;
  }
  /// The row of a check that begins so; empty where there is none.
  std::string RowOf(const std::string& start) const {
    for (const std::string& row : beam.window.check.rows) {
      if (row.rfind(start, 0) == 0) return row;
    }
    return "";
  }

  TestBeam beam;
};

// What it needs.

TEST_F(SawnCheckTest, NeedsASawnMemberBeforeARun) {
  beam.window.beam.hasRun = 0;
  for (const int source : {0, 2}) {
    beam.session.Member.MemberSource = source;
    Check("4");
    EXPECT_EQ(beam.Boxes(), Texts({"YOUR MEMBER IS GLU-LAM, NOT NORMAL WOOD!"}));
  }
  beam.session.Member.MemberSource = 1;
  Check("4");
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED TO HIT THE RUN BUTTON FIRST!"}));
  EXPECT_FALSE(beam.window.check.open);
}

TEST_F(SawnCheckTest, NeedsShearAreaAndSectionModulus) {
  for (const StressField field : {StressField::ShearArea, StressField::SectionModulus}) {
    for (const char* text : {"", "0", "-1"}) {
      const std::string kept = beam.window.Field(field).text;
      Type(field, text);
      Type(StressField::Fb, "0");
      EXPECT_EQ(Check("4"), Texts());
      EXPECT_EQ(beam.Boxes(), Texts({kNoArea})) << "before the other input";
      EXPECT_EQ(beam.session.Member.AllowFb.value(), 1000.0f) << "nothing was read yet";
      EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
      Type(field, kept);
    }
  }
}

TEST_F(SawnCheckTest, NeedsAllStressesAndSides) {
  for (const StressField field : {StressField::Fb, StressField::Fv, StressField::Fc,
                                  StressField::Ft, StressField::B, StressField::D}) {
    const std::string kept = beam.window.Field(field).text;
    Type(field, "0");
    EXPECT_EQ(Check("4"), Texts());
    EXPECT_EQ(beam.Boxes(), Texts({kInputMissing}));
    EXPECT_FALSE(beam.window.check.open);
    Type(field, kept);
  }
}

TEST_F(SawnCheckTest, RefusedBeforeItsFirstRowLeavesTheList) {
  const Texts rows = Check("4");
  Type(StressField::Fb, "");
  EXPECT_EQ(Check("4"), rows);
  EXPECT_EQ(beam.Boxes(), Texts({kInputMissing}));
}

// The whole list.

TEST_F(SawnCheckTest, OfAShortMemberWithoutAxialLoad) {
  // B = 1.92 x 4 x 12 x 11.25 / 3.5^2 = 84.64.
  EXPECT_EQ(
      Check("4"),
      Texts({"ACTUAL STRESSES", "Max. shear stress = 3.809 psi", "Max. bending stress = 81.268 psi",
             "", "ALLOWABLE STRESSES", "Bending = 1000.00 psi Short Member", "Shear = 95.00 psi",
             "", "COMBINED AXIAL AND BENDING FACTOR",
             "No axial load, thus no combined check required!", "", "Combined stress passes!",
             "Bending stress passes!", "Shear Stress passes!"}));
  EXPECT_TRUE(beam.window.check.open);
  EXPECT_EQ(beam.Boxes(), Texts());
}

TEST_F(SawnCheckTest, OfAnIntermediateMemberUnderCompression) {
  // B = 211.59, K = 3 x 1.6e6 / 5000 = 960: Fb = (1 - (B / K)^2 / 3) 1000 = 983.81.
  // lu / b = 120 / 3.5: FcE = 0.3 x 1.6e6 / 34.29^2 = 408.33. fc = 1000 / 39.38 = 25.394.
  // C = 25.394 / 408.33 + 81.268 / 983.81 = 0.1448.
  EXPECT_EQ(
      Check("10", "-1000.00"),
      Texts({"ACTUAL STRESSES", "Max. shear stress = 3.809 psi", "Max. bending stress = 81.268 psi",
             "Max. axial comp. stress = 25.394 psi", "", "ALLOWABLE STRESSES",
             "Bending = 983.81 psi Intermediate Member", "Axial Compression = 408.33 psi",
             "Shear = 95.00 psi", "", "COMBINED AXIAL AND BENDING FACTOR", "fc/Fc + fb/Fb = 0.14",
             "", "Combined stress passes!", "Bending stress passes!", "Shear Stress passes!",
             "Axial Compressive stress passes!"}));
}

TEST_F(SawnCheckTest, OfAnIntermediateMemberUnderTension) {
  // C = 25.394 / 675 + 81.268 / 983.81 = 0.1202.
  EXPECT_EQ(
      Check("10", "1000.00"),
      Texts({"ACTUAL STRESSES", "Max. shear stress = 3.809 psi", "Max. bending stress = 81.268 psi",
             "Max. axial ten. stress = 25.394 psi", "", "ALLOWABLE STRESSES",
             "Bending = 983.81 psi Intermediate Member", "Shear = 95.00 psi",
             "Tensile = 675.00 psi", "", "COMBINED AXIAL AND BENDING FACTOR",
             "ft/Ft + fb/Fb = 0.12", "", "Combined stress passes!", "Bending stress passes!",
             "Shear Stress passes!", "Axial Tension stress passes!"}));
}

TEST_F(SawnCheckTest, OfATooSlenderColumn) {
  // lu / b = 480 / 3.5 = 137: FcE = 25.52, fc = 60000 / 39.38 = 1523.62. B = 846.37, so Fb =
  // 740.91. C = 1523.62 / 25.52 + 81.268 / 740.91 = 59.81. 50 x 3.5 / 12 = 14.6 ft.
  const Texts rows = Check("40", "-60000.00");
  EXPECT_EQ(
      Texts(rows.begin() + 5, rows.end()),
      Texts({"ALLOWABLE STRESSES", "Bending = 740.91 psi Intermediate Member",
             "Your length to narrow dim. ratio is over 50, axial load may be unstable!",
             "Decrease your unbraced length to at least 14.6 ft, then rerun!", "Shear = 95.00 psi",
             "", "COMBINED AXIAL AND BENDING FACTOR", "fc/Fc + fb/Fb = 59.81", "",
             "Fails due to combined stress!", "Bending stress passes!", "Shear Stress passes!",
             "Fails due to axial compressive stress!"}));
  EXPECT_NEAR(beam.session.Member.AllowFc.value(), 25.52, 0.005);
}

TEST_F(SawnCheckTest, OfALongMember) {
  // B = 2115.92: Fb = 0.4 x 1.6e6 / B = 302.47.
  Check("100");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 302.47 psi Long Member");
  EXPECT_NEAR(beam.session.Member.AllowFb.value(), 302.47, 0.005);
}

TEST_F(SawnCheckTest, OfATooLongMemberWithoutAxialLoad) {
  // B = 2539.1: no allowable is left, and any bending fails.
  const Texts rows = Check("120");
  EXPECT_EQ(Texts(rows.begin() + 4, rows.end()),
            Texts({"ALLOWABLE STRESSES", "Unbraced length is to long for bending loads!",
                   "Shear = 95.00 psi", "", "COMBINED AXIAL AND BENDING FACTOR",
                   "No axial load, thus no combined check required!", "", "Combined stress passes!",
                   "Fails due to bending stress!", "Shear Stress passes!"}));
  EXPECT_EQ(beam.Boxes(), Texts());
  EXPECT_TRUE(beam.window.check.open);
}

TEST_F(SawnCheckTest, OfATooLongMemberWithAxialLoadEndsAtTheCombinedFactor) {
  const Texts rows = Check("120", "1000.00");
  EXPECT_EQ(Texts(rows.begin() + 5, rows.end()),
            Texts({"ALLOWABLE STRESSES", "Unbraced length is to long for bending loads!",
                   "Shear = 95.00 psi", "Tensile = 675.00 psi", "",
                   "COMBINED AXIAL AND BENDING FACTOR"}));
  EXPECT_EQ(beam.Boxes(), Texts({kNoArea}));
  EXPECT_FALSE(beam.window.check.open);
  EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
}

TEST_F(SawnCheckTest, WithoutAnAreaOfTheMemberStopsAtTheAxialStress) {
  beam.session.Member.SectionArea = 0;
  EXPECT_EQ(Check("4", "1000.00"), Texts());
  EXPECT_EQ(beam.Boxes(), Texts({kNoArea}));
}

// Limits between the classes. B = 23.04 lu d / b^2.

TEST_F(SawnCheckTest, AtAHundredIsShort) {
  TypeSection("1.5", "3.125");
  Check("3.125");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 1000.00 psi Short Member");
}

TEST_F(SawnCheckTest, AtKIsIntermediate) {
  // 23.04 x 4.6875^2 / 2.25 = 225 = 3 x 1.5e6 / (5 x 4000).
  beam.session.Member.ModulusE = 1500000;
  Type(StressField::Fb, "4000");
  TypeSection("1.5", "4.6875");
  Check("4.6875");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 2666.67 psi Intermediate Member");
}

TEST_F(SawnCheckTest, AtTwentyFiveHundredIsLong) {
  // 23.04 x 7.8125^2 / 0.75^2 = 2500.
  TypeSection("0.75", "7.8125");
  Check("7.8125");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 256.00 psi Long Member");
}

TEST_F(SawnCheckTest, KnowsNoIntermediateMemberWhereKIsBelowAHundred) {
  // K = 3 x 1.6e6 / (5 x 30000) = 32; B = 102.4.
  Type(StressField::Fb, "30000");
  TypeSection("1.5", "3.125");
  Check("3.2");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 6250.00 psi Long Member");
}

TEST_F(SawnCheckTest, AtARatioOfFiftyIsNoTooSlenderColumn) {
  // 25 ft x 12 / 6 in = 50.
  TypeSection("6", "12");
  Check("25", "-1000.00");
  EXPECT_EQ(RowOf("Axial Compression"), "Axial Compression = 192.00 psi");
  Check("25.1", "-1000.00");
  EXPECT_EQ(RowOf("Axial Compression"), "");
  EXPECT_EQ(RowOf("Decrease"), "Decrease your unbraced length to at least 25.0 ft, then rerun!");
}

TEST_F(SawnCheckTest, TakesTheSmallerSideForTheColumn) {
  TypeSection("12", "6");
  Check("25", "-1000.00");
  EXPECT_EQ(RowOf("Axial Compression"), "Axial Compression = 192.00 psi");
}

TEST_F(SawnCheckTest, KeepsAnAllowableBelowTheEulerValue) {
  Check("2", "-1000.00");
  EXPECT_EQ(RowOf("Axial Compression"), "Axial Compression = 1500.00 psi");
}

// Verdicts that fail.

TEST_F(SawnCheckTest, FailsWhatIsOverstressed) {
  beam.window.maxMoment = "7000.00";  // fb 1137.75
  beam.window.maxShear = "2600.00";   // fv 99.04
  Check("4", "30000.00");             // ft 761.81
  const Texts& rows = beam.window.check.rows;
  EXPECT_EQ(Texts(rows.end() - 4, rows.end()),
            Texts({"Fails due to combined stress!", "Fails due to bending stress!",
                   "Fails due to Shear stress!", "Fails due to axial tensile stress!"}));
}

// What it reads and what it leaves behind.

TEST_F(SawnCheckTest, SeesNoAxialLoadBelowHalfACent) {
  // 0.004 lbs show as 0.00.
  beam.Axial("0.004");
  beam.Run();
  Check("4", beam.window.axial);
  EXPECT_EQ(RowOf("No axial load"), "No axial load, thus no combined check required!");
}

TEST_F(SawnCheckTest, TakesTheSpanWithoutAnUnbracedLength) {
  Check("");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 983.81 psi Intermediate Member");
  Check("-4");
  EXPECT_EQ(RowOf("Bending = "), "Bending = 983.81 psi Intermediate Member");
}

TEST_F(SawnCheckTest, WritesFieldsAndAdjustedAllowablesIntoTheMember) {
  Type(StressField::Fv, "90");
  Type(StressField::Ft, "600");
  TypeSection("3.25", "11");
  beam.session.Member.UnbracedLength = 7;
  Check("10", "-1000.00");
  const MemberSelection& m = beam.session.Member;
  EXPECT_EQ(m.AllowFv.value(), 90.0f);
  EXPECT_EQ(m.AllowFt.value(), 600.0f);
  EXPECT_EQ(m.DressedB.value(), 3.25f);
  EXPECT_EQ(m.DressedD.value(), 11.0f);
  EXPECT_LT(m.AllowFb.value(), 1000.0f);
  EXPECT_LT(m.AllowFc.value(), 400.0f);
  EXPECT_EQ(m.UnbracedLength.value(), 7.0f) << "the stored length is the windows' own";
}

TEST_F(SawnCheckTest, StartsFromTheFieldsAgain) {
  const Texts first = Check("10", "-1000.00");
  EXPECT_EQ(Check("10", "-1000.00"), first);
}

TEST_F(SawnCheckTest, KeepsTheActualStresses) {
  Check("10", "-1000.00");
  EXPECT_NEAR(beam.window.check.actualShear.value(), 3.809, 0.001);
  EXPECT_NEAR(beam.window.check.actualBending.value(), 81.268, 0.001);
  EXPECT_NEAR(beam.window.check.actualCompression.value(), 25.394, 0.001);
  EXPECT_EQ(beam.window.check.actualTension.value(), 0.0f);
}

}  // namespace
}  // namespace lignara
