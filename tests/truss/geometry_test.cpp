#include "truss/geometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/expect_box.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_arms.h"
#include "truss/geometry_drawn.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

constexpr double kNear = 2e-5;

/// Runs the steps over the truss, behind fresh arrays.
template <typename... Steps>
void Do(TestTruss& truss, Steps... steps) {
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  (steps(job), ...);
}

void ExpectElements(const Float32Array& array, const std::vector<double>& expected) {
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(array[static_cast<int>(i)].value(), expected[i], kNear) << "element " << i;
  }
}

TEST(Geometry, AllocationGivesEmptyArraysAndKeepsNodeLoads) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  truss.LoadAllNodes(100);
  truss.Analyse();
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  EXPECT_EQ(truss.model().AX_TL.upper(), 6);
  EXPECT_EQ(truss.model().SGN_DR.upper(), 6);
  EXPECT_EQ(truss.model().LEN_CV.upper(), 2);
  EXPECT_EQ(truss.model().AX_CV.upper(), 2);
  EXPECT_EQ(truss.model().SGN_CV.upper(), 2);
  EXPECT_EQ(truss.model().AX_TL[1].value(), 0);
  EXPECT_EQ(truss.model().SGN_TL[1].value(), 0);
  EXPECT_EQ(truss.model().LEN_TL[1].value(), 0);
  EXPECT_EQ(truss.model().PL[1].value(), 100);
  EXPECT_EQ(truss.model().PL.upper(), 3);
}

TEST(Geometry, HalfSpansRoundTiesToTheEvenNumber) {
  SessionState session;
  for (const auto& [spans, half] : std::initializer_list<std::pair<double, int>>{
           {4, 2}, {6, 3}, {5, 2}, {7, 4}, {9, 4}, {65534, 32767}}) {
    session.TrussSpans = spans;
    EXPECT_EQ(HalfSpans(session), half) << spans;
  }
}

TEST(Geometry, HalfSpansBeyond16BitsAreAFaultAndNoPanels) {
  TestTruss truss = StandardTruss("PRATT1", 4);
  const FaultScope faults(truss.platform);
  truss.session.TrussSpans = 70000;
  EXPECT_EQ(truss.Job().HalfSpans(), 0);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{std::string(FaultText(Fault::Overflow))});
}

TEST(Geometry, SlopePeakUsesHalfTheLengthAndFourDecimalsOfTheRightAngle) {
  TestTruss truss("PRATT1", 4, 32, 12);
  Do(truss, SLOPE_PEAK);
  EXPECT_NEAR(truss.model().ANG_A.value(), 0.6435011, kNear);  // atan(12 / 16)
  EXPECT_FLOAT_EQ(truss.model().ANG_AC.value(),
                  static_cast<float>(1.5708 - static_cast<double>(truss.model().ANG_A.value())));
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(Geometry, SlopePeakRefusesNoLength) {
  TestTruss truss("PRATT1", 4, 32, 12);
  truss.session.TrussLength = 0;
  Do(truss, SLOPE_PEAK);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"TL=0, ERROR"});
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().ANG_A.value(), 0);
}

TEST(Geometry, SlopeFlatUsesThePanel) {
  TestTruss truss("HOWE", 4, 32, 6);
  Do(truss, SLOPE_FLAT);
  EXPECT_NEAR(truss.model().ANG_A.value(), 0.6435011, kNear);  // atan(6 / 8)
  EXPECT_EQ(truss.model().ANG_AC.value(), 0);
}

TEST(Geometry, SlopeFlatRefusesNoPanel) {
  TestTruss truss("HOWE", 4, 32, 6);
  truss.session.PanelLength = 0;
  Do(truss, SLOPE_FLAT);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"L=0, ERROR"});
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
}

TEST(Geometry, DetectedErrorsBearTheProgramsNameAsTitle) {
  TestTruss truss("HOWE", 4, 32, 6);
  truss.session.PanelLength = 0;
  Do(truss, SLOPE_FLAT);
  ExpectSingleBox(truss.platform, "L=0, ERROR");
}

TEST(Geometry, LengthsOfPratt1) {
  // 6 panels of 8 ft at 3 in 4: verticals 6, 12, 18; rafter panel sqrt(36 + 64) = 10; diagonals
  // sqrt(144 + 64) and sqrt(324 + 64).
  TestTruss truss = StandardTruss("PRATT1", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH);
  const ActiveModel& m = truss.model();
  for (const auto* v : {&m.LEN_VL, &m.LEN_VR}) ExpectElements(*v, {0, 6, 12, 18, 0, 0, 0});
  for (const auto* t : {&m.LEN_TL, &m.LEN_TR}) ExpectElements(*t, {0, 10, 10, 10, 0});
  for (const auto* c : {&m.LEN_CL, &m.LEN_CR}) ExpectElements(*c, {0, 8, 8, 8, 0});
  for (const auto* d : {&m.LEN_DL, &m.LEN_DR}) {
    ExpectElements(*d, {0, 0, std::sqrt(208.0), std::sqrt(388.0), 0});
  }
  EXPECT_EQ(m.LEN_CV[1].value(), 18);
}

TEST(Geometry, DiagonalsOfEnglishFallFromTheVerticalBehind) {
  TestTruss truss = StandardTruss("ENGLISH", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH);
  // sqrt(6^2 + 8^2) and sqrt(12^2 + 8^2)
  ExpectElements(truss.model().LEN_DL, {0, 0, 10, std::sqrt(208.0)});
  ExpectElements(truss.model().LEN_DR, {0, 0, 10, std::sqrt(208.0)});
}

TEST(Geometry, ArmsGiveTheHalvesOfEnglishDifferentDiagonals) {
  TestTruss truss = StandardTruss("ENGLISH", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH, ARMS_ENGLISH);
  // Left, panel 2: the vertical one further in, sqrt(8^2 + 12^2); the right keeps sqrt(8^2 + 6^2).
  // The last panel of both: sqrt(8^2 + 18^2).
  ExpectElements(truss.model().LEN_DL, {0, 0, std::sqrt(208.0), std::sqrt(388.0)});
  ExpectElements(truss.model().LEN_DR, {0, 0, 10, std::sqrt(388.0)});
}

TEST(Geometry, ArmsLeaveTheDiagonalsOfPratt1Equal) {
  TestTruss truss = StandardTruss("PRATT1", 8);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH, ARMS_PRATT1);
  for (int i = 2; i <= 4; ++i) {
    EXPECT_NEAR(truss.model().LEN_DL[i].value(), std::sqrt(64 + 36.0 * i * i), kNear);
    EXPECT_NEAR(truss.model().LEN_DR[i].value(), truss.model().LEN_DL[i].value(), kNear);
  }
}

TEST(Geometry, ArmsOfPratt1) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH, ARMS_PRATT1);
  const ActiveModel& m = truss.model();
  // Rafter panels of 10 ft: arms 2 x 10 and 3 x 10, none for the last.
  ExpectElements(m.ARM_L, {0, 20, 30, 0});
  ExpectElements(m.ARM_R, {0, 20, 30, 0});
  // atan(8 / 12), atan(8 / 18); atan(12 / 8), atan(18 / 8)
  ExpectElements(m.ANG_V, {0, 0, 0.5880026, 0.4182243});
  ExpectElements(m.ANG_D, {0, 0, 0.9827937, 1.1525720});
  // 1.5708 - 0.6435011 - ANG_V
  ExpectElements(m.ANG_T, {0, 0, 0.3392963, 0.5090746});
  // 20 sin 0.3392963, 30 sin 0.5090746; by geometry 8 x 12 / sqrt(208), 16 x 18 / sqrt(388)
  EXPECT_NEAR(m.ARM_D[2].value(), 6.6564, 2e-4);
  EXPECT_NEAR(m.ARM_D[3].value(), 14.6211, 2e-4);
}

TEST(Geometry, ArmsOfEnglish) {
  TestTruss truss = StandardTruss("ENGLISH", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH, DIAG_LENGTH, ARMS_ENGLISH);
  ExpectElements(truss.model().ARM_L, {0, 8, 16, 0});
  ExpectElements(truss.model().ARM_R, {0, 8, 16, 0});
  ExpectElements(truss.model().ANG_D, {0, 0, 0.6435011, 0.9827937});  // atan 6/8, atan 12/8
  ExpectElements(truss.model().ARM_D, {0, 0, 16 * 0.6, 24 * 12 / std::sqrt(208.0)});
}

TEST(Geometry, ArmsRefuseNoPanel) {
  for (const auto& [type, arms] :
       std::initializer_list<std::pair<const char*, void (*)(TrussJob&)>>{
           {"PRATT1", ARMS_PRATT1}, {"ENGLISH", ARMS_ENGLISH}}) {
    TestTruss truss = StandardTruss(type, 6);
    truss.session.PanelLength = 0;
    Do(truss, SLOPE_PEAK, arms);
    EXPECT_EQ(truss.platform.TakeTexts(), Texts{"L=0, ERROR"}) << type;
    EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
    EXPECT_EQ(truss.model().ARM_L[1].value(), 0);
  }
}

TEST(Geometry, ArmsOfPratt1RefuseAVerticalWithoutLength) {
  TestTruss truss = StandardTruss("PRATT1", 6);
  // Without VERT_LENGTH before it, the verticals are 0.
  Do(truss, SLOPE_PEAK, ARMS_PRATT1);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"VL(N)=0, ERROR"});
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().ARM_D[2].value(), 0);
}

TEST(Geometry, LengthsOfFink) {
  // sin A = 0.6, cos A = 0.8. Webs 8 x I x 0.6. Rafter: sqrt(8^2 - 4.8^2) = 6.4, sqrt(16^2 - 9.6^2)
  // - 6.4 = 6.4, the rest of sqrt(18^2 + 24^2) = 30: 17.2.
  TestTruss truss = StandardTruss("FINK", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH_FINK, TOP_LENGTH_FINK, BOTTOM_LENGTH, DIAG_LENGTH_FINK);
  const ActiveModel& m = truss.model();
  for (const auto* v : {&m.LEN_VL, &m.LEN_VR}) ExpectElements(*v, {0, 4.8, 9.6, 14.4, 0});
  for (const auto* t : {&m.LEN_TL, &m.LEN_TR}) ExpectElements(*t, {0, 6.4, 6.4, 17.2, 0});
  for (const auto* d : {&m.LEN_DL, &m.LEN_DR}) {
    ExpectElements(*d, {0, 0, 8, std::sqrt(9.6 * 9.6 + 17.2 * 17.2)});
  }
  EXPECT_EQ(m.LEN_CV[1].value(), 0);
}

TEST(Geometry, ArmsOfFink) {
  TestTruss truss = StandardTruss("FINK", 6);
  Do(truss, SLOPE_PEAK, VERT_LENGTH_FINK, TOP_LENGTH_FINK, BOTTOM_LENGTH, DIAG_LENGTH_FINK,
     ARMS_FINK);
  const ActiveModel& m = truss.model();
  ExpectElements(m.ARM_L, {0, 6.4, 12.8, 30});  // I x 8 x 0.8, and 18 / 0.6 to the peak
  ExpectElements(m.ARM_R, {0, 6.4, 12.8, 30});
  ExpectElements(m.ANG_T, {0, 0, std::atan(4.8 / 6.4), std::atan(9.6 / 17.2)});
  ExpectElements(m.ARM_D, {0, 0, 12.8 * 0.6, 30 * 9.6 / std::sqrt(388.0)});
}

TEST(Geometry, LeanOfFinkWebsIsSetWhenDrawn) {
  TestTruss truss = StandardTruss("FINK", 6);
  // 1.5708 - (1.5708 - A) is A, to 32 bits.
  EXPECT_NEAR(truss.model().ANG_W.value(), 0.6435011, kNear);
  truss.Analyse();
  EXPECT_NEAR(truss.model().ANG_W.value(), 0.6435011, kNear);
}

TEST(Geometry, LengthsOfKingPost) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  Do(truss, SLOPE_PEAK, VERT_LENGTH, TOP_LENGTH, BOTTOM_LENGTH);
  const ActiveModel& m = truss.model();
  EXPECT_EQ(m.LEN_CV[1].value(), 12);
  ExpectElements(m.LEN_VL, {0, 0, 0, 0, 0});
  ExpectElements(m.LEN_TL, {0, 20, 0, 0, 0});  // sqrt(12^2 + 16^2)
  ExpectElements(m.LEN_TR, {0, 20, 0, 0, 0});
  // The tie has one member a half; element 2 is filled too since the arrays count 4 panels.
  ExpectElements(m.LEN_CL, {0, 16, 16, 0, 0});
}

TEST(Geometry, LengthsOfParallelChords) {
  for (const char* type : {"PRATT2", "HOWE"}) {
    TestTruss truss = StandardTruss(type, 6);
    Do(truss, SLOPE_FLAT, FLAT_LENGTH);
    const ActiveModel& m = truss.model();
    for (const auto* chord : {&m.LEN_TL, &m.LEN_TR, &m.LEN_CL, &m.LEN_CR}) {
      ExpectElements(*chord, {0, 8, 8, 8, 0});
    }
    for (const auto* v : {&m.LEN_VL, &m.LEN_VR}) ExpectElements(*v, {0, 6, 6, 6, 0});
    for (const auto* d : {&m.LEN_DL, &m.LEN_DR}) ExpectElements(*d, {0, 10, 10, 10, 0});
    EXPECT_EQ(m.LEN_CV[1].value(), 6);
  }
}

TEST(Geometry, LengthsOfWarrenHaveEndVerticalsAlone) {
  TestTruss truss = StandardTruss("WARREN", 6);
  Do(truss, SLOPE_FLAT, WARREN_LENGTH);
  const ActiveModel& m = truss.model();
  for (const auto* chord : {&m.LEN_TL, &m.LEN_TR, &m.LEN_CL, &m.LEN_CR}) {
    ExpectElements(*chord, {0, 8, 8, 8, 0});
  }
  for (const auto* v : {&m.LEN_VL, &m.LEN_VR}) ExpectElements(*v, {0, 6, 0, 0, 0});
  for (const auto* d : {&m.LEN_DL, &m.LEN_DR}) ExpectElements(*d, {0, 10, 10, 10, 0});
  EXPECT_EQ(m.LEN_CV[1].value(), 0);
}

TEST(Geometry, WarrenChordOfMidspanFollowsFromTheQuarterOfSpans) {
  for (const auto& [spans, chord] : std::initializer_list<std::pair<int, const char*>>{
           {4, "TOP"}, {6, "BOTTOM"}, {8, "TOP"}, {10, "BOTTOM"}, {12, "TOP"}}) {
    EXPECT_EQ(StandardTruss("WARREN", spans).model().WarrenChord, chord) << spans;
  }
}

TEST(Geometry, ScissorsMeetWhereRafterCutsTheLineOfTheOtherChord) {
  // Rafter y = 0.75 x; the other bottom chord y = 0.25 (40 - x): they meet at x = 10, y = 7.5.
  TestTruss truss = StandardTruss("SCI", 4);
  const ActiveModel& m = truss.model();
  EXPECT_NEAR(m.ANG_A.value(), 0.6435011, kNear);   // atan(15 / 20)
  EXPECT_NEAR(m.ANG_AB.value(), 0.2449787, kNear);  // atan(5 / 20)
  EXPECT_NEAR(m.SCI_BOTTOM.value(), std::sqrt(425.0), 1e-3);
  EXPECT_NEAR(m.SCI_RUN.value(), 10, 1e-3);
  EXPECT_NEAR(m.SCI_RISE.value(), 7.5, 1e-3);
  EXPECT_NEAR(m.SCI_TOP1.value(), 12.5, 1e-3);
  EXPECT_NEAR(m.SCI_TOP2.value(), 12.5, 1e-3);              // 20 / 0.8 - 12.5
  EXPECT_NEAR(m.SCI_WEB.value(), std::sqrt(106.25), 1e-3);  // (10, 7.5) to (20, 5)
  EXPECT_NEAR(m.SCI_ARM.value(), 40 * 5 / std::sqrt(425.0), 1e-3);
}

TEST(Geometry, ScissorsAnglesCarryThreeRoundingsOfPi) {
  TestTruss truss = StandardTruss("SCI", 4);
  const ActiveModel& m = truss.model();
  const double a = 0.643501109;
  const double ab = 0.244978663;
  // A3 = 3.1416 - (a + ab + 1.5708 - a) = 1.5708 - ab; A4 = 3.14159 - (1.5708 - a) - A3
  //    = a + ab - 0.00001; so A5 = 1.5708 - a - ab + 0.00001 and A7 = 2 ab - 0.00001.
  const double precise = 3e-7;
  EXPECT_NEAR(m.SCI_A5.value(), 1.5708 - a - ab + 0.00001, precise);
  EXPECT_NEAR(m.SCI_A7.value(), 2 * ab - 0.00001, precise);
  EXPECT_NEAR(m.SCI_A8.value(), 1.5708 - a - ab, precise);
}

TEST(Geometry, LengthsAndArmsOfScissors) {
  TestTruss truss = StandardTruss("SCI", 4);
  Do(truss, VERT_LENGTH_SCI, TOP_LENGTH_SCI, BOTTOM_LENGTH_SCI, ARMS_SCI);
  const ActiveModel& m = truss.model();
  EXPECT_NEAR(m.LEN_VL[1].value(), std::sqrt(106.25), 1e-3);
  EXPECT_NEAR(m.LEN_VR[1].value(), std::sqrt(106.25), 1e-3);
  EXPECT_EQ(m.LEN_CV[1].value(), 10);  // 15 - 5
  for (const auto* t : {&m.LEN_TL, &m.LEN_TR}) {
    EXPECT_EQ((*t)[1].value(), m.SCI_TOP1.value());
    EXPECT_EQ((*t)[2].value(), m.SCI_TOP2.value());
  }
  EXPECT_EQ(m.LEN_CL[1].value(), m.SCI_BOTTOM.value());
  EXPECT_EQ(m.LEN_CR[1].value(), m.SCI_BOTTOM.value());
  EXPECT_EQ(m.ARM_L[1].value(), m.SCI_ARM.value());
  EXPECT_EQ(m.ARM_R[1].value(), m.SCI_ARM.value());
  EXPECT_NEAR(m.ARM_D[1].value(), 10, 1e-3);  // 12.5 x 0.8
  // Distance of the midspan joint (20, 5) from the rafter: (0.75 x 20 - 5) / 1.25
  EXPECT_NEAR(m.SCI_TOPARM.value(), 8, 1e-3);
}

TEST(Geometry, ScissorsRefuseALevelBottomChord) {
  TestTruss truss = StandardTruss("SCI", 4);
  truss.model().ANG_AB = 0;
  Do(truss, VERT_LENGTH_SCI);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"SIN(AB)=0, ERROR"});
  EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
  EXPECT_EQ(truss.model().LEN_CV[1].value(), 0);
}

TEST(Geometry, InnerHeightAboveTheHeightIsNotRefused) {
  // The bottom chords then meet above the peak, so lengths turn negative, without a message.
  TestTruss truss("SCI", 4, 40, 5, 15);
  Do(truss, VERT_LENGTH_SCI, TOP_LENGTH_SCI, BOTTOM_LENGTH_SCI, ARMS_SCI);
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_EQ(truss.model().LEN_CV[1].value(), -10);
  EXPECT_LT(truss.model().SCI_WEB.value(), 0);
}

}  // namespace
}  // namespace lignara
