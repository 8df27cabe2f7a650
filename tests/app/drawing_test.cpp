#include "app/drawing.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace lignara {
namespace {

TEST(Colours, BearTheNameThatAUserWouldSay) {
  EXPECT_STREQ(ColourName(Colour::Black), "black");
  EXPECT_STREQ(ColourName(Colour::Red), "red");
  EXPECT_STREQ(ColourName(Colour::Blue), "blue");
  EXPECT_STREQ(ColourName(Colour::Gray), "gray");
  EXPECT_STREQ(ColourName(Colour::RoyalBlue), "royalblue");
  EXPECT_STREQ(ColourName(Colour::DarkOrange), "darkorange");
}

TEST(Colours, HaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Colour colour : {Colour::Black, Colour::Red, Colour::Blue, Colour::Gray,
                              Colour::RoyalBlue, Colour::DarkOrange}) {
    names.insert(ColourName(colour));
  }
  EXPECT_EQ(names.size(), 6u);
}

TEST(Shapes, AreBlackUnlessToldOtherwise) {
  EXPECT_EQ(LineShape().colour, Colour::Black);
  EXPECT_EQ(CircleShape().colour, Colour::Black);
  EXPECT_EQ(TextShape().colour, Colour::Black);
}

}  // namespace
}  // namespace lignara
