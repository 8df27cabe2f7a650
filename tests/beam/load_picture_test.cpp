#include "beam/load_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/beam_fixture.h"
#include "tests/support/typed.h"

namespace lignara {
namespace {

using enum SupportType;

constexpr double kLeft = 1100, kRight = 8900, kAxis = 1800;  // the beam's ends, as drawn

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
  /// No text of a load stands over another, by the width that letters have on most screens.
  void ExpectLettersApart() const {
    struct Place {
      double x, y, width;
    };
    std::vector<Place> places;
    for (const Shape& shape : Picture().shapes) {
      const auto* text = std::get_if<TextShape>(&shape);
      if (text == nullptr || text->y > Picture().height - 980) continue;
      places.push_back({text->x, text->y, 0.6 * 170 * static_cast<double>(text->text.size())});
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      for (std::size_t j = i + 1; j < places.size(); ++j) {
        const bool apart = std::fabs(places[i].y - places[j].y) >= 169.99 ||
                           places[i].x + places[i].width <= places[j].x + 0.01 ||
                           places[j].x + places[j].width <= places[i].x + 0.01;
        EXPECT_TRUE(apart) << i << " and " << j;
      }
    }
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
  EXPECT_NEAR(ArrowHeight(0.2), 900, 0.01);
  EXPECT_NEAR(ArrowHeight(0.75), 580, 0.01);  // between 260 and 900
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
  EXPECT_GT(Letters().size(), 20u);
  ExpectLettersApart();
}

TEST_F(LoadPicture, LettersOfAllKindsKeepApart) {
  beam.Supports(Fixed, Fixed);
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "0.25"}});
  beam.Point("0.4", "200");
  beam.Point("2.1", "1500");
  beam.Point("3.1", "1500");
  beam.Uniform("4", "3", "200");
  beam.Moment("6.5", "-700");
  beam.Axial("-2500");
  ExpectLettersApart();
}

TEST_F(LoadPicture, IsLowForFewLoadsAndHighForMany) {
  EXPECT_EQ(Picture().height, 3600);
  for (int i = 0; i < 12; ++i) beam.Point("5", "1");
  EXPECT_EQ(Picture().height, 3600);
  beam.Point("5", "1");
  EXPECT_EQ(Picture().height, 4400);
}

TEST_F(LoadPicture, StacksUpwardLoadsBelowTheBeamOnly) {
  for (int i = 0; i < 4; ++i) beam.Uniform("0", "10", "100");
  beam.Uniform("0", "10", "-100");
  EXPECT_GE(LinesAt(kLeft, kAxis + 30), 2) << "next to the beam, whatever stands above it";
  // Nothing reaches into the dimensions, 980 above the bottom.
  for (const Shape& shape : Picture().shapes) {
    const auto* line = std::get_if<LineShape>(&shape);
    if (line != nullptr && line->colour == Colour::RoyalBlue) {
      EXPECT_LT(std::max(line->y1, line->y2), 3600 - 980);
      EXPECT_GT(std::min(line->y1, line->y2), 0);
    }
  }
}

TEST_F(LoadPicture, StacksLoadsThatLieOverEachOther) {
  beam.Uniform("0", "10", "100");
  const std::size_t one = Picture().shapes.size();
  beam.Uniform("0", "10", "100");
  EXPECT_GE(LinesAt(kLeft, kAxis - 30), 2);
  // 180 - 3 ft of the axis less two rows of letters, for two lanes: 71.5 each.
  EXPECT_GE(LinesAt(kLeft, kAxis - 30 - 715), 2) << "half of the height for each";
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
