// How a user looks at a picture: all of it, nearer, moved, and never past it.

#include "desktop/kit/visible_part.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

/// 4800 by 3000 units in 480 by 300 pixels: a tenth of a pixel a unit.
VisiblePart View() {
  VisiblePart view;
  view.SetContent({0, 0, 4800, 3000});
  view.SetRoom({480, 300});
  view.Fit();
  return view;
}

void ExpectPoint(const QPointF& point, double x, double y) {
  EXPECT_NEAR(point.x(), x, 1e-6);
  EXPECT_NEAR(point.y(), y, 1e-6);
}

TEST(VisiblePart, FitsTheContentIntoTheMiddleOfItsRoom) {
  VisiblePart view = View();
  ExpectPoint(view.ToPixels({0, 0}), 0, 0);
  ExpectPoint(view.ToPixels({4800, 3000}), 480, 300);
  view.SetRoom({480, 400});  // 50 pixels above and below
  ExpectPoint(view.ToPixels({0, 0}), 0, 50);
  ExpectPoint(view.ToDrawing({480, 350}), 4800, 3000);
}

TEST(VisiblePart, FitsContentThatLiesAnywhere) {
  VisiblePart view = View();
  view.SetContent({-9000, 500, 2400, 1500});
  view.Fit();
  ExpectPoint(view.ToPixels({-9000, 500}), 0, 0);
  ExpectPoint(view.ToPixels({-6600, 2000}), 480, 300);
}

TEST(VisiblePart, EnlargesAroundThePlaceUnderTheMouse) {
  VisiblePart view = View();
  view.ZoomAt({120, 90}, 2);
  ExpectPoint(view.ToPixels({1200, 900}), 120, 90);
  EXPECT_NEAR(view.scale(), 0.2, 1e-9);
}

TEST(VisiblePart, MovesWithTheHand) {
  VisiblePart view = View();
  view.ZoomAt({240, 150}, 2);
  view.MoveBy({30, -20});
  ExpectPoint(view.ToPixels({2400, 1500}), 270, 130);
}

TEST(VisiblePart, FitTakesZoomAndMoveBack) {
  VisiblePart view = View();
  view.ZoomAt({100, 100}, 3);
  view.MoveBy({50, 50});
  view.Fit();
  ExpectPoint(view.ToPixels({0, 0}), 0, 0);
  EXPECT_EQ(view.zoom(), 1);
}

TEST(VisiblePart, KeepsHalfOfTheContentInSightHoweverFarItIsMoved) {
  VisiblePart view = View();
  view.MoveBy({100000, 0});
  ExpectPoint(view.ToPixels({2400, 1500}), 480, 150);
  view.MoveBy({-100000, -100000});
  ExpectPoint(view.ToPixels({2400, 1500}), 0, 0);
}

TEST(VisiblePart, KeepsHalfOfTheRoomFullWhereTheContentIsLarger) {
  VisiblePart view = View();
  view.ZoomAt({240, 150}, 10);  // the content is 4800 pixels wide
  view.MoveBy({100000, 0});
  ExpectPoint(view.ToPixels({0, 1500}), 240, 150);
}

TEST(VisiblePart, FollowsContentThatACommandHasMovedAway) {
  VisiblePart view = View();
  view.SetContent({32000, 0, 4800, 3000});
  const QPointF left = view.ToPixels({32000, 0});
  EXPECT_NEAR(left.x(), 240, 1e-6);
}

TEST(VisiblePart, IsReducedUntilAllIsInSightAndNoFurther) {
  VisiblePart view = View();
  view.ZoomAt({240, 150}, 0.01);
  EXPECT_EQ(view.zoom(), 1);
  view.SetContent({0, 0, 9600, 6000});  // twice as large
  view.ZoomAt({240, 150}, 0.01);
  EXPECT_EQ(view.zoom(), 0.5);
}

TEST(VisiblePart, IsEnlargedFortyTimesAtMost) {
  VisiblePart view = View();
  view.ZoomAt({240, 150}, 1e9);
  EXPECT_EQ(view.zoom(), 40);
}

TEST(VisiblePart, BearsContentAndRoomWithoutSize) {
  VisiblePart view;
  view.SetContent({100, 100, 0, 0});
  view.SetRoom({0, 0});
  view.Fit();
  view.ZoomAt({0, 0}, 2);
  EXPECT_GT(view.scale(), 0);
}

}  // namespace
}  // namespace lignara
