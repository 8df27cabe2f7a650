#include "app/clip.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

TEST(Clip, KeepsTheShareOfALineBetweenTheBounds) {
  double from = 0, to = 1;
  EXPECT_TRUE(Clip(0, 10, 2, 5, from, to));
  EXPECT_DOUBLE_EQ(from, 0.2);
  EXPECT_DOUBLE_EQ(to, 0.5);
}

TEST(Clip, TakesALineThatRunsBackwards) {
  double from = 0, to = 1;
  EXPECT_TRUE(Clip(10, -10, 2, 5, from, to));
  EXPECT_DOUBLE_EQ(from, 0.5);
  EXPECT_DOUBLE_EQ(to, 0.8);
}

TEST(Clip, LeavesNothingOfALineThatEndsBeforeTheBounds) {
  double from = 0, to = 1;
  EXPECT_FALSE(Clip(0, 1, 2, 5, from, to));
}

TEST(Clip, TakesALineAcrossWholeOrNotAtAll) {
  double from = 0.25, to = 0.75;
  EXPECT_TRUE(Clip(3, 0, 2, 5, from, to));
  EXPECT_DOUBLE_EQ(from, 0.25);
  EXPECT_DOUBLE_EQ(to, 0.75);
  EXPECT_FALSE(Clip(6, 0, 2, 5, from, to));
}

}  // namespace
}  // namespace lignara
