#include "beam/diagrams.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

class SingleSpanDiagrams : public testing::Test {
 protected:
  SingleSpanDiagrams() { beam.Constants("1000000", "64"); }

  const BeamDiagrams& Panel() const { return beam.window.diagrams; }
  static const LineShape& LineOf(const Drawing& drawing, std::size_t i) {
    return std::get<LineShape>(drawing.shapes.at(i));
  }

  TestBeam beam;
};

TEST_F(SingleSpanDiagrams, AreClosedUntilARun) {
  EXPECT_FALSE(Panel().enabled);
  EXPECT_TRUE(Panel().shear.shapes.empty());
  EXPECT_TRUE(DiagramOnPaper(beam.window, Diagram::Moment).shapes.empty());
  beam.Run();
  EXPECT_TRUE(Panel().enabled);
  EXPECT_FALSE(Panel().open);
}

TEST_F(SingleSpanDiagrams, HaveAMarginOfAFifthOfTheDoubledPeak) {
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(Panel().shear.width, 500.0);
  EXPECT_DOUBLE_EQ(Panel().shear.height, 1200.0);
  EXPECT_DOUBLE_EQ(Panel().moment.height, 6000.0);
  EXPECT_TRUE(Panel().shear.stretched);
}

TEST_F(SingleSpanDiagrams, DrawABlueBaseLineAtMidHeight) {
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(LineOf(Panel().shear, 0), (LineShape{0, 600, 500, 600, Colour::Blue}));
}

TEST_F(SingleSpanDiagrams, DrawPositiveShearAndMomentUpward) {
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(LineOf(Panel().shear, 1), (LineShape{0, 100, 1, 100, Colour::Black}));
  EXPECT_EQ(LineOf(Panel().shear, 251), (LineShape{250, 100, 251, 1100, Colour::Black}));
  EXPECT_EQ(LineOf(Panel().shear, 500), (LineShape{499, 1100, 500, 1100, Colour::Black}));
  EXPECT_EQ(LineOf(Panel().moment, 250).y2, 500.0);  // 3000 - 2500
}

TEST_F(SingleSpanDiagrams, DrawPositiveDeflectionDownward) {
  beam.Supports(SupportType::Fixed, SupportType::Free);
  beam.Point("10", "100");
  beam.Run();
  const Drawing& shape = Panel().deflection;
  EXPECT_NEAR(shape.height, 2.4 * 0.9, 1e-5);
  EXPECT_NEAR(LineOf(shape, 500).y2, 1.2 * 0.9 + 0.9, 1e-5);
}

TEST_F(SingleSpanDiagrams, MarkThePeakWithItsValue) {
  beam.Point("5", "-1000");
  beam.Run();
  const Drawing& moment = Panel().moment;
  EXPECT_EQ(LineOf(moment, 501), (LineShape{250, 3000, 250, 5500, Colour::Red}));
  const auto& text = std::get<TextShape>(moment.shapes.at(502));
  EXPECT_EQ(text.text, "-2500.00");
  EXPECT_EQ(text.x, 255.0) << "beside the line";
  // Its middle between 3000 and 5500, where no curve runs.
  EXPECT_DOUBLE_EQ(text.y + moment.textHeight / 2, 4250.0);
}

TEST_F(SingleSpanDiagrams, MarkTheStationOnTheScreenButNotOnPaper) {
  beam.Point("5", "1000");
  beam.Run();
  MoveToStation(beam.window, 120);
  EXPECT_EQ(LineOf(Panel().shear, 503), (LineShape{120, 0, 120, 1200, Colour::DarkOrange}));
  EXPECT_EQ(DiagramOnPaper(beam.window, Diagram::Shear).shapes.size(), 503u);
}

TEST_F(SingleSpanDiagrams, MoveOnlyTheMarkWithTheStation) {
  beam.Point("5", "1000");
  beam.Run();
  Drawing before = Panel().moment;
  MoveToStation(beam.window, 33);
  std::get<LineShape>(before.shapes.back()) = {33, 0, 33, 6000, Colour::DarkOrange};
  EXPECT_EQ(Panel().moment, before);
}

TEST_F(SingleSpanDiagrams, OfNothingAreFlat) {
  beam.Run();
  EXPECT_EQ(Panel().shear.height, 1.0);
  EXPECT_EQ(LineOf(Panel().shear, 500), (LineShape{499, 0.5, 500, 0.5, Colour::Black}));
}

TEST_F(SingleSpanDiagrams, OpenAtTheLeftEnd) {
  beam.Point("5", "1000");
  beam.Run();
  MoveToStation(beam.window, 77);
  OpenDiagrams(beam.window, beam.session);
  EXPECT_TRUE(Panel().open);
  EXPECT_EQ(Panel().station, 0);
  EXPECT_EQ(Panel().location, "0.000");
  EXPECT_EQ(Panel().shearAt, "500.00");
  EXPECT_EQ(Panel().momentAt, "0.00");
  EXPECT_EQ(Panel().deflAt, "0.0000");
  CloseDiagrams(beam.window);
  EXPECT_FALSE(Panel().open);
}

TEST_F(SingleSpanDiagrams, ReadAtAStation) {
  beam.Point("5", "1000");
  beam.Run();
  MoveToStation(beam.window, 251);
  EXPECT_EQ(Panel().location, "5.020");
  EXPECT_EQ(Panel().shearAt, "-500.00");
  EXPECT_EQ(Panel().momentAt, "2490.00");
  // P L^3 / 48 EI at midspan is 1e6 / (48 x 444,444.4) ft = 0.5625 in.
  MoveToStation(beam.window, 250);
  EXPECT_EQ(Panel().deflAt, "0.5625");
}

TEST_F(SingleSpanDiagrams, ReadTheRotationBetweenStations) {
  beam.Supports(SupportType::Fixed, SupportType::Free);
  beam.Point("10", "100");
  beam.Run();
  // A cantilever's tip turns by P L^2 / 2 EI = 10000 / 888,888.9 = 0.01125.
  MoveToStation(beam.window, 500);
  const double step = 12.0 * 10 / 500;
  EXPECT_NEAR(beam.window.results.rotationTotal[500].value(),
              std::atan((beam.Deflection(500) - beam.Deflection(499)) / step), 1e-7);
  EXPECT_EQ(Panel().rotationAt.substr(0, 6), "0.0112");
}

TEST_F(SingleSpanDiagrams, ReadTheFirstRotationFromTheFirstStation) {
  beam.Point("5", "1000");
  beam.Run();
  const double expected = std::atan(beam.Deflection(1) / (12.0 * 10 / 500));
  EXPECT_FLOAT_EQ(beam.window.results.rotationTotal[0].value(), static_cast<float>(expected));
  // P L^2 / 16 EI = 100,000 / 7,111,111 = 0.0140625, a little less over the first station.
  MoveToStation(beam.window, 0);
  EXPECT_EQ(Panel().rotationAt, "0.014062");
}

TEST_F(SingleSpanDiagrams, MeasureMetricRotationsInCentimetres) {
  beam.session.unitSystem = 1;
  beam.Constants("1000000", "100000000");
  beam.Point("5", "48000");
  beam.Run();
  const double expected = std::atan(beam.Deflection(1) / (100.0 * 10 / 500));
  EXPECT_FLOAT_EQ(beam.window.results.rotationTotal[0].value(), static_cast<float>(expected));
}

TEST_F(SingleSpanDiagrams, FollowAClickToTheNearestStation) {
  beam.Point("5", "1000");
  beam.Run();
  PressDiagram(beam.window, 99.6);
  EXPECT_EQ(Panel().station, 100);
  EXPECT_EQ(Panel().location, "2.000");
  PressDiagram(beam.window, -30);
  EXPECT_EQ(Panel().station, 0);
  PressDiagram(beam.window, 9999);
  EXPECT_EQ(Panel().station, 500);
}

TEST_F(SingleSpanDiagrams, BarFollowsTheAccuracy) {
  EXPECT_EQ(Panel().lastStation, 500);
  for (const auto& [text, last] :
       {std::pair{"1000", 1000}, {"2.5", 2}, {"0.4", 0}, {"9e9", 32767}}) {
    beam.platform.textAnswers = {text};
    AskAccuracy(beam.window, beam.platform);
    EXPECT_EQ(Panel().lastStation, last) << text;
  }
}

TEST_F(SingleSpanDiagrams, ReadWhereAShorterBarEnds) {
  beam.Point("5", "1000");
  beam.Run();
  MoveToStation(beam.window, 500);
  beam.platform.textAnswers = {"100"};
  AskAccuracy(beam.window, beam.platform);
  EXPECT_EQ(Panel().station, 100);
  EXPECT_EQ(Panel().location, "2.000") << "a station of the last run";
  EXPECT_EQ(Panel().momentAt, "1000.00");
  EXPECT_EQ(LineOf(Panel().moment, 503).x1, 100.0);
}

TEST_F(SingleSpanDiagrams, ShowNothingBeyondTheStationsOfTheRun) {
  beam.Point("5", "1000");
  beam.Run();
  beam.platform.textAnswers = {"1000"};
  AskAccuracy(beam.window, beam.platform);
  MoveToStation(beam.window, 250);
  EXPECT_EQ(Panel().location, "5.000") << "the stations are those of the run";
  MoveToStation(beam.window, 700);
  EXPECT_EQ(Panel().location, "");
  EXPECT_EQ(Panel().shearAt, "");
  EXPECT_EQ(beam.Boxes(), Texts());
}

TEST_F(SingleSpanDiagrams, OfManyStationsKeepThemAll) {
  beam.window.beam.accuracySteps = 32000;
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(Panel().shear.shapes.size(), 32000u + 4);
}

}  // namespace
}  // namespace lignara
