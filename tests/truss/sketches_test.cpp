#include "truss/sketches.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/support/drawn_shapes.h"

namespace lignara {
namespace {

const char* const kTypes[] = {"PRATT1", "FINK",   "ENGLISH", "KINGPOST",
                              "SCI",    "PRATT2", "HOWE",    "WARREN"};

void ExpectInside(const Drawing& drawing, const std::string& name) {
  for (const LineShape& line : DrawnLines(drawing, Colour::Black)) {
    for (const double x : {line.x1, line.x2}) {
      EXPECT_GE(x, 0) << name;
      EXPECT_LE(x, drawing.width) << name;
    }
    for (const double y : {line.y1, line.y2}) {
      EXPECT_GE(y, 0) << name;
      EXPECT_LE(y, drawing.height) << name;
    }
  }
  for (const Shape& shape : drawing.shapes) {
    const auto* text = std::get_if<TextShape>(&shape);
    if (text == nullptr) continue;
    EXPECT_GE(text->x, 0) << name << text->text;
    EXPECT_LE(text->x + 110.0 * static_cast<double>(text->text.size()), drawing.width)
        << name << text->text;
    EXPECT_LE(text->y + drawing.textHeight, drawing.height) << name << text->text;
  }
}

// Six panels: chords 12, diagonals and verticals by type; the fixed shapes as they are.
TEST(TypePicture, ShowsTheMembersOfTheTypeAndNothingElse) {
  const std::pair<const char*, std::size_t> members[] = {
      {"PRATT1", 21}, {"ENGLISH", 21}, {"FINK", 20}, {"KINGPOST", 5},
      {"SCI", 9},     {"PRATT2", 25},  {"HOWE", 25}, {"WARREN", 20},
  };
  for (const auto& [type, count] : members) {
    const Drawing picture = TypePicture(type);
    EXPECT_EQ(picture.shapes.size(), count) << type;
    EXPECT_EQ(DrawnLines(picture, Colour::Black).size(), count) << type;
    ExpectInside(picture, type);
  }
}

TEST(TypePicture, NoTwoTypesLookAlike) {
  std::set<std::vector<std::vector<double>>> pictures;
  for (const char* type : kTypes) {
    std::vector<std::vector<double>> lines;
    for (const LineShape& line : DrawnLines(TypePicture(type), Colour::Black)) {
      lines.push_back({line.x1, line.y1, line.x2, line.y2});
    }
    std::sort(lines.begin(), lines.end());
    EXPECT_TRUE(pictures.insert(lines).second) << type;
  }
}

TEST(TypePicture, IsTrueToShape) {
  // A king post of 30 ft by 9 ft: the rafter rises 3 in 5.
  const LineShape rafter = DrawnLines(TypePicture("KINGPOST"), Colour::Black)[0];
  EXPECT_DOUBLE_EQ((rafter.y1 - rafter.y2) / (rafter.x2 - rafter.x1), 0.6);
}

TEST(TypePicture, KeywordThatIsNoTypeShowsNothing) {
  EXPECT_TRUE(TypePicture("BOWSTRING").shapes.empty());
  EXPECT_TRUE(ExampleSketch("BOWSTRING").shapes.empty());
}

TEST(ExampleSketch, NamesItsDimensions) {
  for (const char* type : kTypes) {
    const Drawing sketch = ExampleSketch(type);
    std::vector<std::string> expected = {"Total Length", "H"};
    if (std::string(type) == "SCI") expected.push_back("H1");
    EXPECT_EQ(DrawnTexts(sketch), expected) << type;
    EXPECT_FALSE(DrawnLines(sketch, Colour::Gray).empty()) << type;
    EXPECT_EQ(DrawnLines(sketch, Colour::Black).size(), TypePicture(type).shapes.size()) << type;
    ExpectInside(sketch, type);
  }
}

// The total length is measured from heel to heel, below the truss.
TEST(ExampleSketch, DimensionLineRunsBetweenTheSupports) {
  const Drawing sketch = ExampleSketch("KINGPOST");
  const auto members = DrawnLines(sketch, Colour::Black);
  const LineShape& leftRafter = members[0];
  const LineShape& rightRafter = members[1];
  const LineShape length = DrawnLines(sketch, Colour::Gray)[0];
  EXPECT_EQ(length.x1, leftRafter.x1);
  EXPECT_EQ(length.x2, rightRafter.x1);
  EXPECT_EQ(length.y1, length.y2);
  EXPECT_GT(length.y1, leftRafter.y1);
}

TEST(SlopeSketch, IsARightTriangleWithRiseAndRun) {
  const Drawing sketch = SlopeSketch();
  EXPECT_EQ(DrawnTexts(sketch), (std::vector<std::string>{"Rise", "Run"}));
  const auto lines = DrawnLines(sketch, Colour::Black);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].y1, lines[0].y2);  // the run is level
  EXPECT_EQ(lines[1].x1, lines[1].x2);  // the rise upright
  EXPECT_EQ(lines[2].x2, lines[0].x1);  // and the slope closes
  EXPECT_EQ(lines[2].y1, lines[1].y2);
  ExpectInside(sketch, "slope");
}

}  // namespace
}  // namespace lignara
