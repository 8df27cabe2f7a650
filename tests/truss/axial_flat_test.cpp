#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/expect_box.h"
#include "tests/support/expect_forces.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// 4 panels of 8 ft, 6 ft high (sine 0.6, cosine 0.8): 500 lbs over the supports, 1000 on the inner
/// nodes. Reactions 2000; shear of the panels 1500 and 500.
TestTruss LoadedTruss(const char* type) {
  TestTruss truss = StandardTruss(type, 4);
  for (Float32Array* loads : {&truss.model().PL, &truss.model().PR}) {
    (*loads)[1] = 500;
    (*loads)[2] = 1000;
  }
  truss.model().PT = 1000;
  return truss;
}

TEST(AxialPratt2, SymmetricLoadsByHand) {
  TestTruss truss = LoadedTruss("PRATT2");
  TrussJob job = truss.Job();
  PRATT2_AXIAL(job);
  const ActiveModel& m = truss.model();
  // Shear / 0.75 along the chords: 2000 and 666.67. Diagonals 1500/0.6, 500/0.6.
  for (const auto* v : {&m.AX_VL, &m.AX_VR}) ExpectForces(*v, {2000, 1500});
  for (const auto* d : {&m.AX_DL, &m.AX_DR}) ExpectForces(*d, {2500, 833.33});
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) ExpectForces(*t, {2000, 2666.67});
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) ExpectForces(*c, {0, 2000});
  EXPECT_EQ(m.AX_CV[1].value(), 1000);
}

// Loads of 100 lbs on all nodes of 4 panels that are as high as long: reactions 250, shear of the
// end panel 150, which the diagonal at 45 degrees takes with 150 x sqrt(2).
TEST(AxialFlat, PanelsOfAFootAndLessAreTrussesLikeOthers) {
  for (const char* type : {"PRATT2", "HOWE"}) {
    for (const double panel : {1.0, 0.5}) {
      TestTruss truss(type, 4, 4 * panel, panel);
      truss.LoadAllNodes(100);
      truss.Analyse();
      const ActiveModel& m = truss.model();
      EXPECT_TRUE(truss.platform.messages.empty()) << type << panel;
      EXPECT_EQ(m.ErrorFlag.value(), 0) << type << panel;
      EXPECT_FLOAT_EQ(m.NODE_RL.value(), 250) << type << panel;
      EXPECT_NEAR(std::fabs(m.AX_DL[1].value()), 212.132, 0.001) << type << panel;
    }
  }
}

// Top nodes over the supports and at midspan only: reactions 150, 50 behind the end node.
TEST(AxialFlat, WarrenPanelsOfAFootAndLess) {
  for (const double panel : {1.0, 0.5}) {
    TestTruss truss("WARREN", 4, 4 * panel, panel);
    truss.LoadAllNodes(100);
    truss.Analyse();
    const ActiveModel& m = truss.model();
    EXPECT_TRUE(truss.platform.messages.empty()) << panel;
    EXPECT_FLOAT_EQ(m.NODE_RL.value(), 150) << panel;
    EXPECT_NEAR(m.AX_DL[1].value(), 70.711, 0.001) << panel;
  }
}

TEST(AxialPratt2, ShearThatTurnsRoundIsTakenAsItsMagnitude) {
  TestTruss truss = StandardTruss("PRATT2", 4);
  truss.model().PL[2] = 800;  // RL = 600, then shear 600 - 800 = -200
  TrussJob job = truss.Job();
  PRATT2_AXIAL(job);
  const ActiveModel& m = truss.model();
  ExpectForces(m.AX_VL, {600, 600});
  ExpectForces(m.AX_DL, {1000, 333.33});    // 600/0.6, 200/0.6
  ExpectForces(m.AX_TL, {800, 1066.67});    // 600/0.75, + 200/0.75
  ExpectForces(m.AX_CL, {0, 800});          // 1000 x 0.8
  ExpectForces(m.AX_DR, {333.33, 333.33});  // RR = 200
  ExpectForces(m.AX_TR, {266.67, 2 * 266.67});
}

TEST(AxialPratt2, NoSlopeIsAnError) {
  TestTruss truss = LoadedTruss("PRATT2");
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  truss.model().ANG_A = 0;
  PRATT2_LOADS(job);
  ExpectSingleBox(truss.platform, "TAN(A)=0, ERROR");
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().AX_CV[1].value(), 0);
}

TEST(AxialHowe, SymmetricLoadsByHand) {
  TestTruss truss = LoadedTruss("HOWE");
  TrussJob job = truss.Job();
  HOWE_AXIAL(job);
  const ActiveModel& m = truss.model();
  // The end vertical bears the load of its node, not the reaction; then the shear of the panel.
  for (const auto* v : {&m.AX_VL, &m.AX_VR}) ExpectForces(*v, {500, 500});
  for (const auto* d : {&m.AX_DL, &m.AX_DR}) ExpectForces(*d, {2500, 833.33});
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) ExpectForces(*t, {0, 2000});
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) ExpectForces(*c, {2000, 2666.67});
  EXPECT_EQ(m.AX_CV[1].value(), 0);
}

TEST(AxialHowe, EndVerticalIsCompressionAndTheOthersTension) {
  TestTruss truss = LoadedTruss("HOWE");
  truss.Analyse();
  ExpectForces(truss.model().AX_VL, {-500, 500});
  ExpectForces(truss.model().AX_VR, {-500, 500});
}

TEST(AxialHowe, NoPanelIsAnErrorAndEndsTheRoutine) {
  TestTruss truss = LoadedTruss("HOWE");
  truss.session.PanelLength = 0;
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  HOWE_LOADS(job);
  ExpectSingleBox(truss.platform, "ERROR L=0");
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().AX_VL[1].value(), 0);
}

TEST(AxialHowe, SlopeIsFoundAnewAndHasToRise) {
  TestTruss truss = LoadedTruss("HOWE");
  truss.session.TrussHeight = 0;
  truss.model().ANG_A = 0.5;  // of a former drawing; not what counts
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  HOWE_LOADS(job);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"TAN(A) IS 0, ERROR"});
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
}

}  // namespace
}  // namespace lignara
