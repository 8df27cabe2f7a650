#include "beam/beam_solver.h"

#include <gtest/gtest.h>

#include "tests/support/beam_run.h"

namespace lignara {
namespace {

using enum SupportType;

// Hand figures.

TEST_F(BeamRun, OfAPointLoadAtMidspan) {
  beam.Point("5", "1000");
  beam.Run();
  ExpectOutput("500.00", "500.00", "2500.00");
  EXPECT_EQ(beam.window.maxShear, "500.00");
  // P L^3 / 48 EI: EI is 1e6 x 1 / 144 lb ft^2, so 1e6 / (48 x 6944.44) = 3 ft.
  EXPECT_EQ(beam.window.maxDeflection, "36.0000");
  EXPECT_EQ(beam.BendingMoment(250), 2500.0);
}

TEST_F(BeamRun, CountsTheStationUnderALoadAsLeftOfIt) {
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.Shear(0), 500.0);
  EXPECT_EQ(beam.Shear(250), 500.0);
  EXPECT_EQ(beam.Shear(251), -500.0);
  EXPECT_EQ(beam.Shear(500), -500.0);
}

TEST_F(BeamRun, SplitsByThePlaceAsStored) {
  // 0.7 in 32 bits is a little less than 0.7: 0.069999... x 500 is below 35.
  beam.Point("0.7", "1000");
  beam.Run();
  EXPECT_GT(beam.Shear(34), 0);
  EXPECT_LT(beam.Shear(35), 0);
}

TEST_F(BeamRun, OfAUniformLoadAtTwoAndAHalfPointLoads) {
  // 2.5 rounds to 2 strips of 10 / 2.5 = 4 ft, 400 lbs at 2 and at 6 ft.
  beam.window.beam.equivalentLoads = 2.5;
  beam.Uniform("0", "10", "100");
  beam.Run();
  ExpectOutput("480.00", "320.00", "1280.00");
}

TEST_F(BeamRun, OfAUniformLoadHasHalfTheLoadAtEachEnd) {
  beam.Uniform("0", "10", "123");
  beam.Run();
  EXPECT_EQ(beam.window.reaction1, "615.00");
  EXPECT_EQ(beam.window.reaction2, "615.00");
}

TEST_F(BeamRun, MakesAPolygonOfAUniformLoad) {
  // 100 strips of 10 lbs, the first at 0.05 ft, the second at 0.15: between them the moment is
  // straight, with the slope 500 - 10.
  beam.Uniform("0", "10", "100");
  beam.Run();
  EXPECT_NEAR(beam.BendingMoment(4) - beam.BendingMoment(3), 490 * 0.02, 1e-3);
  EXPECT_NEAR(beam.BendingMoment(7) - beam.BendingMoment(6), 490 * 0.02, 1e-3);
  EXPECT_NEAR(beam.BendingMoment(9) - beam.BendingMoment(8), 480 * 0.02, 1e-3);
}

TEST_F(BeamRun, OfACantileverFromTheLeft) {
  beam.Supports(Fixed, Free);
  Stiff();
  beam.Point("10", "100");
  beam.Run();
  ExpectOutput("100.00", "0.00", "1000.00");
  EXPECT_EQ(beam.window.maxDeflection, "0.9000");
  EXPECT_EQ(beam.BendingMoment(0), 1000.0);
}

TEST_F(BeamRun, OfACantileverFromTheRightHasAPositiveShear) {
  beam.Supports(Free, Fixed);
  Stiff();
  beam.Point("0", "100");
  beam.Run();
  ExpectOutput("0.00", "100.00", "1000.00");
  EXPECT_EQ(beam.window.maxDeflection, "0.9000");
  EXPECT_EQ(beam.Shear(0), 0.0) << "the station of the load is left of it";
  for (const int station : {1, 250, 500}) EXPECT_EQ(beam.Shear(station), 100.0);
  EXPECT_EQ(beam.BendingMoment(500), 1000.0);
}

TEST_F(BeamRun, WithoutLoadsIsZero) {
  beam.Run();
  ExpectOutput("0.00", "0.00", "0.00");
  EXPECT_EQ(beam.window.maxShear, "0.00");
  EXPECT_EQ(beam.window.maxDeflection, "0.0000");
  EXPECT_EQ(beam.window.axial, "0.00");
  for (const int station : {0, 250, 500}) EXPECT_EQ(beam.BendingMoment(station), 0.0);
}

TEST_F(BeamRun, ReportsTheFirstOfEqualPeaksWithItsSign) {
  // Equal moments of both senses: -M/2 left of the middle, +M/2 right of it.
  beam.Point("2", "-1000");
  beam.Point("8", "1000");
  beam.Run();
  // R1 = -800 + 200 = -600: moments -1200 at 2 ft and +1200 at 8 ft.
  EXPECT_EQ(beam.window.maxMoment, "-1200.00");
  EXPECT_EQ(beam.window.maxShear, "-600.00");
}

// Accuracies that are no whole numbers.

TEST_F(BeamRun, TakesAFractionalAccuracyAsItStands) {
  // S is 2; stations stand at 0, 4 and 8 ft.
  beam.window.beam.accuracySteps = 2.5;
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.window.results.shearTotal.upper(), 4);
  EXPECT_EQ(beam.BendingMoment(1), 2000.0);
  EXPECT_EQ(beam.BendingMoment(2), 1000.0);
}

TEST_F(BeamRun, WithLessThanHalfAPointLoadHasNoComponent) {
  beam.window.beam.equivalentLoads = 0.4;
  beam.Uniform("0", "10", "100");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts());
  ExpectOutput("0.00", "0.00", "0.00");
}

// The metric provisions of the unit flag.

TEST_F(BeamRun, ScalesMetricDeflectionsByTheirOwnUnits) {
  beam.session.unitSystem = 1;
  beam.Constants("1000000", "100000000");  // kPa, cm^4
  beam.Point("5", "48000");
  beam.Run();
  // EI = 1e9 N/m^2 x 1 m^4: 48000 x 1000 / (48 x 1e9) = 0.001 m = 0.1 cm.
  EXPECT_EQ(beam.window.maxDeflection, "0.1000");
  EXPECT_EQ(beam.window.maxMoment, "120000.00");
}

TEST_F(BeamRun, OfAnUnknownUnitFlagStopsInSilence) {
  beam.session.unitSystem = 2;
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(beam.Boxes(), Texts());
  EXPECT_EQ(beam.window.reaction1, "");
  EXPECT_EQ(beam.window.beam.abortRun.value(), -1);
}

}  // namespace
}  // namespace lignara
