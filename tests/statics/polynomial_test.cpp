#include "statics/polynomial.h"

#include <gtest/gtest.h>

#include <vector>

namespace lignara {
namespace {

std::vector<double> ChangesOf(const Polynomial& polynomial, double length) {
  const Places places = SignChanges(polynomial, length);
  return {places.begin(), places.end()};
}

TEST(PolynomialOfAStretch, HasItsValueAndSlope) {
  const Polynomial p{{1, -2, 0, 4}};  // 1 - 2u + 4u^3
  EXPECT_EQ(p.At(0), 1);
  EXPECT_EQ(p.At(2), 29);
  EXPECT_EQ(p.Derivative().At(2), 46);  // -2 + 12 u^2
}

TEST(PolynomialOfAStretch, ChangesItsSignWhereItCrossesZero) {
  // (u - 1)(u - 2)(u - 4) = -8 + 14u - 7u^2 + u^3
  const std::vector<double> zeros = ChangesOf({{-8, 14, -7, 1}}, 10);
  ASSERT_EQ(zeros.size(), 3u);
  EXPECT_NEAR(zeros[0], 1, 1e-14);
  EXPECT_NEAR(zeros[1], 2, 1e-14);
  EXPECT_NEAR(zeros[2], 4, 1e-14);
}

TEST(PolynomialOfAStretch, LooksNoFurtherThanItsLength) {
  EXPECT_EQ(ChangesOf({{-8, 14, -7, 1}}, 3).size(), 2u);
  EXPECT_TRUE(ChangesOf({{-8, 14, -7, 1}}, 0.5).empty());
}

TEST(PolynomialOfAStretch, FindsAllFiveZerosOfTheFifthDegree) {
  // (u - 1)(u - 2)(u - 3)(u - 4)(u - 5)
  const std::vector<double> zeros = ChangesOf({{-120, 274, -225, 85, -15, 1}}, 6);
  ASSERT_EQ(zeros.size(), 5u);
  for (std::size_t k = 0; k < 5; ++k) EXPECT_NEAR(zeros[k], static_cast<double>(k) + 1, 1e-12);
}

TEST(PolynomialOfAStretch, TouchesZeroWithoutAChange) {
  EXPECT_TRUE(ChangesOf({{1, -2, 1}}, 3).empty());  // (u - 1)^2
  EXPECT_TRUE(ChangesOf({{0, 0, 1}}, 3).empty());
  EXPECT_TRUE(ChangesOf({{5}}, 3).empty());
  EXPECT_TRUE(ChangesOf({}, 3).empty());
}

}  // namespace
}  // namespace lignara
