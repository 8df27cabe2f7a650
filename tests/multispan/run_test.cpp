#include <cmath>

#include "multispan/integrations.h"
#include "multispan/multi_span_solution.h"
#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class SolveCommand : public MultiSpanTest {};

TEST_F(SolveCommand, WantsALoad) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(10, 0);
  Run();
  EXPECT_EQ(Messages(), Texts{"NO LOAD ON ANY BEAM, NOTHING TO DO!"});
  EXPECT_EQ(session.MultiSpanRun, nullptr);
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(SolveCommand, WantsALoadBeforeItWantsALength) {
  Open(2);
  Run();
  EXPECT_EQ(Messages(), Texts{"NO LOAD ON ANY BEAM, NOTHING TO DO!"});
}

TEST_F(SolveCommand, WantsLengthInertiaAndModulusOfAllSpans) {
  for (Float32Array MultiSpanModel::*list :
       {&MultiSpanModel::spanLength, &MultiSpanModel::spanI, &MultiSpanModel::spanE}) {
    Open(2);
    EnterSpan(10, 100);
    EnterSpan(10, 0);
    (model().*list)[2] = 0;
    Run();
    EXPECT_EQ(Messages(), Texts{"YOU ARE MISSING L,I OR E FOR ONE OR MORE OF YOUR SPANS!"});
  }
}

TEST_F(SolveCommand, SolvesAndOpensTheResultsUnderABusyPointer) {
  Open(2);
  EnterSpan(10, 120);
  EnterSpan(10, 120);
  Run();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(platform.calls, (Texts{"busy on", "open MDOUTPUT", "busy off"}));
  ASSERT_NE(session.MultiSpanRun, nullptr);
  EXPECT_NEAR(session.MultiSpanRun->maximum.moment, 1500, 0.01);
}

TEST_F(SolveCommand, NeedsNoLoadButOnOneSpan) {
  Open(3);
  for (int j = 0; j < 3; ++j) EnterSpan(10, 0);
  EnterLoad("1000", "5");  // on the third
  Run();
  EXPECT_TRUE(Messages().empty());
  EXPECT_NEAR(session.MultiSpanRun->moments.reaction[4], 400, 50);
}

TEST_F(SolveCommand, SolvesTheStoredSpansNotTheFields) {
  Open(2);
  EnterSpan(10, 120);
  EnterSpan(10, 120);
  Type(SpanField::Uniform, "999");
  Run();
  EXPECT_NEAR(session.MultiSpanRun->maximum.moment, 1500, 0.01);
}

TEST_F(SolveCommand, KeepsTheValuesForTheNextRun) {
  Open(2);
  EnterSpan(10, 120);
  EnterSpan(10, 120);
  Run();
  const auto first = session.MultiSpanRun;
  Run();
  EXPECT_NE(session.MultiSpanRun, first);
  EXPECT_EQ(session.MultiSpanRun->maximum.moment, first->maximum.moment);
}

TEST_F(SolveCommand, LosesTheLastLoadBehindAGap) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(10, 0);
  Previous();
  EnterLoad("500", "2");
  ShowNextLoad(window, session);
  EnterLoad("600", "4");
  ShowNextLoad(window, session);
  EnterLoad("700", "6");
  ShowPreviousLoad(window, session);
  EnterLoad("0", "4");
  Run();
  double sum = 0;
  for (int s = 1; s <= 3; ++s) sum += session.MultiSpanRun->moments.reaction[s];
  EXPECT_NEAR(sum, 500, 0.01);
}

TEST_F(SolveCommand, HoldsFiftyOneSpansOfFiftyLoads) {
  Open(51);
  for (int j = 1; j <= 51; ++j) {
    EnterSpan(10, 100);
    for (int k = 1; k <= 50; ++k) {
      model().pointLoad[static_cast<std::size_t>(j)][k] = 20;
      model().pointX[static_cast<std::size_t>(j)][k] = k * 0.19;
    }
    model().pointCount[j] = 50;
  }
  Run();
  const MultiSpanSolution& run = *session.MultiSpanRun;
  EXPECT_NEAR(run.moments.reaction[26], 2000, 20);
  EXPECT_NEAR(run.shear.vertices.back().shear, 0, 0.1);
  EXPECT_TRUE(std::isfinite(run.maximum.moment));
}

TEST_F(SolveCommand, HugeNumbersDoNotCrash) {
  Open(3);
  for (int j = 0; j < 3; ++j) EnterSpan(10, 0);
  model().spanLength[2] = 3e38;
  model().spanUniform[1] = 1e300;
  model().spanUniform[2] = 1e30;
  model().spanE[3] = 1e-40;
  Run();
  EXPECT_TRUE(Messages().empty());
  ASSERT_NE(session.MultiSpanRun, nullptr);
}

// "Curve Integrations".

class Integrations : public MultiSpanTest {
 protected:
  int Enter(const std::string& text) {
    panel.integrations = text;
    AcceptIntegrations(panel, session, platform);
    return model().curveIntegrations.value();
  }

  IntegrationsWindow panel;
};

TEST_F(Integrations, OpenInAWindowOfTheirOwnOnWhatIsStored) {
  Open(2);
  OpenIntegrations(platform);
  EXPECT_EQ(platform.calls, Texts{"open INTGR"});
  ShowIntegrations(panel, session);
  EXPECT_EQ(panel.integrations, "8000");
  model().curveIntegrations = 200;
  ShowIntegrations(panel, session);
  EXPECT_EQ(panel.integrations, "200");
}

TEST_F(Integrations, AreRoundedWithTiesToEven) {
  Open(2);
  EXPECT_EQ(Enter("2.5"), 2);
  EXPECT_EQ(Enter("3.5"), 4);
  EXPECT_EQ(Enter("99.6 stations"), 100);
  EXPECT_EQ(platform.calls, (Texts{"close INTGR", "close INTGR", "close INTGR"}));
}

TEST_F(Integrations, OfZeroAndBelowAreStored) {
  Open(2);
  EXPECT_EQ(Enter("0"), 0);
  EXPECT_EQ(Enter("-12"), -12);
  EXPECT_EQ(Enter("none"), 0);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(Integrations, BeyondSixteenBitsAreToldAndLeaveTheOldNumber) {
  Open(2);
  EXPECT_EQ(Enter("32767"), 32767);
  EXPECT_EQ(Enter("32768"), 32767);
  EXPECT_EQ(Messages(), Texts{"The number is too large"});
}

TEST_F(Integrations, SetTheStationsOfTheCurve) {
  Open(2);
  EnterSpan(10, 120);
  EnterSpan(10, 120);
  for (const int stations : {-3, 0, 2, 100, 32767}) {
    model().curveIntegrations = stations;
    Run();
    EXPECT_EQ(session.MultiSpanRun->curve.integrations, stations);
  }
  EXPECT_TRUE(Messages().empty());
}

TEST(IntegrationsNote, IsTheProgramsOwnText) {
  EXPECT_STREQ(kIntegrationsNote,
               "The more iterations, the more accurate the moment diag.. The default value gets "
               "the accuracy to within 10% of the actual  moment. For Long systems, say over 100' "
               "you may have to increase this value to obtain an exact max. moment for stress "
               "results.");
}

}  // namespace
}  // namespace lignara
