// Lists and ranges of values.

#include "desktop/session/variant_values.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

struct Values {
  const char* text;
  const char* values;  ///< with a blank between; empty: refused
};

class ParseValuesTest : public testing::TestWithParam<Values> {};

TEST_P(ParseValuesTest, GivesListsAndRanges) {
  QString refusal;
  EXPECT_EQ(FromQt(ParseValues(GetParam().text, refusal).join(' ')), GetParam().values);
  EXPECT_EQ(refusal.isEmpty(), *GetParam().values != '\0');
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseValuesTest,
    testing::Values(Values{"20..40 step 5", "20 25 30 35 40"}, Values{"1..4", "1 2 3 4"},
                    Values{"20..41 step 10", "20 30 40"},
                    Values{"0..0.3 step 0.1", "0.0 0.1 0.2 0.3"},
                    Values{"10..4 step -2", "10 8 6 4"}, Values{"30", "30"},
                    Values{"20, 24 ,30.5", "20 24 30.5"}, Values{"7..7", "7"}, Values{"", ""},
                    Values{",", ""}, Values{"1..2 step 0", ""}, Values{"2..1", ""},
                    Values{"20..40 Step10", "20 30 40"},
                    Values{"-0.9..0.9 step 0.9", "-0.9 0.0 0.9"}, Values{"0..1e9", ""},
                    Values{"20..40 by 2", ""}, Values{"20..40 step", ""}, Values{"..40", ""},
                    Values{"20...24", ""},
                    Values{"20\u2026"
                           "40",
                           ""},
                    Values{"20..30 step 5, 40", ""}, Values{"0..1 step 0.00001", ""}));

TEST(ValuesInWords, TellsHowManyAndWhich) {
  EXPECT_EQ(FromQt(ValuesInWords("30")), "1 value: 30");
  EXPECT_EQ(FromQt(ValuesInWords("1..6")), "6 values: 1, 2, 3, 4, 5, 6");
  EXPECT_EQ(FromQt(ValuesInWords("1..7")), "7 values: 1, 2, 3 ... 7");
}

TEST(ValuesInWords, TellsWhyThereAreNone) {
  EXPECT_EQ(FromQt(ValuesInWords(" ")), "") << "nothing was entered yet";
  EXPECT_EQ(FromQt(ValuesInWords(",")), "there are no values");
  EXPECT_EQ(FromQt(ValuesInWords("0..1e9")), "a range is written 20..40 step 2");
  EXPECT_EQ(FromQt(ValuesInWords("2..1")),
            "the range has no values: its step does not lead to its end");
}

}  // namespace
}  // namespace lignara
