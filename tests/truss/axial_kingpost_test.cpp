#include <gtest/gtest.h>

#include "tests/support/expect_forces.h"
#include "tests/support/truss_fixture.h"
#include "truss/axial_loads.h"

namespace lignara {
namespace {

TEST(AxialKingPost, PeakLoadGoesStraightIntoTheRafters) {
  TestTruss truss = StandardTruss("KINGPOST", 4);  // 32 ft, 12 ft high: 3 in 4
  truss.model().PT = 1000;
  TrussJob job = truss.Job();
  KINGPOST_AXIAL(job);
  const ActiveModel& m = truss.model();
  // Reactions 500: rafter 500/0.6, tie 500/0.75. Element 2 has no member.
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) ExpectForces(*t, {833.33, 0});
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) ExpectForces(*c, {666.67, 0});
  EXPECT_EQ(m.AX_CV[1].value(), 0);
}

TEST(AxialKingPost, PostShowsNoLoadWhateverThePeakBears) {
  for (const double load : {0.0, 1000.0, -250.0}) {
    TestTruss truss = StandardTruss("KINGPOST", 4);
    truss.LoadAllNodes(load);
    truss.Analyse();
    EXPECT_EQ(truss.model().AX_CV[1].value(), 0);
    EXPECT_EQ(truss.model().SGN_CV[1].value(), -1);
  }
}

}  // namespace
}  // namespace lignara
