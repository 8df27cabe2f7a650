#include "app/sketch_pen.h"

#include <cmath>

namespace lignara {

SketchPen::SketchPen(double width, double height, double textHeight)
    : drawing_{width, height, textHeight, {}} {}

void SketchPen::Line(double x1, double y1, double x2, double y2, Colour colour) {
  drawing_.shapes.emplace_back(LineShape{x1, y1, x2, y2, colour});
}

void SketchPen::Path(const Points& points, Colour colour) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    Line(points[i - 1].first, points[i - 1].second, points[i].first, points[i].second, colour);
  }
}

void SketchPen::Box(double x1, double y1, double x2, double y2, Colour colour) {
  Path({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}}, colour);
}

void SketchPen::Circle(double x, double y, double radius, Colour colour) {
  drawing_.shapes.emplace_back(CircleShape{x, y, radius, colour});
}

void SketchPen::Arrow(double x1, double y1, double x2, double y2, Colour colour) {
  constexpr double kHalfOpening = 0.4;  // radians
  const double headLength = 2.5 * tick();
  const double back = std::atan2(y1 - y2, x1 - x2);
  Line(x1, y1, x2, y2, colour);
  for (const double side : {-kHalfOpening, kHalfOpening}) {
    Line(x2, y2, x2 + headLength * std::cos(back + side), y2 + headLength * std::sin(back + side),
         colour);
  }
}

void SketchPen::Text(double x, double y, const std::string& text, Colour colour) {
  drawing_.shapes.emplace_back(TextShape{x, y, text, colour});
}

void SketchPen::LevelDimension(double x1, double x2, double y, const std::string& name) {
  Line(x1, y, x2, y, Colour::Gray);
  for (const double x : {x1, x2}) Line(x, y - tick(), x, y + tick(), Colour::Gray);
  Text((x1 + x2 - TextWidth(name)) / 2, y + tick(), name);
}

void SketchPen::UprightDimension(double x, double y1, double y2, const std::string& name,
                                 NameSide side) {
  Line(x, y1, x, y2, Colour::Gray);
  for (const double y : {y1, y2}) Line(x - tick(), y, x + tick(), y, Colour::Gray);
  const double nameX = side == NameSide::Right ? x + tick() : x - tick() - TextWidth(name);
  Text(nameX, (y1 + y2 - drawing_.textHeight) / 2, name);
}

}  // namespace lignara
