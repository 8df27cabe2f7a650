#include "connections/bolt_sketches.h"

#include <gtest/gtest.h>

#include "tests/connections/opened_bolts.h"
#include "tests/support/drawn_shapes.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

void ExpectInside(const Drawing& drawing) {
  const auto inside = [&](double x, double y) {
    EXPECT_GE(x, 0);
    EXPECT_LE(x, drawing.width);
    EXPECT_GE(y, 0);
    EXPECT_LE(y, drawing.height);
  };
  for (const Shape& shape : drawing.shapes) {
    if (const auto* line = std::get_if<LineShape>(&shape)) {
      inside(line->x1, line->y1);
      inside(line->x2, line->y2);
    } else if (const auto* text = std::get_if<TextShape>(&shape)) {
      inside(text->x, text->y);
      const double letters = static_cast<double>(text->text.size());
      inside(text->x + letters * drawing.textHeight * 0.6, text->y + drawing.textHeight);
    }
  }
}

TEST(BoltSketches, NothingStandsOutside) {
  for (const Drawing& sketch :
       {JointSketch(false), JointSketch(true), LoadAngleSketch(), TensionRodSketch()}) {
    ExpectInside(sketch);
  }
}

TEST(JointSketch, DoubleShearNamesThreeMembers) {
  EXPECT_EQ(DrawnTexts(JointSketch(false)), (Texts{"L2", "L1(main member)", "L3"}));
}

TEST(JointSketch, SingleShearNamesTwoMembers) {
  EXPECT_EQ(DrawnTexts(JointSketch(true)), (Texts{"L2", "L1(main)"}));
}

TEST(JointSketch, BoltPassesAllMembers) {
  for (const bool single : {false, true}) {
    double timberTop = 1e9, timberBottom = 0, steelTop = 1e9, steelBottom = 0;
    const Drawing sketch = JointSketch(single);
    for (const LineShape& line : DrawnLines(sketch, Colour::Black)) {
      timberTop = std::min({timberTop, line.y1, line.y2});
      timberBottom = std::max({timberBottom, line.y1, line.y2});
    }
    for (const LineShape& line : DrawnLines(sketch, Colour::RoyalBlue)) {
      steelTop = std::min({steelTop, line.y1, line.y2});
      steelBottom = std::max({steelBottom, line.y1, line.y2});
    }
    EXPECT_LT(steelTop, timberTop);
    EXPECT_GT(steelBottom, timberBottom);
  }
}

TEST(LoadAngleSketch, NamesTheAngleBetweenLoadAndGrain) {
  const Drawing sketch = LoadAngleSketch();
  EXPECT_EQ(DrawnTexts(sketch), Texts{"A"});
  // The load is an arrow that starts at the bolt.
  const LineShape load = DrawnLines(sketch, Colour::Red).front();
  for (const Shape& shape : sketch.shapes) {
    const auto* bolt = std::get_if<CircleShape>(&shape);
    if (bolt == nullptr) continue;
    EXPECT_EQ(load.x1, bolt->x);
    EXPECT_EQ(load.y1, bolt->y);
    return;
  }
  FAIL() << "no bolt";
}

TEST(TensionRodSketch, NamesTheLoadThatPullsDown) {
  const Drawing sketch = TensionRodSketch();
  EXPECT_EQ(DrawnTexts(sketch), Texts{"Load"});
  const LineShape load = DrawnLines(sketch, Colour::Red).front();
  EXPECT_EQ(load.x1, load.x2);
  EXPECT_GT(load.y2, load.y1);
}

class BoltWindowSketchTest : public OpenedBolts {};

TEST_F(BoltWindowSketchTest, SketchesAreThereWhenTheWindowOpens) {
  EXPECT_EQ(window.jointSketch, JointSketch(false));
  EXPECT_EQ(window.angleSketch, LoadAngleSketch());
  EXPECT_EQ(window.rodSketch, TensionRodSketch());
}

TEST_F(BoltWindowSketchTest, JointFollowsTheShearKind) {
  Choose(&JointOptions::ShearKind, 1);
  EXPECT_EQ(window.jointSketch, JointSketch(true));
  Choose(&JointOptions::ShearKind, 0);
  EXPECT_EQ(window.jointSketch, JointSketch(false));
}

TEST_F(BoltWindowSketchTest, SketchesShowNoComputedValue) {
  const Drawing joint = window.jointSketch;
  const Drawing rod = window.rodSketch;
  Compute("2", 0);
  window.boltStress = "20";
  window.woodStress = "400";
  ChooseRod(window, platform, 3);
  EXPECT_EQ(window.jointSketch, joint);
  EXPECT_EQ(window.rodSketch, rod);
}

}  // namespace
}  // namespace lignara
