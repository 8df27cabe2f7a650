#include <gtest/gtest.h>

#include "beam/stress_check.h"
#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

class GlulamCheck : public testing::Test {
 protected:
  GlulamCheck() {
    MemberSelection& m = beam.session.Member;
    m.MemberSource = 2;
    m.SizeName = "GL 24F-V4(DF/DF)";
    m.BeamGradeLabel = "No.2, a sawn member chosen before";
    m.SectionArea = 72;
    m.SectionSx = 144;
    m.DressedB = 6;
    m.DressedD = 12;
    GlulamTransfer& glulam = beam.session.Glulam;
    for (std::size_t i = 0; i < kGlulamValues; ++i) glulam.Values[i] = 1000.4 + 10.0 * i;
    glulam.MoistureCode = 1;
    glulam.DurationCode = 3;
    glulam.LoadCode = 2;
    glulam.UseNote = "Balanced, equal capacity in both pos. and neg. bending.";
    FillFromMember(beam.window, beam.session);
    beam.window.maxMoment = "1200.00";
    beam.window.maxShear = "96.00";
    beam.window.axial = "-720.00";
    beam.window.beam.hasRun = -1;
  }

  Texts Check() {
    CheckGlulamMember(beam.window, beam.session, beam.platform);
    return beam.window.check.rows;
  }

  TestBeam beam;
};

TEST_F(GlulamCheck, ListsActualStressesAllowablesAndUse) {
  // fv = 96 / 48 = 2, fb = 1200 x 12 / 144 = 100, fc = 720 / 72 = 10.
  EXPECT_EQ(Check(), Texts({"GL 24F-V4(DF/DF)",
                            "",
                            "ACTUAL STRESSES",
                            "Max. shear stress = 2.000 psi",
                            "Max. bending stress = 100.000 psi",
                            "Max. axial comp. stress = 10.000 psi",
                            "",
                            "ALLOWABLE STRESSES",
                            "Bending stress, tension zone (psi) = 1000",
                            "Bending stress, compression zone (psi) = 1010",
                            "Compression perp. to grain, tension face (psi) = 1020",
                            "Compression perp. to grain, compression face (psi) = 1030",
                            "Horizontal Shear (psi) = 1040",
                            "Mod. of elasticity for bending about X (psi) = 1050",
                            "Bending stress about Y (psi) = 1060",
                            "Compression perp. to grain Y axis (psi) = 1070",
                            "Horiz. shear Y axis (psi) = 1080",
                            "Horiz. shear, no edge glue (psi) = 1090",
                            "Mod. of elasticity for bending about Y (psi) = 1100",
                            "Axial Tension parallel to grain (psi) = 1110",
                            "Axial Compression parallel to grain (psi) = 1120",
                            "Mod. of elasticity for axial loading (psi) = 1130",
                            "",
                            "USE CONDITIONS",
                            "Member is considered dry.",
                            "Primary load is uniform.",
                            "Load type is wind/earthquake.",
                            "",
                            "Balanced, equal capacity in both pos. and neg. bending."}));
  EXPECT_TRUE(beam.window.check.open);
  EXPECT_EQ(beam.Boxes(), Texts());
}

TEST_F(GlulamCheck, NamesEachUseCondition) {
  struct Row {
    Int16 GlulamTransfer::*code;
    int value;
    std::size_t row;
    const char* text;
  };
  const Row rows[] = {{&GlulamTransfer::MoistureCode, 2, 24, "Member is considered wet."},
                      {&GlulamTransfer::LoadCode, 1, 25, "Primary load is single consentrated."},
                      {&GlulamTransfer::LoadCode, 3, 25, "Primary load is multiple point loads."},
                      {&GlulamTransfer::DurationCode, 1, 26, "Load duration is > 10 years."},
                      {&GlulamTransfer::DurationCode, 2, 26, "Load duration is 2 months."},
                      {&GlulamTransfer::DurationCode, 4, 26, "Load duration is 7 days."},
                      {&GlulamTransfer::DurationCode, 5, 26, "Load type is impact."}};
  for (const Row& row : rows) {
    beam.session.Glulam.*row.code = row.value;
    EXPECT_EQ(Check()[row.row], row.text);
  }
}

TEST_F(GlulamCheck, SaysNothingOfWhatWasNeverChosen) {
  beam.session.Glulam.DurationCode = 0;
  beam.session.Glulam.LoadCode = 0;
  const Texts rows = Check();
  EXPECT_EQ(Texts(rows.begin() + 23, rows.begin() + 26),
            Texts({"USE CONDITIONS", "Member is considered dry.", ""}));
}

TEST_F(GlulamCheck, NeedsAGlulamBeforeARun) {
  beam.window.beam.hasRun = 0;
  beam.session.Member.MemberSource = 1;
  Check();
  EXPECT_EQ(beam.Boxes(), Texts({"YOUR MEMBER IS NORMAL WOOD, NOT GLU-LAM!"}));
  beam.session.Member.MemberSource = 2;
  Check();
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED TO HIT THE RUN BUTTON FIRST!"}));
}

TEST_F(GlulamCheck, NeedsItsAreas) {
  const std::string missing = "Check your values required for stress, an area value is missing!";
  beam.window.Field(StressField::SectionModulus).text = "0";
  EXPECT_EQ(Check(), Texts());
  EXPECT_EQ(beam.Boxes(), Texts({missing}));
  beam.window.Field(StressField::SectionModulus).text = "144";
  beam.session.Member.SectionArea = 0;
  EXPECT_EQ(Check(), Texts());
  EXPECT_EQ(beam.Boxes(), Texts({missing}));
  EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
  EXPECT_FALSE(beam.window.check.open);
}

TEST_F(GlulamCheck, PutsTheFieldsIntoTheMember) {
  beam.window.Field(StressField::Fb).text = "2400";
  Check();
  EXPECT_EQ(beam.session.Member.AllowFb.value(), 2400.0f);
}

TEST_F(GlulamCheck, ListsTensionInsteadOfCompression) {
  beam.window.axial = "720.00";
  EXPECT_EQ(Check()[5], "Max. axial ten. stress = 10.000 psi");
}

}  // namespace
}  // namespace lignara
