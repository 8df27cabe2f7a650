#include "app/stored_number.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>
#include <string>
#include <vector>

#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

const std::string kDivision(FaultText(Fault::DivisionByZero));
const std::string kOverflow(FaultText(Fault::Overflow));
const std::string kRoot(FaultText(Fault::NoRealResult));

class StoredNumber : public testing::Test {
 protected:
  RecordingPlatform platform;
  FaultScope faults{platform};
};

// Integers.

struct WholeRow {
  double number;
  int stored;
};

class WholeNumber : public testing::TestWithParam<WholeRow> {};

TEST_P(WholeNumber, RoundsToTheNearestTiesToEven) {
  RecordingPlatform platform;
  FaultScope faults(platform);
  EXPECT_EQ(Int16(GetParam().number).value(), GetParam().stored);
  EXPECT_EQ(Int32(GetParam().number).value(), GetParam().stored);
  EXPECT_EQ(RoundHalfEven(GetParam().number).value(), GetParam().stored);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

constexpr WholeRow kWhole[] = {
    {0.0, 0},          {0.49, 0},          {0.5, 0},           {0.51, 1},        {1.0, 1},
    {1.5, 2},          {2.5, 2},           {3.5, 4},           {4.5, 4},         {2.51, 3},
    {-0.5, 0},         {-1.5, -2},         {-2.5, -2},         {-2.51, -3},      {7.49, 7},
    {7.5, 8},          {8.5, 8},           {100.0, 100},       {32766.5, 32766}, {32767.0, 32767},
    {32767.49, 32767}, {-32768.0, -32768}, {-32768.5, -32768},
};
INSTANTIATE_TEST_SUITE_P(Whole, WholeNumber, testing::ValuesIn(kWhole));

TEST_F(StoredNumber, SixteenBitsOverflowAndKeepTheOldValue) {
  Int16 count = 5;
  for (const double tooLarge : {32767.5, 32768.0, 99999.0, 1e300, -32769.0, -1e9}) {
    count = tooLarge;
    EXPECT_EQ(platform.TakeTexts(), Texts{kOverflow}) << tooLarge;
    EXPECT_EQ(count.value(), 5);
  }
}

TEST_F(StoredNumber, ThirtyTwoBitIntegersOverflowBeyondTheirRange) {
  Int32 count = 5;
  count = 2147483647.0;
  EXPECT_EQ(count.value(), 2147483647);
  count = -2147483648.0;
  EXPECT_EQ(count.value(), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(platform.TakeTexts(), Texts{});
  count = 2147483647.5;  // the tie goes to 2147483648
  count = -2147483649.0;
  EXPECT_EQ(platform.TakeTexts(), (Texts{kOverflow, kOverflow}));
  EXPECT_EQ(count.value(), std::numeric_limits<std::int32_t>::min());
}

// Floats.

TEST_F(StoredNumber, ThirtyTwoBitsRoundToTheNearestTiesToEven) {
  // Above 2^24 = 16777216 the neighbours are 2 apart.
  EXPECT_EQ(Float32(16777217.0).value(), 16777216.0f);
  EXPECT_EQ(Float32(16777219.0).value(), 16777220.0f);
  EXPECT_EQ(Float32(16777217.5).value(), 16777218.0f);
  EXPECT_EQ(Float32(0.1).value(), 0.1f);
  EXPECT_EQ(Float64(0.1).value(), 0.1);
}

TEST_F(StoredNumber, EachStoredStepRounds) {
  // 1 + 2^-25 is 1 in 32 bits; two such terms added in one expression are 1 + 2^-24, a tie to even;
  // four are 1 + 2^-23, the next number.
  const double tiny = 1.0 / 33554432.0;
  Float32 sum = 1.0;
  for (int i = 0; i < 4; ++i) sum += tiny;
  EXPECT_EQ(sum.value(), 1.0f);
  sum = Number(1.0) + tiny + tiny + tiny + tiny;
  EXPECT_EQ(sum.value(), 1.0f + FLT_EPSILON);
}

TEST_F(StoredNumber, ThirtyTwoBitFloatsTakeAllThatRoundsToALargest) {
  Float32 number = 1.0;
  // Half a step above the largest number, (2 - 2^-24) 2^127, would round to infinity.
  const double half = 3.4028235677973366e38;
  number = std::nextafter(half, 0.0);
  EXPECT_EQ(number.value(), FLT_MAX);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
  number = 1.0;
  number = half;
  number = -half;
  number = 1e300;
  EXPECT_EQ(platform.TakeTexts(), (Texts{kOverflow, kOverflow, kOverflow}));
  EXPECT_EQ(number.value(), 1.0f);
}

TEST_F(StoredNumber, WhatIsTooSmallForThirtyTwoBitsIsZero) {
  EXPECT_EQ(Float32(1e-60).value(), 0.0f);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

TEST_F(StoredNumber, IntermediatesAreWide) {
  const Float32 large = 3e38;
  const Float32 result = large * large / large;  // 9e76 on the way
  EXPECT_EQ(result.value(), 3e38f);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

// Faults.

struct FaultRow {
  const char* name;
  Number expression;
  Fault fault;
};

class FaultedStatement : public testing::TestWithParam<FaultRow> {};

TEST_P(FaultedStatement, ReportsOnceAndStoresNothing) {
  RecordingPlatform platform;
  FaultScope faults(platform);
  Float32 narrow = 7.0;
  Float64 wide = 7.0;
  Int16 whole = 7;
  narrow = GetParam().expression;
  EXPECT_EQ(platform.TakeTexts(), Texts{std::string(FaultText(GetParam().fault))});
  wide = GetParam().expression;
  EXPECT_EQ(platform.TakeTexts(), Texts{std::string(FaultText(GetParam().fault))});
  whole = GetParam().expression;
  EXPECT_EQ(platform.TakeTexts(), Texts{std::string(FaultText(GetParam().fault))});
  EXPECT_EQ(narrow.value(), 7.0f);
  EXPECT_EQ(wide.value(), 7.0);
  EXPECT_EQ(whole.value(), 7);
}

Number Zero() { return 0.0; }

const FaultRow kFaults[] = {
    {"quotient", Number(1.0) / Zero(), Fault::DivisionByZero},
    {"zeroByZero", Zero() / Zero(), Fault::DivisionByZero},
    {"negativeZero", Number(1.0) / (-Zero()), Fault::DivisionByZero},
    {"root", Sqrt(-1.0), Fault::NoRealResult},
    {"product", Number(1e200) * 1e200, Fault::Overflow},
    {"sum", Number(1.7e308) + 1.7e308, Fault::Overflow},
    {"difference", Number(-1.7e308) - 1.7e308, Fault::Overflow},
    {"quotientTooLarge", Number(1e300) / 1e-300, Fault::Overflow},
    {"square", Square(1e200), Fault::Overflow},
    {"infinity", Number(std::numeric_limits<double>::infinity()), Fault::Overflow},
    {"notANumber", Number(std::numeric_limits<double>::quiet_NaN()), Fault::Overflow},
    // A fault goes through all that follows it.
    {"sumAfter", Number(1.0) / Zero() + 1.0, Fault::DivisionByZero},
    {"sumBefore", Number(1.0) + Number(1.0) / Zero(), Fault::DivisionByZero},
    {"difference1", Number(1.0) / Zero() - 1.0, Fault::DivisionByZero},
    {"difference2", Number(1.0) - Sqrt(-1.0), Fault::NoRealResult},
    {"product1", Number(0.0) * (Number(1.0) / Zero()), Fault::DivisionByZero},
    {"quotient1", Sqrt(-1.0) / Zero(), Fault::NoRealResult},
    {"quotient2", Number(1.0) / Sqrt(-1.0), Fault::NoRealResult},
    {"negated", -Sqrt(-1.0), Fault::NoRealResult},
    {"atan", Atan(Number(1.0) / Zero()), Fault::DivisionByZero},
    {"sin", Sin(Number(1.0) / Zero()), Fault::DivisionByZero},
    {"cos", Cos(Sqrt(-1.0)), Fault::NoRealResult},
    {"tan", Tan(Sqrt(-1.0)), Fault::NoRealResult},
    {"abs", Abs(Sqrt(-1.0)), Fault::NoRealResult},
    {"sqrt", Sqrt(Number(1.0) / Zero()), Fault::DivisionByZero},
    {"rounded", RoundHalfEven(Sqrt(-1.0)), Fault::NoRealResult},
    {"floor", Floor(Sqrt(-1.0)), Fault::NoRealResult},
    // Of two faults the first in reading order is told.
    {"two", Sqrt(-1.0) + Number(1.0) / Zero(), Fault::NoRealResult},
    {"twoTurned", Number(1.0) / Zero() + Sqrt(-1.0), Fault::DivisionByZero},
};
INSTANTIATE_TEST_SUITE_P(Faults, FaultedStatement, testing::ValuesIn(kFaults),
                         [](const auto& row) { return row.param.name; });

TEST_F(StoredNumber, TheNextStatementGoesOn) {
  Float32 angle = 0.25;
  Float32 next;
  angle = Atan(Number(1.0) / Number(0.0));
  next = angle * 2.0;
  EXPECT_EQ(next.value(), 0.5f);
  EXPECT_EQ(platform.TakeTexts(), Texts{kDivision});
}

TEST_F(StoredNumber, CompoundAssignmentKeepsTheOldValueOnAFault) {
  Float32 sum = 3.0;
  sum += Number(1.0) / Number(0.0);
  sum -= Sqrt(-4.0);
  EXPECT_EQ(sum.value(), 3.0f);
  EXPECT_EQ(platform.TakeTexts(), (Texts{kDivision, kRoot}));
  sum += 1.0;
  sum -= 0.5;
  EXPECT_EQ(sum.value(), 3.5f);
}

TEST_F(StoredNumber, ComparisonsOfAFaultAreAllFalse) {
  const Number fault = Sqrt(-1.0);
  EXPECT_FALSE(fault > 0.0);
  EXPECT_FALSE(fault < 0.0);
  EXPECT_FALSE(fault >= 0.0);
  EXPECT_FALSE(fault <= 0.0);
  EXPECT_FALSE(fault == 0.0);
  EXPECT_FALSE(fault == fault);
  EXPECT_FALSE(Number(1.0) > fault);
  EXPECT_EQ(platform.TakeTexts(), Texts{});  // nothing was stored
}

TEST_F(StoredNumber, ComparesAndComputesAsOnPaper) {
  const Float32 three = 3.0;
  const Int16 four = 4;
  EXPECT_TRUE(three < four);
  EXPECT_TRUE(three <= 3.0);
  EXPECT_TRUE(four >= three);
  EXPECT_TRUE(three == 3.0);
  EXPECT_TRUE(three != four);
  EXPECT_EQ(Sqrt(Square(three) + Square(four)).value(), 5.0);
  EXPECT_EQ((-three).value(), -3.0);
  EXPECT_EQ(Abs(-three).value(), 3.0);
  EXPECT_EQ(Floor(-0.5).value(), -1.0);
  EXPECT_EQ(Floor(2.75).value(), 2.0);
  EXPECT_DOUBLE_EQ(Atan(1.0).value() * 4.0, 3.14159265358979323846);
  EXPECT_DOUBLE_EQ(Tan(Atan(0.5)).value(), 0.5);
  EXPECT_DOUBLE_EQ((Square(Sin(0.7)) + Square(Cos(0.7))).value(), 1.0);
}

TEST_F(StoredNumber, ACopyIsANumberOfItsOwn) {
  Float32 first = 2.5;
  Float32 second = first;
  first = 4.0;
  EXPECT_EQ(second.value(), 2.5f);
  second = first;
  EXPECT_EQ(second.value(), 4.0f);
}

// Who hears of a fault.

TEST(FaultScopes, TheInnermostScopeIsInForce) {
  RecordingPlatform outer;
  RecordingPlatform inner;
  FaultScope outerFaults(outer);
  Float32 number;
  {
    FaultScope innerFaults(inner);
    number = Number(1.0) / Number(0.0);
  }
  EXPECT_EQ(outer.TakeTexts(), Texts{});
  EXPECT_EQ(inner.TakeTexts(), Texts{kDivision});
  number = Sqrt(-1.0);
  EXPECT_EQ(outer.TakeTexts(), Texts{kRoot});
  EXPECT_EQ(inner.TakeTexts(), Texts{});
}

TEST(FaultScopes, WithoutAScopeNothingIsStoredAndNobodyIsTold) {
  Float32 number = 2.0;
  number = Number(1.0) / Number(0.0);
  EXPECT_EQ(number.value(), 2.0f);
}

TEST(FaultScopes, SilentFaultsStoreNothingAndAreNotShown) {
  RecordingPlatform platform;
  FaultScope faults(platform);
  Float32 number = 7;
  {
    SilentFaults silence;
    number = Number(1) / 0;
    EXPECT_TRUE(platform.messages.empty());
  }
  EXPECT_EQ(number.value(), 7.0F);
  number = Number(1) / 0;
  EXPECT_EQ(platform.messages.size(), 1u);
}

TEST(FaultScopes, TheBoxIsPlain) {
  RecordingPlatform platform;
  FaultScope faults(platform);
  ReportFault(Fault::Overflow);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].title, "Lignara");
  EXPECT_EQ(platform.messages[0].icon, MessageIcon::None);
  ReportFault(Fault::None);
  EXPECT_EQ(platform.messages.size(), 1u);
}

TEST(FaultScopes, EveryFaultHasATextOfItsOwn) {
  const Texts texts = {kDivision, kOverflow, kRoot,
                       std::string(FaultText(Fault::IndexOutOfBounds))};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_NE(texts[i], "");
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(texts[i], texts[j]);
  }
  EXPECT_EQ(FaultText(Fault::None), "");
}

}  // namespace
}  // namespace lignara
