#include "multispan/stress_check.h"

#include "app/number_pattern.h"
#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class SpanStressCheck : public MultiSpanTest {
 protected:
  /// Two spans of 10 ft under 120 lbs/ft, 1.5 by 9.25 in, S 20, shear area 9.25, Fb 1200, Fv 75,
  /// E 1600000; unbraced lengths as told.
  void Solve(double unbraced1, double unbraced2) {
    Open(2);
    EnterSpan(10, 120);
    EnterSpan(10, 120);
    for (int j = 1; j <= 2; ++j) {
      model().spanSectionModulus[j] = 20;
      model().spanShearArea[j] = 9.25;
      model().spanB[j] = 1.5;
      model().spanD[j] = 9.25;
      model().spanFb[j] = 1200;
      model().spanFv[j] = 75;
      model().spanMember[static_cast<std::size_t>(j)] = "Hem-Fir, 2X10";
      model().spanType[static_cast<std::size_t>(j)] = "GLU-LAM";
    }
    model().spanUnbraced[1] = unbraced1;
    model().spanUnbraced[2] = unbraced2;
    Run();
    ShowMultiSpanResults(results, session);
    session.Member.MemberSource = 1;
    session.Member.AllowFb = 850;
  }
  Texts CheckWood() {
    CheckWoodSpans(results, session, platform);
    return results.stressRows;
  }
  Texts CheckGlulam() {
    session.Member.MemberSource = 2;
    CheckGlulamSpans(results, session, platform);
    return results.stressRows;
  }
  /// The bending allowable that the check of wood writes for a span.
  std::string Fb(std::size_t span) { return CheckWood()[8 + 3 * (span - 1) + 1]; }

  MultiSpanResults results;
};

// Wood.

// Both spans have 1500 ft-lbs over the joint and 750 lbs beside it: 1500 x 12 / 20 = 900 and
// 750 / 9.25 = 81.08. Unbraced 8 ft: le 184.32, S 757.76, K 800.
TEST_F(SpanStressCheck, WoodListsActualAndAllowableStresses) {
  Solve(8, 12);
  EXPECT_EQ(CheckWood(),
            (Texts{"ACTUAL STRESSES", "Span 1 Hem-Fir, 2X10", "Bending stress = 900.00 psi",
                   "Shear stress = 81.08 psi", "Span 2 Hem-Fir, 2X10",
                   "Bending stress = 900.00 psi", "Shear stress = 81.08 psi", "ALLOWABLE STRESSES",
                   "Span 1 Hem-Fir, 2X10", "Allowable Bending Stress = 1178.79 psi",
                   "Allowable Shear Stress = 75.00 psi", "Span 2 Hem-Fir, 2X10",
                   "Allowable Bending Stress = 563.06 psi", "Allowable Shear Stress = 75.00 psi"}));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(SpanStressCheck, WoodWantsASawnMember) {
  Solve(8, 8);
  for (const int source : {0, 2}) {
    session.Member.MemberSource = source;
    EXPECT_TRUE(CheckWood().empty());
    EXPECT_EQ(Messages(), Texts{"YOUR MEMBER IS GLU-LAM, NOT NORMAL WOOD!"});
  }
}

TEST_F(SpanStressCheck, WoodWantsAllDataOfEachSpan) {
  for (Float32Array MultiSpanModel::*list :
       {&MultiSpanModel::spanSectionModulus, &MultiSpanModel::spanShearArea, &MultiSpanModel::spanB,
        &MultiSpanModel::spanD, &MultiSpanModel::spanFb, &MultiSpanModel::spanFv}) {
    Solve(8, 8);
    (model().*list)[2] = 0;
    EXPECT_TRUE(CheckWood().empty());
    EXPECT_EQ(Messages(), Texts{"YOU ARE MISSING DATA REQUIRED FOR CODE CHECK IN SPAN 2"});
    (model().*list)[1] = -1;
    CheckWood();
    EXPECT_EQ(Messages(), Texts{"YOU ARE MISSING DATA REQUIRED FOR CODE CHECK IN SPAN 1"});
  }
}

TEST_F(SpanStressCheck, WoodWantsASawnMemberBeforeItsData) {
  Solve(8, 8);
  model().spanFb[1] = 0;
  session.Member.MemberSource = 2;
  CheckWood();
  EXPECT_EQ(Messages(), Texts{"YOUR MEMBER IS GLU-LAM, NOT NORMAL WOOD!"});
}

TEST_F(SpanStressCheck, EmptyTheListFirst) {
  Solve(8, 8);
  CheckWood();
  EXPECT_EQ(CheckWood().size(), 14u);
  session.Member.MemberSource = 2;
  EXPECT_TRUE(CheckWood().empty());
}

TEST_F(SpanStressCheck, WoodTakesTheLargerSideAsDepth) {
  Solve(8, 8);
  model().spanB[1] = 9.25;
  model().spanD[1] = 1.5;
  EXPECT_EQ(Fb(1), "Allowable Bending Stress = 1178.79 psi");
}

// Unbraced 1 ft: le 23.04, S 94.72: short.
TEST_F(SpanStressCheck, ShortFirstSpanShowsTheSelectionsAllowable) {
  Solve(1, 8);
  EXPECT_EQ(Fb(1), "Allowable Bending Stress = 850.00 psi");
}

TEST_F(SpanStressCheck, ShortSpanShowsTheAllowableOfTheSpanBefore) {
  Solve(8, 1);
  EXPECT_EQ(Fb(2), "Allowable Bending Stress = 1178.79 psi");
}

TEST_F(SpanStressCheck, WoodLeavesItsLastAllowableInTheSession) {
  Solve(8, 12);
  CheckWood();
  EXPECT_EQ(FormatNumber(session.Member.AllowFb, "0.00"), "563.06");
}

// b 24, d 25: S = 23.04 x L x 25 / 576 = L in feet.
TEST_F(SpanStressCheck, SlendernessOfExactlyOneHundredIsShort) {
  Solve(100, 8);
  model().spanB[1] = 24;
  model().spanD[1] = 25;
  EXPECT_EQ(Fb(1), "Allowable Bending Stress = 850.00 psi");
  model().spanUnbraced[1] = 100.1;
  EXPECT_NE(Fb(1), "Allowable Bending Stress = 850.00 psi");
}

TEST_F(SpanStressCheck, SlendernessOfExactly2500IsLong) {
  Solve(2500, 8);
  model().spanB[1] = 24;
  model().spanD[1] = 25;
  EXPECT_EQ(Fb(1), "Allowable Bending Stress = 256.00 psi");  // 0.4 x 1600000 / 2500
}

TEST_F(SpanStressCheck, SlendernessAbove2500HasNoAllowable) {
  Solve(2501, 8);
  model().spanB[1] = 24;
  model().spanD[1] = 25;
  EXPECT_EQ(Fb(1), "Length is to long, no allowable stress is applicable!");
  EXPECT_EQ(CheckWood()[10], "Allowable Shear Stress = 75.00 psi");
}

// K = 3 x 1600000 / (5 x 300) = 3200: the middle range reaches beyond 2500, but shows no value.
TEST_F(SpanStressCheck, SlendernessAbove2500HasNoAllowableInTheMiddleRangeEither) {
  Solve(2600, 1);
  model().spanB[1] = 24;
  model().spanD[1] = 25;
  model().spanFb[1] = 300;
  EXPECT_EQ(Fb(1), "Length is to long, no allowable stress is applicable!");
  // le / K = 59904 / 3200: (1 - 0.333 x 350.44) x 300, which the short span behind shows.
  EXPECT_EQ(Fb(2).substr(0, 33), "Allowable Bending Stress = -34708");
}

TEST_F(SpanStressCheck, SlendernessOfExactlyKIsMiddle) {
  Solve(800, 8);
  model().spanB[1] = 24;
  model().spanD[1] = 25;
  // S = K = 800, le = 18432: (1 - 0.333 x 23.04^2) x 1200, where the long rule would give 800.
  EXPECT_EQ(Fb(1), "Allowable Bending Stress = -210924.30 psi");
}

TEST_F(SpanStressCheck, ReadTheModelAsItIsNow) {
  Solve(8, 8);
  model().spanSectionModulus[1] = 40;
  EXPECT_EQ(CheckWood()[2], "Bending stress = 450.00 psi");
}

TEST_F(SpanStressCheck, OfAnEmptiedModelWantItsData) {
  Solve(8, 8);
  session.SpanCount = 3;
  OpenMultiSpan(window, session, platform);
  CheckWood();
  EXPECT_EQ(Messages(), Texts{"YOU ARE MISSING DATA REQUIRED FOR CODE CHECK IN SPAN 1"});
}

TEST_F(SpanStressCheck, ASpanThatWasNotInTheRunHasNoStress) {
  Solve(8, 8);
  model().spanCount = 3;
  model().spanSectionModulus[3] = model().spanShearArea[3] = model().spanB[3] = 1;
  model().spanD[3] = model().spanFb[3] = model().spanFv[3] = 1;
  EXPECT_EQ(CheckWood()[8], "Bending stress = 0.00 psi");
}

// Glulam.

TEST_F(SpanStressCheck, GlulamWantsAGlulamMember) {
  Solve(8, 8);
  for (const int source : {0, 1}) {
    session.Member.MemberSource = source;
    results.stressRows = {"old"};
    CheckGlulamSpans(results, session, platform);
    EXPECT_EQ(Messages(), Texts{"YOUR MEMBER IS NORMAL WOOD, NOT GLU-LAM!"});
    EXPECT_TRUE(results.stressRows.empty());
  }
}

TEST_F(SpanStressCheck, GlulamListsAllowablesAndConditions) {
  Solve(8, 8);
  model().spanCount = 1;
  GlulamTransfer& glulam = model().spanGlulam[1];
  for (std::size_t i = 0; i < kGlulamValues; ++i) glulam.Values[i] = 1000.4 + 100.0 * i;
  glulam.DurationCode = 3;
  glulam.LoadCode = 3;
  glulam.MoistureCode = 2;
  EXPECT_EQ(CheckGlulam(),
            (Texts{"ACTUAL STRESSES",
                   "Span 1 GLU-LAM",
                   "Bending stress = 900.00 psi",
                   "Shear stress = 81.08 psi",
                   "ALLOWABLE STRESS VALUES",
                   "SPAN 1, Allowable Bending tension zone (psi) = 1000",
                   "SPAN 1, Allowable Bending compression zone (psi) = 1100",
                   "SPAN 1, Compression perp. to grain,tension face (psi) = 1200",
                   "SPAN 1, Compression perp. to grain,compression face (psi) = 1300",
                   "SPAN 1, Horizontal Shear (psi) = 1400",
                   "SPAN 1, Mod. of elasticity, bending about X (psi) = 1500",
                   "SPAN 1, Allowable Bending about Y axis (psi) = 1600",
                   "SPAN 1, Compression perp. to grain, Y axis (psi) = 1700",
                   "SPAN 1, Horizontal Shear, Y axis (psi) = 1800",
                   "SPAN 1, Horizontal Shear, no edge glue (psi) = 1900",
                   "SPAN 1, Mod. of elasticity, bending about Y (psi) = 2000",
                   "SPAN 1, Allowable tension parallel to grain (psi) = 2100",
                   "SPAN 1, Allowable compression parallel to grain (psi) = 2200",
                   "SPAN 1, Mod. of elasticity, axial loading (psi) = 2300",
                   "MEMBER USE CONDITIONS",
                   "SPAN 1",
                   "Load type is wind/earthquake.",
                   "Primary load type is multiple point loads.",
                   "Wood is considered Wet."}));
}

TEST_F(SpanStressCheck, GlulamTellsEachConditionByItsCode) {
  const std::vector<std::pair<int, std::string>> durations = {
      {1, "Load duration is greater than 10 years."},
      {2, "Load duration is 2 months."},
      {3, "Load type is wind/earthquake."},
      {4, "Load duration is 7 days."},
      {5, "Load type is impact."}};
  const std::vector<std::pair<int, std::string>> loads = {
      {1, "Primary load type is single consentrated."},
      {2, "Primary load type is uniform."},
      {3, "Primary load type is multiple point loads."}};
  Solve(8, 8);
  model().spanCount = 1;
  for (const auto& [code, text] : durations) {
    model().spanGlulam[1].DurationCode = code;
    EXPECT_EQ(CheckGlulam().at(21), text);
  }
  for (const auto& [code, text] : loads) {
    model().spanGlulam[1].LoadCode = code;
    EXPECT_EQ(CheckGlulam().at(22), text);
  }
  model().spanGlulam[1].MoistureCode = 1;
  EXPECT_EQ(CheckGlulam().at(23), "Wood is considered Dry.");
}

TEST_F(SpanStressCheck, GlulamTellsNoConditionThatWasNeverChosen) {
  Solve(8, 8);
  model().spanCount = 1;
  EXPECT_EQ(CheckGlulam().back(), "SPAN 1");
}

TEST_F(SpanStressCheck, GlulamListsAllSpansUnderEachHeading) {
  Solve(8, 8);
  const Texts rows = CheckGlulam();
  EXPECT_EQ(rows[1 + 6], "ALLOWABLE STRESS VALUES");
  EXPECT_EQ(rows[8 + 28], "MEMBER USE CONDITIONS");
  EXPECT_EQ((Texts{rows[37], rows[38]}), (Texts{"SPAN 1", "SPAN 2"}));
}

TEST_F(SpanStressCheck, DivisionByZeroIsTold) {
  Solve(8, 8);
  model().spanCount = 1;
  model().spanSectionModulus[1] = 0;
  const Texts rows = CheckGlulam();
  EXPECT_EQ(Messages(), Texts{"Division by zero"});
  EXPECT_EQ(rows[2], "Bending stress = 0.00 psi");
}

}  // namespace
}  // namespace lignara
