#include <gtest/gtest.h>

#include "tests/support/expect_box.h"
#include "tests/support/expect_forces.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

// 40 ft, 15 ft, inner height 5 ft: node at (10, 7.5), midspan joint at (20, 5) which is 8 ft from
// the rafter; the web's line is 40 x 5 / sqrt(425) = 9.7014 ft from the heel.
TEST(AxialScissors, SymmetricLoadsByHand) {
  TestTruss truss = StandardTruss("SCI", 4);
  truss.model().PL[1] = 1000;
  truss.model().PT = 2000;
  truss.model().PR[1] = 1000;
  TrussJob job = truss.Job();
  SCI_AXIAL(job);
  const ActiveModel& m = truss.model();
  for (const auto* v : {&m.AX_VL, &m.AX_VR}) {
    EXPECT_NEAR((*v)[1].value(), 1030.78, 0.1);  // 10 x 1000 / 9.7014
  }
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) {
    EXPECT_NEAR((*t)[1].value(), 5000, 0.5);  // (20 x 2000 - 10 x 1000 + 10 x 1000) / 8
    EXPECT_NEAR((*t)[2].value(), 3750, 0.5);  // (20 x 2000 - 10 x 1000) / 8
  }
  // 5000 x 0.8 = 4000 along, and 4000 / cos(atan 0.25) in the raised chord
  for (const auto* h : {&m.TLH, &m.TRH}) EXPECT_NEAR((*h)[1].value(), 4000, 0.5);
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) EXPECT_NEAR((*c)[1].value(), 4123.11, 0.5);
  EXPECT_NEAR(m.AX_CV[1].value(), 2500, 0.5);  // 2 x 3750 x 0.6 - 2000
}

TEST(AxialScissors, UpperRafterTakesTheReactionOfTheOtherSide) {
  TestTruss truss = StandardTruss("SCI", 4);
  truss.model().PL[1] = 800;
  TrussJob job = truss.Job();
  SCI_AXIAL(job);
  const ActiveModel& m = truss.model();
  // RL = 600, RR = 200
  EXPECT_NEAR(m.AX_VL[1].value(), 824.62, 0.1);  // 800 x 10 / 9.7014
  EXPECT_EQ(m.AX_VR[1].value(), 0);
  EXPECT_NEAR(m.AX_TL[2].value(), 500, 0.1);   // 20 x 200 / 8
  EXPECT_NEAR(m.AX_TR[2].value(), 500, 0.1);   // (20 x 600 - 10 x 800) / 8
  EXPECT_NEAR(m.AX_TL[1].value(), 1500, 0.2);  // (20 x 200 + 10 x 800) / 8
  EXPECT_NEAR(m.AX_TR[1].value(), 500, 0.1);
  EXPECT_NEAR(m.AX_CV[1].value(), 600, 0.1);  // 2 x 500 x 0.6
}

TEST(AxialScissors, InnerHeightAtOrAboveTheHeightLeavesNoArm) {
  for (const double inner : {15.0, 25.0}) {
    TestTruss truss("SCI", 4, 40, 15, inner);
    truss.LoadAllNodes(1000);
    truss.Analyse();
    EXPECT_EQ(truss.platform.messages.size(), 1u);
    EXPECT_EQ(truss.platform.TakeTexts(), Texts{"TEMP2 OR TOPARM=0, ERROR"}) << inner;
    EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
    EXPECT_EQ(truss.model().AX_TL[1].value(), 0);
    EXPECT_NEAR(truss.model().TOTAL_LOAD.value(), 3000, 0.01);
  }
}

TEST(AxialScissors, WebWithoutAnArmIsTheSameError) {
  TestTruss truss = StandardTruss("SCI", 4);
  TrussJob job = truss.Job();
  SCI_AXIAL(job);
  truss.model().SCI_ARM = 0;
  SCI_LOADS(job);
  ExpectSingleBox(truss.platform, "TEMP2 OR TOPARM=0, ERROR");
}

TEST(AxialScissors, UprightBottomChordIsAnError) {
  TestTruss truss = StandardTruss("SCI", 4);
  TrussJob job = truss.Job();
  SCI_AXIAL(job);
  truss.model().ANG_AB = 1.6;  // beyond the right angle
  SCI_LOADS(job);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"COS(AB)=0,ERROR"});
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
}

}  // namespace
}  // namespace lignara
