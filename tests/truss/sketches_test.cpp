#include "truss/sketches.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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

// All pictures are 30 ft long, 100 units a foot, with a margin of 200 units.
TEST(TypePicture, IsAsHighAsItsType) {
  for (const char* type : kTypes) {
    const bool flat = std::set<std::string>{"PRATT2", "HOWE", "WARREN"}.count(type) > 0;
    const double feet = flat ? 5 : std::string(type) == "SCI" ? 10 : 9;
    EXPECT_EQ(TypePicture(type).width, 3400) << type;
    EXPECT_EQ(TypePicture(type).height, 400 + 100 * feet) << type;
  }
}

bool HasLine(const Drawing& drawing, Colour colour, const LineShape& sought) {
  const auto near = [](double a, double b) { return std::fabs(a - b) < 0.01; };
  const auto lines = DrawnLines(drawing, colour);
  return std::any_of(lines.begin(), lines.end(), [&](const LineShape& line) {
    return near(line.x1, sought.x1) && near(line.y1, sought.y1) && near(line.x2, sought.x2) &&
           near(line.y2, sought.y2);
  });
}

// Heels at (200, 1200) and (3200, 1200), peak 10 ft and inner apex 4 ft above midspan. The bottom
// chord of the other half, drawn on in line, meets the rafter at a run r of the heel where
// r x 10/15 = 4 + (15 - r) x 4/15: r = 8.5714 and 5.7143 ft high.
TEST(TypePicture, ScissorsCrossAtTheInnerHeight) {
  const Drawing picture = TypePicture("SCI");
  const Colour black = Colour::Black;
  EXPECT_TRUE(HasLine(picture, black, {200, 1200, 1700, 800}));  // bottom chords
  EXPECT_TRUE(HasLine(picture, black, {3200, 1200, 1700, 800}));
  EXPECT_TRUE(HasLine(picture, black, {1700, 800, 1057.143, 628.571}));  // webs
  EXPECT_TRUE(HasLine(picture, black, {1700, 800, 2342.857, 628.571}));
  EXPECT_TRUE(HasLine(picture, black, {200, 1200, 1057.143, 628.571}));  // rafter in two pieces
  EXPECT_TRUE(HasLine(picture, black, {1057.143, 628.571, 1700, 200}));
  EXPECT_TRUE(HasLine(picture, black, {1700, 800, 1700, 200}));  // post
}

// A web of a Fink stands square on the rafter, which rises 9 in 15: from the bottom node at 5 ft
// its head is 5/(1 + 0.36) = 3.6765 ft from the heel and 0.6 of that high.
TEST(TypePicture, WebsOfAFinkAreSquareToTheRafter) {
  EXPECT_TRUE(HasLine(TypePicture("FINK"), Colour::Black, {700, 1100, 567.647, 879.412}));
}

// One panel in a half: a king post's tie reaches from the heel to midspan.
TEST(TypePicture, KingPostHasOnePanelInAHalf) {
  EXPECT_TRUE(HasLine(TypePicture("KINGPOST"), Colour::Black, {200, 1100, 1700, 1100}));
  EXPECT_TRUE(HasLine(TypePicture("KINGPOST"), Colour::Black, {200, 1100, 1700, 200}));
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

/// The place of a text in a picture.
std::pair<double, double> PlaceOf(const Drawing& drawing, const std::string& name) {
  for (const Shape& shape : drawing.shapes) {
    const auto* text = std::get_if<TextShape>(&shape);
    if (text != nullptr && text->text == name) return {text->x, text->y};
  }
  return {-1, -1};
}

// Dimension lines stand 250 units off the truss, with ticks of 60 units to either side; letters are
// 110 wide and 220 high.
TEST(ExampleSketch, TotalLengthIsNamedBelowTheMiddle) {
  const Drawing sketch = ExampleSketch("PRATT1");
  EXPECT_TRUE(HasLine(sketch, Colour::Gray, {200, 1350, 3200, 1350}));
  EXPECT_TRUE(HasLine(sketch, Colour::Gray, {200, 1290, 200, 1410}));
  EXPECT_TRUE(HasLine(sketch, Colour::Gray, {3200, 1290, 3200, 1410}));
  EXPECT_EQ(PlaceOf(sketch, "Total Length"), (std::pair<double, double>{1700 - 6 * 110, 1410}));
}

TEST(ExampleSketch, HeightIsLedOutToTheRight) {
  const Drawing peaked = ExampleSketch("PRATT1");
  EXPECT_TRUE(HasLine(peaked, Colour::Gray, {1760, 200, 3450, 200}));   // from the peak
  EXPECT_TRUE(HasLine(peaked, Colour::Gray, {3450, 200, 3450, 1100}));  // 9 ft
  EXPECT_EQ(PlaceOf(peaked, "H"), (std::pair<double, double>{3510, 650 - 110}));
  const Drawing flat = ExampleSketch("HOWE");
  EXPECT_TRUE(HasLine(flat, Colour::Gray, {3260, 200, 3450, 200}));  // from the corner
  EXPECT_TRUE(HasLine(flat, Colour::Gray, {3450, 200, 3450, 700}));  // 5 ft
}

TEST(ExampleSketch, InnerHeightIsMeasuredAtMidspan) {
  const Drawing sketch = ExampleSketch("SCI");
  EXPECT_TRUE(HasLine(sketch, Colour::Gray, {1700, 800, 1700, 1200}));  // 4 ft
  EXPECT_EQ(PlaceOf(sketch, "H1"), (std::pair<double, double>{1760, 1000 - 110}));
}

// 12 by 5, with the names of its sides beside their middles.
TEST(SlopeSketch, NamesStandBesideTheirSides) {
  const Drawing sketch = SlopeSketch();
  EXPECT_TRUE(HasLine(sketch, Colour::Black, {200, 700, 1400, 700}));
  EXPECT_TRUE(HasLine(sketch, Colour::Black, {1400, 700, 1400, 200}));
  EXPECT_EQ(PlaceOf(sketch, "Rise"), (std::pair<double, double>{1460, 450 - 110}));
  EXPECT_EQ(PlaceOf(sketch, "Run"), (std::pair<double, double>{800 - 1.5 * 110, 760}));
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
