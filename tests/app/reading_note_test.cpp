// What a user is told of a text that is not wholly a number.

#include <gtest/gtest.h>

#include "app/number_reader.h"

namespace lignara {
namespace {

TEST(ReadingNote, TellsThePartThatCounts) {
  EXPECT_EQ(ReadingNote("1,200"), "read as 1");
  EXPECT_EQ(ReadingNote("12 ft"), "read as 12");
  EXPECT_EQ(ReadingNote("1.5.2"), "read as 1.5");
  EXPECT_EQ(ReadingNote("-3 1/2"), "read as -3");
  EXPECT_EQ(ReadingNote("+7x"), "read as +7");
  EXPECT_EQ(ReadingNote("2e"), "read as 2");
  EXPECT_EQ(ReadingNote("  4 x"), "read as 4");
}

TEST(ReadingNote, TellsOfATextWithoutANumberThatItIsZero) {
  for (const char* text : {"abc", "-", "+", ".", "$100", "-x", ",5"}) {
    EXPECT_EQ(ReadingNote(text), "read as 0") << text;
  }
}

TEST(ReadingNote, SaysNothingOfANumber) {
  for (const char* text : {"0", "1200", "-3.5", "+2", ".5", "5.", "1.6E+06", "1e3", "007"}) {
    EXPECT_EQ(ReadingNote(text), "") << text;
  }
}

TEST(ReadingNote, PassesOverBlanksAroundANumber) {
  EXPECT_EQ(ReadingNote("   2"), "");
  EXPECT_EQ(ReadingNote("12  "), "");
  EXPECT_EQ(ReadingNote("\t8\t"), "");
}

TEST(ReadingNote, SaysNothingWhereNothingWasEntered) {
  EXPECT_EQ(ReadingNote(""), "");
  EXPECT_EQ(ReadingNote("   "), "");
}

}  // namespace
}  // namespace lignara
