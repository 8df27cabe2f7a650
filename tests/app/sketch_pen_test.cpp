#include "app/sketch_pen.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/drawn_shapes.h"

namespace lignara {
namespace {

TEST(SketchPen, DrawsInOrder) {
  SketchPen pen(100, 50, 11);
  pen.Line(1, 2, 3, 4, Colour::Red);
  pen.Circle(5, 6, 7, Colour::Blue);
  pen.Text(8, 9, "L");
  const Drawing expected = {100,
                            50,
                            11,
                            {LineShape{1, 2, 3, 4, Colour::Red}, CircleShape{5, 6, 7, Colour::Blue},
                             TextShape{8, 9, "L"}}};
  EXPECT_EQ(pen.drawing(), expected);
}

TEST(SketchPen, PathGoesFromPointToPoint) {
  SketchPen pen(10, 10, 1);
  pen.Path({{0, 0}, {5, 0}, {5, 5}});
  EXPECT_EQ(DrawnLines(pen.drawing(), Colour::Black),
            (std::vector<LineShape>{{0, 0, 5, 0}, {5, 0, 5, 5}}));
}

TEST(SketchPen, BoxIsClosed) {
  SketchPen pen(10, 10, 1);
  pen.Box(1, 2, 7, 8);
  EXPECT_EQ(DrawnLines(pen.drawing(), Colour::Black),
            (std::vector<LineShape>{{1, 2, 7, 2}, {7, 2, 7, 8}, {7, 8, 1, 8}, {1, 8, 1, 2}}));
}

TEST(SketchPen, ArrowHasItsHeadAtTheEndAndOpensBackward) {
  SketchPen pen(100, 100, 11);  // a tick of 3, a head of 7.5
  pen.Arrow(0, 50, 90, 50);
  const std::vector<LineShape> lines = DrawnLines(pen.drawing(), Colour::Black);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0], (LineShape{0, 50, 90, 50}));
  for (const LineShape& side : {lines[1], lines[2]}) {
    EXPECT_EQ(side.x1, 90);
    EXPECT_EQ(side.y1, 50);
    EXPECT_NEAR(std::hypot(side.x2 - 90, side.y2 - 50), 7.5, 1e-9);
    EXPECT_LT(side.x2, 84);
  }
  EXPECT_NEAR(lines[1].y2 - 50, 50 - lines[2].y2, 1e-9);
}

TEST(SketchPen, LevelDimensionNamesItsMiddleBelow) {
  SketchPen pen(100, 100, 11);  // letters of 5.5
  pen.LevelDimension(10, 50, 20, "AB");
  EXPECT_EQ(DrawnLines(pen.drawing(), Colour::Gray),
            (std::vector<LineShape>{{10, 20, 50, 20, Colour::Gray},
                                    {10, 17, 10, 23, Colour::Gray},
                                    {50, 17, 50, 23, Colour::Gray}}));
  EXPECT_EQ(std::get<TextShape>(pen.drawing().shapes.back()), (TextShape{24.5, 23, "AB"}));
}

TEST(SketchPen, UprightDimensionNamesItsMiddleOnEitherSide) {
  SketchPen pen(100, 100, 11);
  pen.UprightDimension(50, 10, 41, "AB");
  EXPECT_EQ(std::get<TextShape>(pen.drawing().shapes.back()), (TextShape{53, 20, "AB"}));
  pen.UprightDimension(50, 10, 41, "AB", SketchPen::NameSide::Left);
  EXPECT_EQ(std::get<TextShape>(pen.drawing().shapes.back()), (TextShape{36, 20, "AB"}));
}

}  // namespace
}  // namespace lignara
