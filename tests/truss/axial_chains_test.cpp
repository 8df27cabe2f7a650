// A whole analysis.

#include <gtest/gtest.h>

#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"

namespace lignara {
namespace {

TEST(AnalyseTruss, RebuildsTheMagnitudesSoThatSignsApplyOnce) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.model().PT = 1000;
  for (int run = 0; run < 3; ++run) {
    truss.Analyse();
    EXPECT_NEAR(truss.model().AX_TL[1].value(), -833.33, 0.02);  // 500 / 0.6
    EXPECT_NEAR(truss.model().AX_CL[1].value(), 666.67, 0.02);   // 500 / 0.75
  }
}

TEST(AnalyseTruss, NoTypeNoAnalysis) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.session.TrussType = "";
  truss.model().NODE_RL = 5;
  truss.Analyse();
  EXPECT_EQ(truss.model().NODE_RL.value(), 5);
  EXPECT_TRUE(truss.platform.messages.empty());
}

}  // namespace
}  // namespace lignara
