#include "beam/load_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/beam_fixture.h"
#include "tests/support/typed.h"

namespace lignara {
namespace {

using enum SupportType;

constexpr double kLeft = 1100, kRight = 8900, kAxis = 2500;  // the beam's ends, as drawn

class LoadPicture : public testing::Test {
 protected:
  const Drawing& Picture() const { return beam.window.loadPicture; }

  Texts Letters() const {
    Texts letters;
    for (const Shape& shape : Picture().shapes) {
      if (const auto* text = std::get_if<TextShape>(&shape)) letters.push_back(text->text);
    }
    return letters;
  }
  bool HasLetter(const std::string& letter) const {
    const Texts letters = Letters();
    return std::find(letters.begin(), letters.end(), letter) != letters.end();
  }
  /// Lines that begin or end at a place.
  int LinesAt(double x, double y) const {
    return static_cast<int>(
        std::count_if(Picture().shapes.begin(), Picture().shapes.end(), [&](const Shape& shape) {
          const auto* line = std::get_if<LineShape>(&shape);
          return line != nullptr && (std::hypot(line->x1 - x, line->y1 - y) < 0.01 ||
                                     std::hypot(line->x2 - x, line->y2 - y) < 0.01);
        }));
  }
  int CountOf(Colour colour) const {
    return static_cast<int>(
        std::count_if(Picture().shapes.begin(), Picture().shapes.end(), [&](const Shape& shape) {
          const auto* line = std::get_if<LineShape>(&shape);
          return line != nullptr && line->colour == colour;
        }));
  }
  /// The line that ends on top of the beam at a place along it, 0 to 1.
  double ArrowHeight(double share) const {
    const double x = kLeft + (kRight - kLeft) * share;
    for (const Shape& shape : Picture().shapes) {
      const auto* line = std::get_if<LineShape>(&shape);
      if (line != nullptr && std::fabs(line->x2 - x) < 0.01 && line->x1 == line->x2 &&
          std::fabs(line->y2 - kAxis) < 40) {
        return line->y2 - line->y1;
      }
    }
    return 0;
  }

  TestBeam beam;
};

TEST_F(LoadPicture, ShowsTheBeamAtMidHeightWithItsSpan) {
  EXPECT_EQ(Picture().height, 2 * kAxis);
  EXPECT_TRUE(HasLetter("L"));
  EXPECT_TRUE(HasLetter("10 ft"));
}

TEST_F(LoadPicture, ShowsSupportsByTheirType) {
  const auto shapesOf = [&](SupportType left, SupportType right) {
    beam.Supports(left, right);
    return Picture().shapes.size();
  };
  const std::size_t free = shapesOf(Free, Free);
  EXPECT_GT(shapesOf(Pinned, Free), free);
  EXPECT_GT(shapesOf(Fixed, Free), free);
  EXPECT_NE(shapesOf(Fixed, Free), shapesOf(Pinned, Free));
  EXPECT_EQ(shapesOf(Fixed, Free), shapesOf(Free, Fixed));
}

TEST_F(LoadPicture, LettersEachKind) {
  beam.Supports(Fixed, Fixed);
  beam.Point("5", "1000");
  EXPECT_TRUE(HasLetter("P"));
  EXPECT_TRUE(HasLetter("1000 lbs"));
  EXPECT_TRUE(HasLetter("A"));
  EXPECT_TRUE(HasLetter("5 ft"));
  beam.Uniform("1", "2.5", "100");
  EXPECT_TRUE(HasLetter("W"));
  EXPECT_TRUE(HasLetter("B"));
  EXPECT_TRUE(HasLetter("2.5 ft"));
  beam.Moment("6", "50");
  EXPECT_TRUE(HasLetter("M"));
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "0.5"}});
  EXPECT_TRUE(HasLetter("Disp"));
  EXPECT_FALSE(HasLetter("(+) = Tension"));
  beam.Axial("-20");
  EXPECT_TRUE(HasLetter("(+) = Tension"));
  EXPECT_TRUE(HasLetter("(-) = compression"));
}

TEST_F(LoadPicture, DrawsLoadsToScaleAtTheirPlace) {
  beam.Point("2", "1000");
  beam.Point("7.5", "500");
  EXPECT_NEAR(ArrowHeight(0.2), 1100, 0.01);
  EXPECT_NEAR(ArrowHeight(0.75), 700, 0.01);  // between 300 and 1100
}

TEST_F(LoadPicture, DrawsUpwardLoadsFromBelow) {
  beam.Point("2", "-1000");
  EXPECT_LT(ArrowHeight(0.2), 0);
}

TEST_F(LoadPicture, SlopedLoadsRiseFromTheirZeroEnd) {
  beam.Add(LoadKind::SlopedLeftZero, {{"A", "0"}, {"B", "10"}, {"W", "100"}});
  const double top = kAxis - 30;
  EXPECT_GE(LinesAt(kLeft, top), 2);
  EXPECT_GE(LinesAt(kRight, top - 700), 2);
  EXPECT_EQ(LinesAt(kLeft, top - 700), 0);
}

TEST_F(LoadPicture, ShowsTheChosenLoadInRed) {
  beam.Point("2", "1000");
  beam.Point("7.5", "500");
  EXPECT_EQ(CountOf(Colour::Red), 0);
  SelectLoad(beam.window, 1);
  EXPECT_EQ(CountOf(Colour::Red), 3);  // an arrow and its head
  ClearInputs(beam.window);
  EXPECT_EQ(CountOf(Colour::Red), 0);
}

TEST_F(LoadPicture, LettersOfManyLoadsKeepApart) {
  for (int i = 0; i < 101; ++i) beam.Point(Typed(0.05 + 0.098 * i), "1000");
  struct Place {
    double x, y, width;
  };
  std::vector<Place> places;
  for (const Shape& shape : Picture().shapes) {
    const auto* text = std::get_if<TextShape>(&shape);
    if (text == nullptr) continue;
    places.push_back({text->x, text->y, 75 * static_cast<double>(text->text.size())});
  }
  EXPECT_GT(places.size(), 20u);
  for (std::size_t i = 0; i < places.size(); ++i) {
    for (std::size_t j = i + 1; j < places.size(); ++j) {
      const bool apart = std::fabs(places[i].y - places[j].y) >= 149.99 ||
                         places[i].x + places[i].width <= places[j].x + 0.01 ||
                         places[j].x + places[j].width <= places[i].x + 0.01;
      EXPECT_TRUE(apart) << i << " and " << j;
    }
  }
}

TEST_F(LoadPicture, StacksLoadsThatLieOverEachOther) {
  beam.Uniform("0", "10", "100");
  const std::size_t one = Picture().shapes.size();
  beam.Uniform("0", "10", "100");
  EXPECT_GE(LinesAt(kLeft, kAxis - 30), 2);
  EXPECT_GE(LinesAt(kLeft, kAxis - 30 - 700), 2) << "half of the height for each";
  EXPECT_GT(Picture().shapes.size(), one);
}

TEST_F(LoadPicture, NeedsALength) {
  beam.Supports(Free, Fixed);
  beam.Length("0");
  EXPECT_TRUE(Picture().shapes.empty());
  EXPECT_EQ(beam.Boxes(), Texts()) << "typing a length is no change of the loads";
  beam.Axial("5");
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED A VALUE FOR LENGTH !"}));
  EXPECT_TRUE(Picture().shapes.empty());
  EXPECT_EQ(beam.Loads(), 1);
}

}  // namespace
}  // namespace lignara
