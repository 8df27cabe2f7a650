#include <gtest/gtest.h>

#include "app/launcher.h"
#include "app/session_state.h"
#include "glulam/glulam_columns.h"
#include "glulam/use_conditions.h"

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
