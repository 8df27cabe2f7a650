#include <gtest/gtest.h>

#include "tests/support/beam_run.h"

namespace lignara {
namespace {

using enum SupportType;

TEST_F(BeamRun, OfAMomentHasNoSpikeInTheShear) {
  beam.Moment("5", "1000");
  beam.Run();
  for (int i = 0; i <= 500; ++i) ASSERT_NEAR(beam.Shear(i), -100, 1e-3) << i;
  EXPECT_EQ(beam.window.reaction1, "-100.00");
  EXPECT_EQ(beam.window.reaction2, "100.00");
}

TEST_F(BeamRun, OfAMomentJumpsBetweenTheTwoForces) {
  beam.Moment("5", "1000");
  beam.Run();
  EXPECT_NEAR(beam.BendingMoment(249), -498, 0.01);
  EXPECT_NEAR(beam.BendingMoment(250), 0, 0.01);
  EXPECT_NEAR(beam.BendingMoment(251), 498, 0.01);
}

TEST_F(BeamRun, HoldsTheDeflectionOverTheCouple) {
  Stiff();
  beam.Moment("5", "100000");
  beam.Run();
  // The forces stand at 4.98 and 5.02 ft: stations 249 to 251 take the value of 248.
  EXPECT_NE(beam.Deflection(247), beam.Deflection(248));
  for (const int station : {249, 250}) {
    EXPECT_FLOAT_EQ(beam.Deflection(station), beam.Deflection(248)) << station;
  }
  EXPECT_NE(beam.Deflection(252), beam.Deflection(248));
}

TEST_F(BeamRun, OfAMomentTooNearTheLeftEndShowsTheFaultAndKeepsThePlainSums) {
  Stiff();
  beam.Moment("1", "1000");
  beam.Edit(1, LoadKind::PointMoment, {{"A", "0.03"}, {"M", "1000"}});
  beam.Run();
  // Forces of 25000 lbs at 0.01 and at 0.05 ft, before station 1 and behind station 2.
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::IndexOutOfBounds))}));
  EXPECT_NEAR(beam.Shear(1), -100 + 25000, 0.1);
  EXPECT_NEAR(beam.Shear(3), -100, 0.1);
  EXPECT_TRUE(beam.window.diagrams.enabled);
}

TEST_F(BeamRun, OfAMomentEditedToTheRightEndNeedsNoRepairBeyond) {
  beam.Moment("5", "1000");
  beam.Edit(1, LoadKind::PointMoment, {{"A", "10"}, {"M", "1000"}});
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts());
  EXPECT_NEAR(beam.Shear(500), -100, 0.01);
}

}  // namespace
}  // namespace lignara
