#include <gtest/gtest.h>

#include "app/launcher.h"
#include "app/session_state.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"
#include "glulam/values_and_wet_factors.h"

namespace lignara {
namespace {

struct ColumnCase {
  GlulamValue value;
  const char* caption;
  double wetFactor;
  bool takesAllDurations;
};

class GlulamColumns : public testing::TestWithParam<ColumnCase> {};

TEST_P(GlulamColumns, BearTheirCaptionWetFactorAndDurations) {
  const ColumnCase& expected = GetParam();
  const GlulamColumn& column = kGlulamColumns[static_cast<std::size_t>(expected.value)];
  EXPECT_STREQ(column.caption, expected.caption);
  EXPECT_EQ(column.wetFactor, expected.wetFactor);
  EXPECT_EQ(column.takesAllDurations, expected.takesAllDurations);
}

INSTANTIATE_TEST_SUITE_P(
    All, GlulamColumns,
    testing::Values(
        ColumnCase{GlulamValue::FbxTensionZone, "Fbx, Ten. Zone in tension", 0.8, true},
        ColumnCase{GlulamValue::FbxCompressionZone, "Fbx, Comp. Zone in tension", 0.8, true},
        ColumnCase{GlulamValue::FcxTensionFace, "Fcx, Comp. perp. to grain, Tension face", 0.53,
                   true},
        ColumnCase{GlulamValue::FcxCompressionFace, "Fcx, Comp. perp. to grain, Comp. face", 0.53,
                   true},
        ColumnCase{GlulamValue::Fv, "Fv, Horizontal Shear", 0.875, true},
        ColumnCase{GlulamValue::Ex, "Ex, Mod. of Elasticity, Bending about X", 0.833, false},
        ColumnCase{GlulamValue::Fby, "Fby, Bending about Y-Y Axis", 0.8, true},
        ColumnCase{GlulamValue::Fcy, "Fcy, Comp. perp. to grain Y-Y Axis", 0.53, false},
        ColumnCase{GlulamValue::Fvy, "Fvy, Horiz. Shear Y-Y Axis", 0.875, true},
        ColumnCase{GlulamValue::FvyNoEdgeGlue, "Fvy, Horiz. Shear, Mult. pc. no edg. glue", 0.875,
                   true},
        ColumnCase{GlulamValue::Ey, "Ey, Mod. of Elasticity, Bending about Y", 0.833, false},
        ColumnCase{GlulamValue::Ft, "Ft, Tension Parallel to grain", 0.8, true},
        ColumnCase{GlulamValue::Fc, "Fc, Compression parallel to grain", 0.73, true},
        ColumnCase{GlulamValue::Ea, "Ea, Mod. of Elasticity, Axial Load", 0.833, true}));

TEST(GlulamLabels, OfTheSingleSpanCheck) {
  const char* const labels[] = {"Bending stress, tension zone (psi) = ",
                                "Bending stress, compression zone (psi) = ",
                                "Compression perp. to grain, tension face (psi) = ",
                                "Compression perp. to grain, compression face (psi) = ",
                                "Horizontal Shear (psi) = ",
                                "Mod. of elasticity for bending about X (psi) = ",
                                "Bending stress about Y (psi) = ",
                                "Compression perp. to grain Y axis (psi) = ",
                                "Horiz. shear Y axis (psi) = ",
                                "Horiz. shear, no edge glue (psi) = ",
                                "Mod. of elasticity for bending about Y (psi) = ",
                                "Axial Tension parallel to grain (psi) = ",
                                "Axial Compression parallel to grain (psi) = ",
                                "Mod. of elasticity for axial loading (psi) = "};
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    EXPECT_STREQ(kGlulamColumns[i].beamLabel, labels[i]);
  }
}

TEST(GlulamLabels, OfTheMultiSpanCheck) {
  const char* const labels[] = {"Allowable Bending tension zone (psi) = ",
                                "Allowable Bending compression zone (psi) = ",
                                "Compression perp. to grain,tension face (psi) = ",
                                "Compression perp. to grain,compression face (psi) = ",
                                "Horizontal Shear (psi) = ",
                                "Mod. of elasticity, bending about X (psi) = ",
                                "Allowable Bending about Y axis (psi) = ",
                                "Compression perp. to grain, Y axis (psi) = ",
                                "Horizontal Shear, Y axis (psi) = ",
                                "Horizontal Shear, no edge glue (psi) = ",
                                "Mod. of elasticity, bending about Y (psi) = ",
                                "Allowable tension parallel to grain (psi) = ",
                                "Allowable compression parallel to grain (psi) = ",
                                "Mod. of elasticity, axial loading (psi) = "};
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    EXPECT_STREQ(kGlulamColumns[i].spanLabel, labels[i]);
  }
}

struct UseLines {
  const char* beam;
  const char* span;
};

void ExpectLines(const GlulamUseCondition* use, const UseLines& lines) {
  ASSERT_NE(use, nullptr);
  EXPECT_STREQ(use->beamLine, lines.beam);
  EXPECT_STREQ(use->spanLine, lines.span);
}

TEST(GlulamUseConditions, LinesOfTheChecksByCode) {
  ExpectLines(FindGlulamDuration(1),
              {"Load duration is > 10 years.", "Load duration is greater than 10 years."});
  ExpectLines(FindGlulamDuration(2), {"Load duration is 2 months.", "Load duration is 2 months."});
  ExpectLines(FindGlulamDuration(3),
              {"Load type is wind/earthquake.", "Load type is wind/earthquake."});
  ExpectLines(FindGlulamDuration(4), {"Load duration is 7 days.", "Load duration is 7 days."});
  ExpectLines(FindGlulamDuration(5), {"Load type is impact.", "Load type is impact."});
  ExpectLines(FindUseCondition(kGlulamLoadTypes, 1), {"Primary load is single consentrated.",
                                                      "Primary load type is single consentrated."});
  ExpectLines(FindUseCondition(kGlulamLoadTypes, 2),
              {"Primary load is uniform.", "Primary load type is uniform."});
  ExpectLines(
      FindUseCondition(kGlulamLoadTypes, 3),
      {"Primary load is multiple point loads.", "Primary load type is multiple point loads."});
  ExpectLines(FindUseCondition(kGlulamMoistures, 1),
              {"Member is considered dry.", "Wood is considered Dry."});
  ExpectLines(FindUseCondition(kGlulamMoistures, 2),
              {"Member is considered wet.", "Wood is considered Wet."});
}

TEST(GlulamUseConditions, CodesOfDurationsPutWindBeforeSevenDays) {
  EXPECT_STREQ(FindGlulamDuration(1)->caption, "> 10 yr.");
  EXPECT_STREQ(FindGlulamDuration(2)->caption, "2 Month");
  EXPECT_STREQ(FindGlulamDuration(3)->caption, "Wind/Earth Qk.");
  EXPECT_STREQ(FindGlulamDuration(4)->caption, "7 Day");
  EXPECT_STREQ(FindGlulamDuration(5)->caption, "Impact");
}

TEST(GlulamUseConditions, ACodeOfNoChoiceHasNoRow) {
  EXPECT_EQ(FindGlulamDuration(0), nullptr);
  EXPECT_EQ(FindGlulamDuration(6), nullptr);
  EXPECT_EQ(FindUseCondition(kGlulamLoadTypes, 0), nullptr);
  EXPECT_EQ(FindUseCondition(kGlulamMoistures, 3), nullptr);
}

TEST(GlulamUseConditions, LoadTypesAndMoisturesCountInButtonOrder) {
  EXPECT_STREQ(FindUseCondition(kGlulamLoadTypes, 1)->caption, "Single Consentrated");
  EXPECT_STREQ(FindUseCondition(kGlulamLoadTypes, 2)->caption, "Uniform");
  EXPECT_STREQ(FindUseCondition(kGlulamLoadTypes, 3)->caption, "1/3 Point Consentrated");
  EXPECT_STREQ(FindUseCondition(kGlulamMoistures, 1)->caption, "Dry Use");
  EXPECT_STREQ(FindUseCondition(kGlulamMoistures, 2)->caption, "Wet Use");
}

TEST(GlulamSession, NothingWasHandedOverOrLoadedAtStart) {
  SessionState session;
  StartSession(session, "work");
  EXPECT_EQ(session.Member.UnbracedLength.value(), 0.0F);
  EXPECT_EQ(session.Glulam.UnbracedLength.value(), 0.0F);
  for (const Float32& value : session.Glulam.Values) EXPECT_EQ(value.value(), 0.0F);
  EXPECT_EQ(session.Glulam.MoistureCode.value(), 0);
  EXPECT_EQ(session.Glulam.DurationCode.value(), 0);
  EXPECT_EQ(session.Glulam.LoadCode.value(), 0);
  EXPECT_EQ(session.Glulam.UseNote, "");
  EXPECT_EQ(session.GlulamCombinations.Option.value(), 0);
  EXPECT_EQ(session.GlulamCombinations.RowCount.value(), 0);
  EXPECT_EQ(session.GlulamCombinations.cells[50][20], "");
}

}  // namespace
}  // namespace lignara
