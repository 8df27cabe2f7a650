#include "app/section.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

TEST(Section, InertiaOfARectangle) {
  // 1.5 x 3.5: 3.5^3 x 1.5 / 12 = 5.359375, 1.5^3 x 3.5 / 12 = 0.984375.
  EXPECT_EQ(RectangleInertia(1.5, 3.5).value(), 5.359375);
  EXPECT_EQ(RectangleInertia(3.5, 1.5).value(), 0.984375);
}

}  // namespace
}  // namespace lignara
