#include "wood/adjustment_factors.h"

#include <gtest/gtest.h>

#include "app/number_pattern.h"

namespace lignara {
namespace {

/// Each factor a prime number, so that a product tells what is in it.
AdjustmentFactors TellingFactors() {
  AdjustmentFactors factors;
  factors.Repetitive = 2;
  factors.LoadDuration = 3;
  factors.ShearCondition = 5;
  factors.FlatUse = 7;
  factors.SizeFactor[1] = 11;
  factors.SizeFactor[2] = 13;
  factors.SizeFactor[3] = 17;
  for (std::size_t i = 1; i <= 6; ++i) factors.WetUse[i] = std::array{0, 19, 23, 29, 31, 37, 41}[i];
  return factors;
}

TEST(Multipliers, EachStressHasItsOwnFactors) {
  AdjustmentFactors factors = TellingFactors();
  ComputeMultipliers(factors);
  EXPECT_EQ(factors.MultiplierOf(StressKind::Fb).value(), 2 * 11 * 3 * 7 * 19);
  EXPECT_EQ(factors.MultiplierOf(StressKind::Ft).value(), 13 * 3 * 23);
  EXPECT_EQ(factors.MultiplierOf(StressKind::Fv).value(), 3 * 5 * 31);
  EXPECT_EQ(factors.MultiplierOf(StressKind::FcPar).value(), 17 * 3 * 29);
  EXPECT_EQ(factors.MultiplierOf(StressKind::FcPerp).value(), 37);
  EXPECT_EQ(factors.MultiplierOf(StressKind::E).value(), 41);
}

TEST(Multipliers, AreComputedIn32Bits) {
  AdjustmentFactors factors = TellingFactors();
  factors.LoadDuration = 0.9;
  factors.SizeFactor[2] = 1.05;
  factors.WetUse[2] = 1.0;
  ComputeMultipliers(factors);
  // In 32 bits 0.9 is 0.89999998 and 1.05 is 1.04999995; their product 0.94499993 shows as 0.94,
  // where the decimal product 0.945 would show as 0.95.
  EXPECT_EQ(FormatNumber(factors.MultiplierOf(StressKind::Ft), "0.00"), "0.94");
}

}  // namespace
}  // namespace lignara
