#include "multispan/beam_sketch.h"

#include <algorithm>

#include "multispan/diagrams.h"
#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

template <typename Kind>
std::vector<Kind> All(const Drawing& drawing) {
  std::vector<Kind> found;
  for (const Shape& shape : drawing.shapes) {
    if (const auto* kind = std::get_if<Kind>(&shape)) found.push_back(*kind);
  }
  return found;
}

std::vector<std::string> TextsOf(const Drawing& drawing) {
  std::vector<std::string> texts;
  for (const TextShape& text : All<TextShape>(drawing)) texts.push_back(text.text);
  return texts;
}

bool Shows(const Drawing& drawing, const std::string& text) {
  const auto texts = TextsOf(drawing);
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::ptrdiff_t Lines(const Drawing& drawing, Colour colour) {
  const auto lines = All<LineShape>(drawing);
  return std::count_if(lines.begin(), lines.end(),
                       [&](const LineShape& line) { return line.colour == colour; });
}

class BeamSketch : public MultiSpanTest {
 protected:
  const Drawing& Picture() { return window.picture; }
  /// The spans along the beam: the level lines at its height.
  std::vector<LineShape> Spans() {
    std::vector<LineShape> spans = All<LineShape>(Picture());
    const double beam = All<CircleShape>(Picture()).front().y - 50;
    std::erase_if(spans, [&](const LineShape& l) { return l.y1 != l.y2 || l.y1 != beam; });
    return spans;
  }
};

// 51 spans are too short for a value of their own: neighbours with the same load share one.
TEST_F(BeamSketch, LettersAUniformLoadOnceOverShortSpansThatBearTheSame) {
  Open(51);
  for (int j = 1; j <= 51; ++j) EnterSpan(10, j <= 30 ? 1250 : 2000);
  const std::vector<std::string> texts = TextsOf(Picture());
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "1250"), 1);
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "2000"), 1);
}

TEST_F(BeamSketch, LettersAUniformLoadOverEachSpanThatHasRoom) {
  Open(3);
  for (int j = 1; j <= 3; ++j) EnterSpan(10, 120);
  const std::vector<std::string> texts = TextsOf(Picture());
  EXPECT_EQ(std::count(texts.begin(), texts.end(), "120"), 3);
}

TEST_F(BeamSketch, ShowsSpansToScale) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(30, 0);
  const auto spans = Spans();
  ASSERT_EQ(spans.size(), 2u);
  EXPECT_NEAR((spans[1].x2 - spans[1].x1) / (spans[0].x2 - spans[0].x1), 3, 1e-6);
  EXPECT_EQ(spans[0].x2, spans[1].x1);
  EXPECT_TRUE(Shows(Picture(), "10 ft"));
  EXPECT_TRUE(Shows(Picture(), "30 ft"));
}

TEST_F(BeamSketch, ShowsSpansWithoutALengthInGrey) {
  Open(3);
  for (const LineShape& span : Spans()) EXPECT_EQ(span.colour, Colour::Gray);
  EnterSpan(10, 0);
  Next();
  const auto spans = Spans();
  EXPECT_EQ(spans[0].colour, Colour::Black);
  EXPECT_EQ(spans[2].colour, Colour::Gray);
  EXPECT_NEAR(spans[2].x2 - spans[2].x1, spans[0].x2 - spans[0].x1, 1e-6);
}

TEST_F(BeamSketch, CurrentSpanStandsOut) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(10, 0);
  EXPECT_EQ(Spans()[1].colour, Colour::RoyalBlue);
  Previous();
  EXPECT_EQ(Spans()[0].colour, Colour::RoyalBlue);
}

TEST_F(BeamSketch, HasARollerAtEachJoint) {
  Open(5);
  EXPECT_EQ(All<CircleShape>(Picture()).size(), 4u);
}

TEST_F(BeamSketch, ShowsEachFarSupport) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(10, 0);
  Support(FarEnd::Left, EndSupport::None);
  Support(FarEnd::Right, EndSupport::None);
  const auto bare = Picture().shapes.size();
  Support(FarEnd::Left, EndSupport::Pinned);
  EXPECT_EQ(Picture().shapes.size(), bare + 3);
  Support(FarEnd::Left, EndSupport::Fixed);
  EXPECT_GT(Picture().shapes.size(), bare + 3);
}

TEST_F(BeamSketch, ShowsLoadsWithTheirValues) {
  Open(2);
  EnterSpan(10, 125);
  EnterSpan(10, 0);
  Previous();
  EnterLoad("1500", "4");
  EXPECT_GT(Lines(Picture(), Colour::Blue), 3);
  EXPECT_EQ(Lines(Picture(), Colour::Red), 3);
  EXPECT_TRUE(Shows(Picture(), "125"));
  EXPECT_TRUE(Shows(Picture(), "1500"));
}

TEST_F(BeamSketch, ArrowOfAnUpwardLoadPointsUp) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(10, 0);
  EnterLoad("-100", "4");
  const auto lines = All<LineShape>(Picture());
  const auto head = std::find_if(lines.begin(), lines.end(), [](const LineShape& line) {
    return line.colour == Colour::Red && line.x1 != line.x2;
  });
  ASSERT_NE(head, lines.end());
  EXPECT_GT(head->y1, head->y2);
  EXPECT_LT(head->y2, 400);
}

TEST_F(BeamSketch, LoadsThatDoNotCountAreGrey) {
  Open(2);
  EnterSpan(10, 0);
  EnterSpan(10, 0);
  EnterLoad("100", "4");
  ShowNextLoad(window, session);
  EnterLoad("200", "6");
  EXPECT_EQ(Lines(Picture(), Colour::Red), 6);
  ShowPreviousLoad(window, session);
  EnterLoad("0", "4");
  EXPECT_EQ(Lines(Picture(), Colour::Red), 0);
  EXPECT_GE(Lines(Picture(), Colour::Gray), 3);
}

TEST_F(BeamSketch, OfFiftyOneSpansKeepsItsTextsApartAndInside) {
  Open(51);
  for (int j = 0; j < 51; ++j) {
    EnterSpan(10 + j % 3, 100);
    EnterLoad("1000", "5");
  }
  const Drawing& d = Picture();
  const auto texts = All<TextShape>(d);
  for (const TextShape& a : texts) {
    const double width = 0.58 * d.textHeight * static_cast<double>(a.text.size());
    EXPECT_GE(a.x, 0);
    EXPECT_LE(a.x + width, d.width);
    EXPECT_LE(a.y + d.textHeight, d.height);
    for (const TextShape& b : texts) {
      if (&a == &b || a.y != b.y || b.x < a.x) continue;
      EXPECT_GE(b.x, a.x + width) << a.text << " and " << b.text;
    }
  }
  EXPECT_TRUE(Shows(d, "1"));
  EXPECT_TRUE(Shows(d, "51"));
}

// Diagrams.

class Diagrams : public MultiSpanTest {
 protected:
  void Solve() {
    Open(2);
    EnterSpan(10, 120);
    EnterSpan(10, 120);
    Run();
  }
  const MultiSpanSolution& run() { return *session.MultiSpanRun; }
};

TEST_F(Diagrams, AreAsWideAsTheBeamIsLong) {
  Solve();
  const Drawing shear = DrawShearDiagram(run(), std::nullopt);
  const Drawing moment = DrawMomentDiagram(run(), std::nullopt);
  EXPECT_TRUE(shear.stretched);
  EXPECT_TRUE(moment.stretched);
  EXPECT_EQ(shear.width, 20);
  EXPECT_EQ(moment.width, 20);
}

// Neighbouring vertices 0, 450, -750, 750, -450, 0: the largest sum is 750 + 750.
TEST_F(Diagrams, OfShearAreTwiceTheLargestSumHigh) {
  Solve();
  EXPECT_NEAR(DrawShearDiagram(run(), std::nullopt).height, 3000, 0.01);
}

TEST_F(Diagrams, OfMomentAreFourTimesTheLargestHigh) {
  Solve();
  EXPECT_NEAR(DrawMomentDiagram(run(), std::nullopt).height, 6000, 0.1);
}

TEST_F(Diagrams, HaveABaseLineAndALineAtEachJoint) {
  Solve();
  const auto lines = All<LineShape>(DrawShearDiagram(run(), std::nullopt));
  const auto has = [&](const LineShape& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  };
  const double height = DrawShearDiagram(run(), std::nullopt).height;
  EXPECT_TRUE(has({10, 0, 10, height, Colour::Gray}));
  EXPECT_TRUE(has({0, height / 2, 20, height / 2, Colour::Black}));
}

TEST_F(Diagrams, LetterTheirPeaks) {
  Solve();
  EXPECT_EQ(TextsOf(DrawShearDiagram(run(), std::nullopt)),
            (std::vector<std::string>{"750.00", "-750.00"}));
  EXPECT_EQ(TextsOf(DrawMomentDiagram(run(), std::nullopt)),
            (std::vector<std::string>{"843.75", "-1500.00"}));  // 9/128 of w L^2
}

TEST_F(Diagrams, DrawThePositiveUpward) {
  Solve();
  const Drawing d = DrawShearDiagram(run(), std::nullopt);
  const auto lines = All<LineShape>(d);
  const auto first = std::find_if(lines.begin(), lines.end(),
                                  [](const LineShape& l) { return l.colour == Colour::Red; });
  EXPECT_NEAR(first->y1, d.height / 2, 1e-9);        // 0 at the end
  EXPECT_NEAR(first->y2, d.height / 2 - 450, 0.01);  // up to the reaction
}

TEST_F(Diagrams, OfADeflectedShapeGoDownAsTheBeamDoes) {
  Solve();
  const DeflectedShape shape = FindDeflectedShape(run());
  const Drawing d = DrawShapeDiagram(run(), shape, std::nullopt);
  const auto lines = All<LineShape>(d);
  EXPECT_GT(lines.back().y1, d.height / 2);
  EXPECT_NEAR(lines.back().y2, d.height / 2, 1e-4);
}

TEST_F(Diagrams, HoldAsManyStationsAsThereAre) {
  Solve();
  model().curveIntegrations = 32767;
  Run();
  EXPECT_LT(DrawMomentDiagram(run(), std::nullopt).shapes.size(), 3000u);
  EXPECT_TRUE(Shows(DrawMomentDiagram(run(), std::nullopt), "-1500.00"));
  model().curveIntegrations = 0;
  Run();
  EXPECT_GE(DrawMomentDiagram(run(), std::nullopt).shapes.size(), 2u);
}

}  // namespace
}  // namespace lignara
