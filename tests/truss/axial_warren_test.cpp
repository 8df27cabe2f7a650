#include <gtest/gtest.h>

#include "tests/support/expect_forces.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"

namespace lignara {
namespace {

// All trusses here have panels of 8 ft and a height of 6 ft: sine 0.6, cosine 0.8.

void ExpectSigns(const Int16Array& signs, const std::vector<int>& fromElement1) {
  for (std::size_t i = 0; i < fromElement1.size(); ++i) {
    EXPECT_EQ(signs[static_cast<int>(i) + 1].value(), fromElement1[i]) << "element " << i + 1;
  }
}

TEST(AxialWarren, TopNodeAtMidspanByHand) {
  TestTruss truss = StandardTruss("WARREN", 4);
  truss.model().PL[0] = truss.model().PR[0] = 500;
  truss.model().PT = 1000;
  TrussJob job = truss.Job();
  WARREN_AXIAL(job);
  const ActiveModel& m = truss.model();
  // Reactions 1000, shear 500: diagonals 500/0.6 all along; both meet the peak load of 1000.
  for (const auto* v : {&m.AX_VL, &m.AX_VR}) ExpectForces(*v, {1000, 0});
  for (const auto* d : {&m.AX_DL, &m.AX_DR}) ExpectForces(*d, {833.33, 833.33, 833.33});
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) ExpectForces(*t, {666.67, 666.67, 666.67});
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) ExpectForces(*c, {0, 1333.33, 1333.33});
  for (const auto* s : {&m.SGN_DL, &m.SGN_DR}) ExpectSigns(*s, {1, -1, -1});
}

TEST(AxialWarren, FixedSigns) {
  TestTruss truss = StandardTruss("WARREN", 6);
  truss.LoadAllNodes(100);
  TrussJob job = truss.Job();
  WARREN_AXIAL(job);
  const ActiveModel& m = truss.model();
  for (const auto* s : {&m.SGN_TL, &m.SGN_TR}) ExpectSigns(*s, {-1, -1, -1, 0});
  for (const auto* s : {&m.SGN_CL, &m.SGN_CR}) ExpectSigns(*s, {1, 1, 1, 0});
  for (const auto* s : {&m.SGN_VL, &m.SGN_VR}) ExpectSigns(*s, {-1, 0, 0});
  EXPECT_EQ(m.SGN_CV[1].value(), 0);
}

TEST(AxialWarren, BottomNodeAtMidspanByHand) {
  TestTruss truss = StandardTruss("WARREN", 6);
  ActiveModel& m = truss.model();
  m.PL[0] = m.PR[0] = 300;
  m.PL[1] = 1200;
  m.PR[1] = 600;
  m.PT = 7777;  // no node
  TrussJob job = truss.Job();
  WARREN_AXIAL(job);
  // Left: reaction 1300, shear 1000, then 1000 - 1200 = -200: the third diagonal is compressed.
  ExpectForces(m.AX_VL, {1300});
  ExpectForces(m.AX_DL, {1666.67, 1666.67, 333.33});
  ExpectSigns(m.SGN_DL, {1, -1, -1});
  ExpectForces(m.AX_TL, {1333.33, 1333.33, 2400});  // + 1333.33 - 266.67
  ExpectForces(m.AX_CL, {0, 2666.67, 2666.67});
  // Right: reaction 1100, shear 800, then 200: the third diagonal is pulled.
  ExpectForces(m.AX_DR, {1333.33, 1333.33, 333.33});
  ExpectSigns(m.SGN_DR, {1, -1, 1});
  ExpectForces(m.AX_TR, {1066.67, 1066.67, 2400});  // + 1066.67 + 266.67
  ExpectForces(m.AX_CR, {0, 2133.33, 2133.33});
}

// 8 panels, 4000 lbs on the first inner node of the left: reactions 3000 and 1000. Behind the node
// the shear is -1000, and the diagonals there have turned round.
TEST(AxialWarren, TurnedDiagonalsByHand) {
  TestTruss truss = StandardTruss("WARREN", 8);
  ActiveModel& m = truss.model();
  m.PL[1] = 4000;
  TrussJob job = truss.Job();
  WARREN_AXIAL(job);
  ExpectForces(m.AX_DL, {5000, 5000, 1666.67, 1666.67, 1666.67});
  ExpectSigns(m.SGN_DL, {1, -1, -1, 1, -1});
  // 4000; + 4000 - 1333.33; and behind midspan - 1333.33 - 1333.33
  ExpectForces(m.AX_TL, {4000, 4000, 6666.67, 6666.67, 4000});
  // Behind a turned diagonal the bottom chord is carried on with - 1333.33 + 1333.33.
  ExpectForces(m.AX_CL, {0, 8000, 8000, 8000, 8000});
  ExpectForces(m.AX_DR, {1666.67, 1666.67, 1666.67, 1666.67, 1666.67});
  ExpectSigns(m.SGN_DR, {1, -1, 1, -1, 1});
  ExpectForces(m.AX_TR, {1333.33, 1333.33, 4000, 4000});
  ExpectForces(m.AX_CR, {0, 2666.67, 2666.67, 5333.33, 5333.33});
}

TEST(AxialWarren, LoadNextToMidspanFlipsTheNextDiagonal) {
  for (const auto& [load, sign] :
       std::initializer_list<std::pair<double, int>>{{0, 1}, {900, -1}}) {
    TestTruss truss = StandardTruss("WARREN", 6);
    truss.model().PR[1] = 300;
    truss.model().PL[1] = load;  // lift of the second diagonal: 100 + load x 2/3
    TrussJob job = truss.Job();
    WARREN_AXIAL(job);
    EXPECT_EQ(truss.model().SGN_DL[3].value(), sign) << load;
  }
}

TEST(AxialWarren, SignsAreAppliedToTheMembersOfTheHalf) {
  TestTruss truss = StandardTruss("WARREN", 4);
  truss.model().PL[0] = truss.model().PR[0] = 500;
  truss.model().PT = 1000;
  truss.Analyse();
  const ActiveModel& m = truss.model();
  ExpectForces(m.AX_VL, {-1000});
  ExpectForces(m.AX_DL, {833.33, -833.33});
  ExpectForces(m.AX_TL, {-666.67, -666.67});
  ExpectForces(m.AX_CL, {0, 1333.33});
}

}  // namespace
}  // namespace lignara
