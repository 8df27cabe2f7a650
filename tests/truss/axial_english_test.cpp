#include <gtest/gtest.h>

#include "tests/support/expect_forces.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"

namespace lignara {
namespace {

// 6 panels of 8 ft at 3 in 4 under 1000 lbs on each node: reactions 2500, moments 8000 and 24000. A
// diagonal meets the bottom chord at 16 and 24 ft: vertical parts 8000/16 = 500, 24000/24 = 1000;
// horizontal 500 x 8/6 = 666.67, 1000 x 8/12 = 666.67.
TEST(AxialEnglish, EqualLoadsByHand) {
  TestTruss truss = StandardTruss("ENGLISH", 6);
  truss.LoadAllNodes(1000);
  TrussJob job = truss.Job();
  ENGLISH_AXIAL(job);
  const ActiveModel& m = truss.model();
  for (const auto* d : {&m.AX_DL, &m.AX_DR}) ExpectForces(*d, {0, 833.33, 1201.85, 0});
  for (const auto* v : {&m.AX_VL, &m.AX_VR}) ExpectForces(*v, {0, 500, 0});
  EXPECT_NEAR(m.AX_CV[1].value(), 2000, 0.05);
  // Horizontal parts of the rafter 3333.33, 2666.67, 2000; force = horizontal / 0.8.
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) ExpectForces(*t, {4166.67, 3333.33, 2500, 0});
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) ExpectForces(*c, {3333.33, 3333.33, 2666.67, 0});
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(AxialEnglish, EachHalfFollowsItsOwnLoads) {
  TestTruss truss = StandardTruss("ENGLISH", 4);  // 32 ft, 12 ft high
  truss.model().PL[1] = 800;
  truss.Analyse();
  const ActiveModel& m = truss.model();
  // RL = 600, RR = 200. Left diagonal: moment 6400, vertical part 6400/16 = 400, force 400/0.6.
  ExpectForces(m.AX_DL, {0, -666.67});
  ExpectForces(m.AX_DR, {0, 0});
  EXPECT_NEAR(m.AX_CV[1].value(), -400, 0.02);
  ExpectForces(m.AX_TL, {-1000, -333.33});  // horizontal 800, 800 - 533.33
  ExpectForces(m.AX_TR, {-333.33, -333.33});
  ExpectForces(m.AX_CL, {800, 800});
  ExpectForces(m.AX_CR, {266.67, 266.67});
}

}  // namespace
}  // namespace lignara
