#include <gtest/gtest.h>

#include "tests/support/expect_box.h"
#include "tests/support/expect_forces.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"
#include "truss/geometry.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

// 6 panels of 8 ft at 3 in 4 under 1000 lbs on each node. Reactions 5000/2 = 2500. Moments about
// the heel of the loads before the cut: panel 2: 8 x 1000 = 8000, panel 3: 24000. The vertical part
// of a diagonal acts at the bottom node before it, 8 and 16 ft from the heel: 8000/8 = 1000,
// 24000/16 = 1500; horizontal parts 1000 x 8/12 = 666.67, 1500 x 8/18 = 666.67.
TEST(AxialPratt1, EqualLoadsByHand) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.LoadAllNodes(1000);
  TrussJob job = truss.Job();
  PRATT1_AXIAL(job);
  const ActiveModel& m = truss.model();
  for (const auto* d : {&m.AX_DL, &m.AX_DR}) {
    ExpectForces(*d, {0, 1201.85, 1641.48, 0});  // sqrt(1000^2 + 666.67^2), sqrt(1500^2 + 666.67^2)
  }
  for (const auto* v : {&m.AX_VL, &m.AX_VR}) ExpectForces(*v, {1000, 1500, 0});
  // Rafter: horizontal 2500/0.75 = 3333.33, the same, 3333.33 - 666.67; force = horizontal / 0.8.
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) ExpectForces(*t, {4166.67, 4166.67, 3333.33, 0});
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) ExpectForces(*c, {3333.33, 2666.67, 2000, 0});
  EXPECT_EQ(m.AX_CV[1].value(), 0);
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(AxialPratt1, ComponentsOfRafterAndDiagonals) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.LoadAllNodes(1000);
  truss.Analyse();
  const ActiveModel& m = truss.model();
  for (const auto* h : {&m.TLH, &m.TRH}) ExpectForces(*h, {3333.33, 3333.33, 2666.67});
  for (const auto* v : {&m.TLV, &m.TRV}) ExpectForces(*v, {2500, 2500, 2000});
  for (const auto* h : {&m.DLH, &m.DRH}) ExpectForces(*h, {0, 666.67, 666.67});
  for (const auto* v : {&m.DLV, &m.DRV}) ExpectForces(*v, {0, 1000, 1500});
}

TEST(AxialPratt1, LoadOnTheRightAloneStillStrainsTheLeftChords) {
  TestTruss truss = StandardTruss("PRATT1", 4);  // 32 ft, 12 ft high
  truss.model().PR[1] = 800;
  truss.Analyse();
  const ActiveModel& m = truss.model();
  // RL = 800 x 8/32 = 200: rafter 200/0.6 = 333.33 all along, bottom chord 200/0.75 = 266.67.
  ExpectForces(m.AX_DL, {0, 0});
  ExpectForces(m.AX_TL, {-333.33, -333.33});
  ExpectForces(m.AX_CL, {266.67, 266.67});
  // RR = 600: panel 1: 1000 and 800. The diagonal bears 8 x 800 / 8 = 800 upright, 533.33 along.
  ExpectForces(m.AX_DR, {0, 961.48});
  ExpectForces(m.AX_CR, {800, 266.67});
  ExpectForces(m.AX_TR, {-1000, -1000});
}

TEST(AxialPratt1, NegativeLoadTurnsTensionIntoCompressionButKeepsTheSigns) {
  TestTruss up = StandardTruss("PRATT1", 6);
  up.LoadAllNodes(-1000);
  up.Analyse();
  const ActiveModel& m = up.model();
  ExpectForces(m.AX_DL, {0, -1201.85, -1641.48});
  ExpectForces(m.AX_VL, {1000, 1500});
  ExpectForces(m.AX_CL, {-3333.33, -2666.67, -2000});
  // The rafter is a root of squares: it stays positive and its sign makes it compression.
  ExpectForces(m.AX_TL, {-4166.67, -4166.67, -3333.33});
  EXPECT_EQ(m.SGN_DL[2].value(), 1);
  EXPECT_EQ(m.SGN_VL[1].value(), -1);
}

TEST(AxialPratt1, NoMomentArmStopsTheDiagonalsAlone) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.LoadAllNodes(1000);
  TrussJob job = truss.Job();
  PRATT1_AXIAL(job);
  truss.model().ARM_D[3] = 0;
  truss.model().AX_DL[2] = 77;
  DIAG_LOADS(job);
  ExpectSingleBox(truss.platform, "MOMENT ARM (MA) IS 0", "ERROR!");
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().AX_DL[2].value(), 77);
}

TEST(AxialPratt1, NoSlopeStopsTheHeelAlone) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.LoadAllNodes(1000);
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  truss.model().NODE_RL = 500;
  truss.model().ANG_A = 0;
  END_PANEL_LOADS(job);
  ExpectSingleBox(truss.platform, "TAN SLOPE IS 0!", "ERROR!");
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().TLV[1].value(), 0);
}

TEST(AxialPratt1, ErrorsEndTheirRoutineAndTheChainRunsOn) {
  // So steep that the slope, rounded to 32 bits, passes the right angle: the tangent is negative.
  TestTruss truss("PRATT1", 4, 1, 1e9);
  truss.LoadAllNodes(1000);
  truss.Analyse();
  // Verticals are negative for the arms, so no diagonal has an arm; then the heel has no slope.
  EXPECT_EQ(truss.platform.TakeTexts(),
            (Texts{"VL(N)=0, ERROR", "MOMENT ARM (MA) IS 0", "TAN SLOPE IS 0!"}));
  EXPECT_NEAR(truss.model().NODE_RL.value(), 1500, 0.01);
  EXPECT_EQ(truss.model().AX_TL[1].value(), 0);
}

}  // namespace
}  // namespace lignara
