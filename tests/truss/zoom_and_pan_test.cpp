// The view of the drawing: larger, smaller, to the side.

#include <gtest/gtest.h>

#include "tests/support/drawn_members.h"
#include "tests/truss/example_canvas.h"
#include "truss/canvas.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

TEST(Zoom, EnlargesByATenthUntilTheFirstValueAbove2Point5) {
  OpenedTruss truss = ExampleOnCanvas();
  const double factors[] = {1.1, 1.21, 1.331};
  for (const double factor : factors) {
    Enlarge(truss);
    EXPECT_NEAR(truss.window.view.ZoomFactor.value(), factor, 1e-6);
  }
  for (int step = 4; step <= 9; ++step) Enlarge(truss);
  EXPECT_LT(truss.window.view.ZoomFactor.value(), 2.5f);
  Enlarge(truss);  // the tenth: 1.1^10 = 2.5937
  EXPECT_NEAR(truss.window.view.ZoomFactor.value(), 2.5937425, 1e-5);
  const float last = truss.window.view.ZoomFactor.value();
  Enlarge(truss);
  EXPECT_EQ(truss.window.view.ZoomFactor.value(), last);
}

TEST(Zoom, AtTheLimitItselfNothingHappens) {
  OpenedTruss truss = ExampleOnCanvas();
  truss.window.view.ZoomFactor = 2.5;
  Select(truss, 1);
  Enlarge(truss);
  EXPECT_EQ(truss.window.view.ZoomFactor.value(), 2.5f);
  EXPECT_EQ(Arrow(truss).size(), 3u) << "no redraw";
}

TEST(Zoom, TakesEffectAtOnceAndKeepsTheOrigin) {
  OpenedTruss truss = ExampleOnCanvas();
  Enlarge(truss);
  ExpectView(truss, 158, 308, 144, 2580);  // 158.4 and 308
  // A panel is 5 x 158 = 790 units, a third of the height 2.5 x 308 = 770.
  const LineShape line = DrawnByName(truss.window.view.drawing).at("TL 1").line;
  EXPECT_EQ(line.x2, 934);
  EXPECT_EQ(line.y2, 1810);
}

TEST(Zoom, ReducesByATenth) {
  OpenedTruss truss = ExampleOnCanvas();
  Reduce(truss);
  EXPECT_NEAR(truss.window.view.ZoomFactor.value(), 0.9, 1e-6);
  ExpectView(truss, 130, 252, 144, 2580);  // 129.6 and 252
  Enlarge(truss);
  EXPECT_NEAR(truss.window.view.ZoomFactor.value(), 0.99, 1e-6);
}

// 0.9^80 x 280 = 0.06.
TEST(Zoom, TrussCollapsesToAPointAfterMuchReducing) {
  OpenedTruss truss = ExampleOnCanvas();
  for (int step = 0; step < 80; ++step) Reduce(truss);
  ExpectView(truss, 0, 0, 144, 2580);
  EXPECT_TRUE(truss.platform.messages.empty());
  for (const DrawnMember& member : DrawnMembers(truss.window.view.drawing)) {
    EXPECT_EQ(member.circle.x, 144);
    EXPECT_EQ(member.circle.y, 2580);
  }
}

TEST(Pan, SetsTheOriginInStepsOf600) {
  OpenedTruss truss = ExampleOnCanvas();
  for (const auto& [bar, origin] : {std::pair{2, 1200}, std::pair{-3, -1800}, std::pair{0, 0}}) {
    Pan(truss, bar);
    ExpectView(truss, 144, 280, origin, 2580);
    EXPECT_EQ(DrawnByName(truss.window.view.drawing).at("CL 1").line.x1, origin);
  }
}

TEST(Pan, IsKeptByZoom) {
  OpenedTruss truss = ExampleOnCanvas();
  Pan(truss, 2);
  Enlarge(truss);
  Reduce(truss);
  EXPECT_EQ(truss.window.view.CanvasOriginX.value(), 1200);
}

TEST(Pan, BeyondTheCanvasesNumbersIsAFaultAndKeepsTheOrigin) {
  OpenedTruss truss = ExampleOnCanvas();
  Pan(truss, 55);  // 33000
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(truss.window.view.CanvasOriginX.value(), 144);
}

// Origin 32400: what lies further right than 32767 cannot be drawn.
TEST(Pan, MembersBeyondTheCanvasesNumbersAreLeftOutWithOneBox) {
  OpenedTruss truss = ExampleOnCanvas();
  Pan(truss, 54);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_TRUE(truss.window.view.drawing.shapes.empty()) << "the first panel is 720 units long";
  EXPECT_TRUE(truss.window.view.MemberMark.empty());
  Pan(truss, 53);  // 31800 + 720 = 32520 fits
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), (Texts{"TL 1", "CL 1", "VL 1"}));
}

// 0.1 ft would need 43200 units a foot.
}  // namespace
}  // namespace lignara
