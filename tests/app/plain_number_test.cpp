// Numbers as a user would type them.

#include "app/plain_number.h"

#include <gtest/gtest.h>

#include <string>

#include "app/number_reader.h"

namespace lignara {
namespace {

struct PlainRow {
  float number;
  const char* text;
};

class PlainText : public testing::TestWithParam<PlainRow> {};

TEST_P(PlainText, IsAsAUserWouldTypeIt) {
  EXPECT_EQ(PlainNumber(Float32(GetParam().number)), GetParam().text);
}

constexpr PlainRow kPlain[] = {
    {0.0f, "0"},
    {-0.0f, "0"},
    {1.0f, "1"},
    {100.0f, "100"},
    {-100.0f, "-100"},
    {0.5f, "0.5"},
    {-2.75f, "-2.75"},
    {33.333333f, "33.33333"},
    {0.1f, "0.1"},
    {1234567.0f, "1234567"},
    {1000000.0f, "1000000"},
    {9999999.0f, "9999999"},
    {12345678.0f, "1.234568E+07"},
    {10000000.0f, "1E+07"},
    {1.5e9f, "1.5E+09"},
    {0.0001f, "0.0001"},
    {0.00001f, "1E-05"},
    {0.000125f, "0.000125"},
    {-1.5e-9f, "-1.5E-09"},
};
INSTANTIATE_TEST_SUITE_P(Plain, PlainText, testing::ValuesIn(kPlain));

TEST(PlainNumber, OfA64BitNumberHasUpTo15Digits) {
  EXPECT_EQ(PlainNumber(Float64(0.0)), "0");
  EXPECT_EQ(PlainNumber(Float64(100.1)), "100.1");
  EXPECT_EQ(PlainNumber(Float64(-12345678.5)), "-12345678.5");
  EXPECT_EQ(PlainNumber(Float64(1.0 / 3.0)), "0.333333333333333");
  EXPECT_EQ(PlainNumber(Float64(1e15)), "1E+15");
}

TEST(PlainNumber, ReadsBackAsTheSameSevenDigits) {
  for (float number = 1e-6f; number < 1e9f; number *= 1.37f) {
    const Float32 stored(number);
    const std::string text = PlainNumber(stored);
    EXPECT_EQ(PlainNumber(Float32(ReadNumber(text))), text);
    EXPECT_NEAR(ReadNumber(text).value() / static_cast<double>(number), 1.0, 5e-7) << text;
  }
}

}  // namespace
}  // namespace lignara
