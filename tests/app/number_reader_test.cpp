#include "app/number_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <locale>
#include <random>
#include <sstream>
#include <string>

namespace lignara {
namespace {

struct ReaderRow {
  const char* text;
  double value;
};

class NumberReader : public testing::TestWithParam<ReaderRow> {};

TEST_P(NumberReader, TakesTheLongestNumericPrefix) {
  const Number read = ReadNumber(GetParam().text);
  EXPECT_EQ(read.fault(), Fault::None);
  EXPECT_EQ(read.value(), GetParam().value);
}

constexpr ReaderRow kWholeTexts[] = {
    {"0", 0.0},       {"7", 7.0},    {"007", 7.0},    {"30", 30.0},       {"7.5", 7.5},
    {"0.125", 0.125}, {".5", 0.5},   {"5.", 5.0},     {"-.5", -0.5},      {"+.5", 0.5},
    {"-12", -12.0},   {"+12", 12.0}, {"1e3", 1000.0}, {"1E3", 1000.0},    {"1e+3", 1000.0},
    {"25e-2", 0.25},  {".5e1", 5.0}, {"5.e1", 50.0},  {"-2.5E2", -250.0}, {"1.60E+06", 1600000.0},
};
INSTANTIATE_TEST_SUITE_P(WholeTexts, NumberReader, testing::ValuesIn(kWholeTexts));

constexpr ReaderRow kPrefixes[] = {
    {"1,000", 1.0},    // a comma groups nothing and is no decimal sign
    {"2,75", 2.0},     //
    {"1 000", 1.0},    // a blank ends the number
    {"12 ft", 12.0},   //
    {"7.5ft", 7.5},    //
    {"1.2.3", 1.2},    // only one point
    {"1e", 1.0},       // an exponent needs a digit
    {"1e+", 1.0},      //
    {"1e-", 1.0},      //
    {"1e x", 1.0},     //
    {"1e2e3", 100.0},  //
    {"1e2.5", 100.0},  // a whole exponent
    {"1f", 1.0},       //
    {"5-3", 5.0},      //
    {"0x10", 0.0},     // no other bases
    {"3\xC2\xBD", 3.0},
};
INSTANTIATE_TEST_SUITE_P(Prefixes, NumberReader, testing::ValuesIn(kPrefixes));

constexpr ReaderRow kBlanks[] = {
    {"  4", 4.0}, {"\t4", 4.0}, {" \t -4 ", -4.0}, {"4  ", 4.0}, {"- 4", 0.0}, {"+ 4", 0.0},
};
INSTANTIATE_TEST_SUITE_P(Blanks, NumberReader, testing::ValuesIn(kBlanks));

constexpr ReaderRow kNoNumber[] = {
    {"", 0.0},         {" ", 0.0},   {"   \t", 0.0}, {"abc", 0.0}, {"-", 0.0},
    {"+", 0.0},        {".", 0.0},   {"-.", 0.0},    {"..5", 0.0}, {"e5", 0.0},
    {".e5", 0.0},      {"--5", 0.0}, {"+-5", 0.0},   {"inf", 0.0}, {"-inf", 0.0},
    {"INFINITY", 0.0}, {"nan", 0.0}, {",5", 0.0},    {"$5", 0.0},  {"x10", 0.0},
};
INSTANTIATE_TEST_SUITE_P(NoNumber, NumberReader, testing::ValuesIn(kNoNumber));

TEST(NumberReaderRange, TooLargeForSixtyFourBitsIsAnOverflow) {
  const std::string digits(400, '9');
  for (const std::string& text :
       {std::string("1e999"), std::string("-1e999"), std::string("1e309"), digits, "-" + digits,
        digits + "e-5", digits + ".5e+5", std::string("1e99999999999999999999")}) {
    EXPECT_EQ(ReadNumber(text).fault(), Fault::Overflow) << text;
  }
}

TEST(NumberReaderRange, TooNearToZeroIsZero) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("1e-999"), std::string("-1e-999"), "0." + zeros + "1", "." + zeros + "1",
        "0." + zeros + "1e5", "0." + zeros + "1E5", "0." + zeros + "1e+5", "0." + zeros + "1E+5",
        std::string("1E-999"), std::string("1e-99999999999999999999")}) {
    const Number read = ReadNumber(text);
    EXPECT_EQ(read.fault(), Fault::None) << text;
    EXPECT_EQ(read.value(), 0.0) << text;
  }
}

TEST(NumberReaderRange, ZeroIsZeroWhateverItsExponent) {
  for (const char* text : {"0e999", "0.000e999", "0e-999", "-0e99999999999999999999"}) {
    const Number read = ReadNumber(text);
    EXPECT_EQ(read.fault(), Fault::None) << text;
    EXPECT_EQ(read.value(), 0.0) << text;
  }
}

TEST(NumberReaderRange, LongTextsThatFitAreRead) {
  const std::string zeros(400, '0');
  EXPECT_EQ(ReadNumber("1" + zeros + "e-400").value(), 1.0);
  EXPECT_EQ(ReadNumber("0." + zeros + "1e401").value(), 1.0);
  EXPECT_EQ(ReadNumber(zeros + "12").value(), 12.0);
  EXPECT_EQ(ReadNumber("12." + zeros).value(), 12.0);
}

TEST(NumberReader, TellsWhetherATextStartsWithANumber) {
  for (const char* text : {"7", " \t7", "-.5", "+2", ".25", "-3 psi", "5.", "1e"}) {
    EXPECT_TRUE(StartsWithNumber(text)) << text;
  }
  for (const char* text : {"", " ", "abc", "-", ".", "-.", "+-1", "e5", "- 1", "x7"}) {
    EXPECT_FALSE(StartsWithNumber(text)) << text;
  }
}

TEST(NumberReader, ReadsEveryHundredthBack) {
  for (int hundredths = -20000; hundredths <= 20000; hundredths += 7) {
    const int size = hundredths < 0 ? -hundredths : hundredths;
    const std::string places = std::to_string(100 + size % 100).substr(1);
    const std::string text =
        (hundredths < 0 ? "-" : "") + std::to_string(size / 100) + "." + places;
    EXPECT_EQ(ReadNumber(text).value(), hundredths / 100.0) << text;
  }
}

/// The number of the longest prefix that a stream of the standard library reads to its end.
double ReadByStream(const std::string& text) {
  for (std::size_t length = text.size(); length > 0; --length) {
    std::istringstream stream(text.substr(0, length));
    stream.imbue(std::locale::classic());
    double value = 0.0;
    if (stream >> value && stream.eof()) return value;
  }
  return 0.0;
}

TEST(NumberReader, AgreesWithStreamsOnRandomTexts) {
  // Two exponent digits at most keep the numbers inside 64 bits.
  const std::string letters = "0123456789..+-eE ,x";
  std::mt19937 random(20240611);
  std::uniform_int_distribution<std::size_t> letter(0, letters.size() - 1);
  std::uniform_int_distribution<int> length(0, 7);
  int numbers = 0;
  for (int i = 0; i < 5000; ++i) {
    std::string text;
    for (int left = length(random); left > 0; --left) text += letters[letter(random)];
    const std::size_t mark = text.find_first_of("eE");
    if (mark != std::string::npos) text.resize(std::min(text.size(), mark + 3));
    const double expected = ReadByStream(text);
    EXPECT_EQ(ReadNumber(text).value(), expected) << '"' << text << '"';
    numbers += expected != 0.0;
  }
  EXPECT_GT(numbers, 1000);
}

}  // namespace
}  // namespace lignara
