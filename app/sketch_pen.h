#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/drawing.h"

namespace lignara {

/// Draws a schematic picture shape by shape, in its own units. Ticks and letters follow the height
/// of the texts.
class SketchPen {
 public:
  using Points = std::vector<std::pair<double, double>>;
  /// The side of an upright dimension line on which its name stands.
  enum class NameSide { Left, Right };

  SketchPen(double width, double height, double textHeight);

  void Line(double x1, double y1, double x2, double y2, Colour colour = Colour::Black);
  /// A line from point to point.
  void Path(const Points& points, Colour colour = Colour::Black);
  /// The outline between two opposite corners.
  void Box(double x1, double y1, double x2, double y2, Colour colour = Colour::Black);
  void Circle(double x, double y, double radius, Colour colour = Colour::Black);
  /// A line with a head at its second end.
  void Arrow(double x1, double y1, double x2, double y2, Colour colour = Colour::Black);
  void Text(double x, double y, const std::string& text, Colour colour = Colour::Black);

  /// A level dimension line with its name below the middle.
  void LevelDimension(double x1, double x2, double y, const std::string& name);
  /// An upright dimension line with its name beside the middle.
  void UprightDimension(double x, double y1, double y2, const std::string& name,
                        NameSide side = NameSide::Right);

  double tick() const { return drawing_.textHeight * 3 / 11; }
  /// About the width of a letter.
  double letterWidth() const { return drawing_.textHeight / 2; }
  double TextWidth(const std::string& text) const {
    return letterWidth() * static_cast<double>(text.size());
  }

  const Drawing& drawing() const { return drawing_; }

 private:
  Drawing drawing_;
};

}  // namespace lignara
