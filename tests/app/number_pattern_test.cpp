#include "app/number_pattern.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "app/number_reader.h"

namespace lignara {
namespace {

// 64-bit numbers.

struct WideRow {
  double number;
  const char* pattern;
  const char* text;
};

class WidePattern : public testing::TestWithParam<WideRow> {};

TEST_P(WidePattern, Shows) {
  const WideRow& row = GetParam();
  EXPECT_EQ(FormatNumber(row.number, row.pattern), row.text) << row.number;
  EXPECT_EQ(FormatNumber(Float64(row.number), row.pattern), row.text) << row.number;
}

constexpr WideRow kFixed[] = {
    {0.0, "0", "0"},
    {0.0, "0.00", "0.00"},
    {0.0, "0.0000", "0.0000"},
    {7.0, "0", "7"},
    {7.0, "0.0", "7.0"},
    {1200.0, "0.00", "1200.00"},
    {1600000.0, "0", "1600000"},
    {0.05, "0.00", "0.05"},
    {0.05, "0.0000", "0.0500"},
    {12.3456, "0.0000", "12.3456"},
    {-3.25, "0.00", "-3.25"},
    {7.0, "00.0", "07.0"},
    {123.0, "00.0", "123.0"},
};
INSTANTIATE_TEST_SUITE_P(Fixed, WidePattern, testing::ValuesIn(kFixed));

// A five behind the last place rounds away from zero; what counts is the number as a person reads
// it, not its binary neighbour (2.675 is stored as 2.67499999999999982...).
constexpr WideRow kHalves[] = {
    {0.5, "0", "1"},
    {1.5, "0", "2"},
    {2.5, "0", "3"},
    {-0.5, "0", "-1"},
    {-2.5, "0", "-3"},
    {5.25, "0.0", "5.3"},
    {-5.25, "0.0", "-5.3"},
    {5.35, "0.0", "5.4"},
    {0.125, "0.00", "0.13"},
    {2.675, "0.00", "2.68"},
    {1.005, "0.00", "1.01"},
    {1.4375, "0.00", "1.44"},
    {0.0005, "0.000", "0.001"},
    {0.4999, "0", "0"},
    {2.4999, "0", "2"},
    {2.674999, "0.00", "2.67"},
};
INSTANTIATE_TEST_SUITE_P(Halves, WidePattern, testing::ValuesIn(kHalves));

constexpr WideRow kCarries[] = {
    {9.995, "0.00", "10.00"},   {99.995, "0.00", "100.00"}, {0.995, "0.00", "1.00"},
    {0.05, "0.0", "0.1"},       {0.95, "0.0", "1.0"},       {0.9, "0", "1"},
    {-9.996, "0.00", "-10.00"}, {999.5, "0", "1000"},       {1999.995, "0.00", "2000.00"},
};
INSTANTIATE_TEST_SUITE_P(Carries, WidePattern, testing::ValuesIn(kCarries));

constexpr WideRow kNoSignForZero[] = {
    {-0.0, "0.00", "0.00"},         {-0.001, "0.00", "0.00"},
    {-0.0049, "0.00", "0.00"},      {-0.4, "0", "0"},
    {-0.04, "0.0", "0.0"},          {-1e-300, "0.0000", "0.0000"},
    {-0.0, "0.00E+00", "0.00E+00"}, {-0.004, "##0.##", "0."},
    {-0.005, "0.00", "-0.01"},      {-0.05, "0.0", "-0.1"},
};
INSTANTIATE_TEST_SUITE_P(NoSignForZero, WidePattern, testing::ValuesIn(kNoSignForZero));

// '#' prints a digit only where there is one; the point stays.
constexpr WideRow kOptionalDigits[] = {
    {0.0, "##0.##", "0."},     {5.0, "##0.##", "5."},        {0.5, "##0.##", "0.5"},
    {0.25, "##0.##", "0.25"},  {0.255, "##0.##", "0.26"},    {10.0, "##0.##", "10."},
    {100.0, "##0.##", "100."}, {1234.5, "##0.##", "1234.5"}, {0.999, "##0.##", "1."},
    {0.104, "##0.##", "0.1"},  {-5.1, "##0.##", "-5.1"},     {0.5, "#.##", ".5"},
    {0.0, "#.##", "."},        {3.14159, "0.0##", "3.142"},  {3.0, "0.0##", "3.0"},
    {3.101, "0.0##", "3.101"},
};
INSTANTIATE_TEST_SUITE_P(OptionalDigits, WidePattern, testing::ValuesIn(kOptionalDigits));

constexpr WideRow kExponents[] = {
    {0.0, "0.00E+00", "0.00E+00"},       {1.0, "0.00E+00", "1.00E+00"},
    {1600000.0, "0.00E+00", "1.60E+06"}, {1000000.0, "0.00E+00", "1.00E+06"},
    {12345.0, "0.00E+00", "1.23E+04"},   {12355.0, "0.00E+00", "1.24E+04"},  // half away from zero
    {0.00123, "0.00E+00", "1.23E-03"},   {-0.00123, "0.00E+00", "-1.23E-03"},
    {999500.0, "0.00E+00", "1.00E+06"},  // the carry reaches the exponent
    {999400.0, "0.00E+00", "9.99E+05"},  {9.995, "0.00E+00", "1.00E+01"},
    {0.09996, "0.00E+00", "1.00E-01"},   {9.5e99, "0E+00", "1E+100"},
    {1e120, "0.00E+00", "1.00E+120"},    {5.0, "0E+0", "5E+0"},
    {1600000.0, "0.00e+00", "1.60e+06"}, {0.00123, "0.0e+00", "1.2e-03"},
};
INSTANTIATE_TEST_SUITE_P(Exponents, WidePattern, testing::ValuesIn(kExponents));

// Of a 64-bit number 15 digits count.
constexpr WideRow kFifteenDigits[] = {
    {0.1 + 0.2, "0.00000000000000000", "0.30000000000000000"},
    {123456789012345678.0, "0", "123456789012346000"},
    {1.0 / 3.0, "0.0000000000000000", "0.3333333333333330"},
    {1e22, "0", "10000000000000000000000"},
    {0.285, "0.00", "0.29"},
    {100.285, "0.00", "100.29"},
};
INSTANTIATE_TEST_SUITE_P(FifteenDigits, WidePattern, testing::ValuesIn(kFifteenDigits));

// 32-bit numbers: 7 digits count, but where a pattern shows 7 or more all that the number holds.

struct NarrowRow {
  float number;
  const char* pattern;
  const char* text;
};

class NarrowPattern : public testing::TestWithParam<NarrowRow> {};

TEST_P(NarrowPattern, Shows) {
  const NarrowRow& row = GetParam();
  EXPECT_EQ(FormatNumber(row.number, row.pattern), row.text) << row.number;
  EXPECT_EQ(FormatNumber(Float32(row.number), row.pattern), row.text) << row.number;
}

constexpr NarrowRow kSevenDigits[] = {
    {0.125f, "0.00", "0.13"},
    {5.25f, "0.0", "5.3"},
    {2.675f, "0.00", "2.68"},         // stored as 2.67499995...
    {1.005f, "0.00", "1.01"},         // stored as 1.00499999...
    {1.15f * 1.5f, "0.00", "1.73"},   // 1.725 at seven digits, below it in the eighth
    {9999.995f, "0.00", "10000.00"},  // 9999.995 has seven digits, its five rounds away from zero
    {1600000.0f, "0.00E+00", "1.60E+06"},
    {1e38f, "0.00E+00", "1.00E+38"},
    {1e-38f, "0.00E+00", "1.00E-38"},
    {-0.0f, "0.00", "0.00"},
    {-0.001f, "0.00", "0.00"},
    {121.2121f, "0.00", "121.21"},
};
INSTANTIATE_TEST_SUITE_P(SevenDigits, NarrowPattern, testing::ValuesIn(kSevenDigits));

// The shortest decimal that reads back as the same number: neighbours of 123456.79 are 0.0078125
// apart, those of 16777216 are 2 apart above it, those of a third 0.00000003.
constexpr NarrowRow kAllDigits[] = {
    {123456.79f, "0.00", "123456.79"},
    {-123456.79f, "0.00", "-123456.79"},
    {123456.79f, "0.0", "123456.8"},
    {123456.79f, "0", "123457"},
    {12345.679f, "0.00", "12345.68"},
    {99999.99f, "0.00", "99999.99"},
    {99999.997f, "0.00", "100000.00"},
    {16777216.0f, "0", "16777216"},
    {16777216.0f, "0.00", "16777216.00"},
    {16777216.0f, "##0.##", "16777216."},
    {2500000.5f, "0.00", "2500000.50"},
    {1234567.0f, "0.00000E+00", "1.23457E+06"},
    {12345678.0f, "0.0000000E+00", "1.2345678E+07"},
    {0.1f, "0.0000000000", "0.1000000000"},
    {1.0f / 3.0f, "0.0000000000", "0.3333333400"},
    {2.0f / 3.0f, "0.0000000000", "0.6666667000"},
    {1.0f / 3.0f, "0.000000", "0.333333"},
};
INSTANTIATE_TEST_SUITE_P(AllDigits, NarrowPattern, testing::ValuesIn(kAllDigits));

/// "0.00" of so many thousandths, by whole numbers alone.
std::string Hundredths(int thousandths) {
  const int hundredths = (thousandths + 5) / 10;
  return std::to_string(hundredths / 100) + "." + std::to_string(100 + hundredths % 100).substr(1);
}

TEST(NumberPattern, EveryThousandthRoundsHalfAwayFromZero) {
  for (int thousandths = 5; thousandths < 9999999; thousandths += 1235) {
    const std::string text = Hundredths(thousandths);
    EXPECT_EQ(FormatNumber(thousandths / 1000.0, "0.00"), text);
    EXPECT_EQ(FormatNumber(-thousandths / 1000.0, "0.00"), "-" + text);
    // Seven digits are exact in 32 bits up to here.
    EXPECT_EQ(FormatNumber(static_cast<float>(thousandths / 1000.0), "0.00"), text);
  }
}

TEST(NumberPattern, WhatIsShownReadsBackAsShown) {
  for (const char* pattern : {"0", "0.0", "0.00", "0.0000", "0.00E+00", "##0.##"}) {
    for (double number = -2000.0; number <= 2000.0; number += 13.37) {
      const std::string shown = FormatNumber(number, pattern);
      EXPECT_EQ(FormatNumber(Float64(ReadNumber(shown)), pattern), shown) << pattern;
    }
  }
}

TEST(NumberPattern, ExponentHasTheCaseOfThePattern) {
  EXPECT_EQ(FormatNumber(1625000.0, "0.00E+00"), "1.63E+06");
  EXPECT_EQ(FormatNumber(1625000.0, "0.00e+00"), "1.63e+06");
  EXPECT_EQ(FormatNumber(0.004, "0.00e+00"), "4.00e-03");
}

}  // namespace
}  // namespace lignara
