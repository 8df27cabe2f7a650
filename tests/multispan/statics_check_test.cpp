// The second opinion on a multi-span beam.

#include <gtest/gtest.h>

#include "multispan/multi_span_statics.h"
#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

constexpr EndSupport kFixed = EndSupport::Fixed, kPinned = EndSupport::Pinned,
                     kNone = EndSupport::None;

class MultiSpanStaticsCheck : public MultiSpanTest {
 protected:
  /// Spans of 10 ft under 120 lbs/ft.
  void Enter(int spans, EndSupport left = kPinned, EndSupport right = kPinned) {
    Open(spans);
    Support(FarEnd::Left, left);
    Support(FarEnd::Right, right);
    for (int j = 1; j <= spans; ++j) EnterSpan(10, 120);
    for (int j = 1; j < spans; ++j) Previous();
  }
  const std::string& LineOfRun() {
    Run();
    ShowMultiSpanResults(results, session);
    return results.statics.line;
  }
  bool Agrees() {
    LineOfRun();
    return results.statics.verdict == StaticsVerdict::Agrees;
  }
  const StaticsDifference& Difference(const std::string& item) const {
    for (const StaticsDifference& difference : results.statics.differences) {
      if (difference.value.item == item) return difference;
    }
    throw std::logic_error("not compared: " + item);
  }
  double Statics(const std::string& item) const { return Difference(item).value.statics; }

  MultiSpanResults results;
};

// Three equal spans: 0.1 w L^2 over the inner supports, reactions 0.4 and 1.1 w L.
TEST_F(MultiSpanStaticsCheck, AgreesOnThreeSpans) {
  Enter(3);
  EXPECT_TRUE(Agrees()) << results.statics.line;
  EXPECT_NEAR(Statics("Left Mom. 1"), 0, 1e-9);
  EXPECT_NEAR(Statics("Right Mom. 1"), 1200, 1e-9);
  EXPECT_NEAR(Statics("Left Mom. 2"), -1200, 1e-9);
  EXPECT_NEAR(Statics("Reaction 1"), 480, 1e-9);
  EXPECT_NEAR(Statics("Reaction 2"), 1320, 1e-9);
  EXPECT_NEAR(Statics("Max. Mom. 2"), 1200, 1e-9);
  EXPECT_NEAR(Statics("Max. Shear 3"), 720, 1e-9);
  EXPECT_NEAR(Statics("Max Moment"), 1200, 1e-9);
}

TEST_F(MultiSpanStaticsCheck, ComparesEndMomentsAndPeaksBySpanThenReactions) {
  Enter(2);
  LineOfRun();
  Texts items;
  for (const StaticsDifference& d : results.statics.differences) items.push_back(d.value.item);
  EXPECT_EQ(items, (Texts{"Left Mom. 1", "Right Mom. 1", "Max. Mom. 1", "Max. Shear 1",
                          "Left Mom. 2", "Right Mom. 2", "Max. Mom. 2", "Max. Shear 2",
                          "Reaction 1", "Reaction 2", "Reaction 3", "Max Moment"}));
}

TEST_F(MultiSpanStaticsCheck, AgreesWithOverhangs) {
  Enter(4, kNone, kNone);
  EXPECT_TRUE(Agrees()) << results.statics.line;
  EXPECT_NEAR(Statics("Right Mom. 1"), 6000, 1e-9);
  EXPECT_NEAR(Statics("Left Mom. 4"), -6000, 1e-9);
  EXPECT_NEAR(Statics("Reaction 1"), 0, 1e-9);
}

TEST_F(MultiSpanStaticsCheck, AgreesWithFixedEndsOfThreeSpans) {
  Enter(3, kFixed, kFixed);
  EXPECT_TRUE(Agrees()) << results.statics.line;
  EXPECT_NEAR(Statics("Left Mom. 1"), -1000, 1e-9);
}

TEST_F(MultiSpanStaticsCheck, TakesTheDeflectionInOnceItIsShown) {
  Enter(3);
  Run();
  ShowMultiSpanResults(results, session);
  EXPECT_THROW(Difference("Max. Def."), std::logic_error);
  ShowDeflectedShape(results, session, platform);
  // 0.00688 w L^4 / (E I) of the textbooks, 120 lbs/ft and E I = 1.6e8 / 144 lbs ft^2
  EXPECT_NEAR(Statics("Max. Def."), 0.00688 * 120 * 1e4 / (1.6e8 / 144) * 12, 1e-4);
  EXPECT_EQ(results.statics.verdict, StaticsVerdict::Agrees) << results.statics.line;
}

// The four cycles of two spans end before all is balanced. With only the span behind the joint
// loaded the joint has w L^2 / 14, and the wall before it w L^2 / 28, which sags.
TEST_F(MultiSpanStaticsCheck, TellsWhatTheFixedCyclesOfTwoSpansLeave) {
  Enter(2, kFixed, kPinned);
  Type(SpanField::Uniform, "0");
  Store();
  LineOfRun();
  EXPECT_NEAR(Statics("Left Mom. 1"), 12000 / 28.0, 1e-9);
  EXPECT_NEAR(Statics("Right Mom. 1"), 12000 / 14.0, 1e-9);
  EXPECT_EQ(results.statics.verdict, StaticsVerdict::Differs) << results.statics.line;
}

TEST_F(MultiSpanStaticsCheck, TellsOfLoadsThatTheRunPassesOver) {
  Enter(3);
  EnterLoad("1000", "2");
  ShowNextLoad(window, session);
  EnterLoad("2000", "5");
  EXPECT_TRUE(Agrees()) << results.statics.line;
  ShowPreviousLoad(window, session);
  EnterLoad("0", "2");
  EXPECT_FALSE(Agrees());
  double sum = 0;
  for (int r = 1; r <= 4; ++r) sum += Statics("Reaction " + std::to_string(r));
  EXPECT_NEAR(sum, 3600 + 2000, 1e-8);
}

TEST_F(MultiSpanStaticsCheck, TellsOfALoadAtTheTipOfALeftOverhang) {
  Enter(3, kNone, kPinned);
  EnterLoad("500", "0");
  EXPECT_FALSE(Agrees());
  EXPECT_NEAR(Statics("Right Mom. 1"), 6000 + 5000, 1e-8);
  EXPECT_LT(Difference("Right Mom. 1").share, 1e-5);
  EXPECT_GT(Difference("Max. Mom. 1").share, 0.05);
}

TEST_F(MultiSpanStaticsCheck, TellsThatTwoOverhangsOnOneSupportCannotStand) {
  Enter(2, kNone, kNone);
  EXPECT_EQ(LineOfRun(), "Mechanism: no equilibrium is possible.");
  ShowDeflectedShape(results, session, platform);
  EXPECT_EQ(results.statics.verdict, StaticsVerdict::Mechanism);
}

// Each stretch of the curve loses its last station, and what lies behind stands too far left.
TEST_F(MultiSpanStaticsCheck, TellsOfTheStationsThatALongBeamLoses) {
  Enter(7);
  session.MultiSpan.curveIntegrations = 1000;
  EXPECT_FALSE(Agrees());
  for (int j = 1; j <= 7; ++j) {
    EXPECT_LT(Difference("Right Mom. " + std::to_string(j)).share, 1e-5);
  }
}

TEST_F(MultiSpanStaticsCheck, AChangeAfterTheRunDoesNotMoveIt) {
  Enter(3);
  const std::string line = LineOfRun();
  Type(SpanField::Uniform, "999");
  Store();
  ShowDeflectedShape(results, session, platform);
  EXPECT_NEAR(Statics("Reaction 1"), 480, 1e-9);
}

TEST_F(MultiSpanStaticsCheck, AFurtherRunLeavesThePanelOpen) {
  Enter(3);
  LineOfRun();
  results.statics.open = true;
  LineOfRun();
  EXPECT_TRUE(results.statics.open);
}

TEST_F(MultiSpanStaticsCheck, KeepsStructureAndLoadsForTheTable) {
  Enter(2, kFixed, kNone);
  EnterLoad("1000", "2");
  LineOfRun();
  const StaticsCheck& check = results.statics;
  EXPECT_EQ(check.structure.at(2), "Length = 10.00 ft");
  EXPECT_EQ(check.structure.back(), "Far right support is free.");
  EXPECT_EQ(check.loads, (Texts{"Span 1", "Uniform Load = 120.00 lbs/ft",
                                "Point Load = 1000.00 lbs at 2.00 ft from left end.", "Span 2",
                                "Uniform Load = 120.00 lbs/ft"}));
}

TEST_F(MultiSpanStaticsCheck, HoldsInMetricUnits) {
  session.unitSystem = 1;
  Enter(3);
  LineOfRun();
  ShowDeflectedShape(results, session, platform);
  EXPECT_EQ(results.statics.verdict, StaticsVerdict::Agrees) << results.statics.line;
}

}  // namespace
}  // namespace lignara
