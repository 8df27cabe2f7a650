#pragma once

#include <string>
#include <variant>
#include <vector>

#include "app/colour.h"
#include "app/scene.h"

namespace lignara {

struct LineShape {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Colour colour = Colour::Black;

  bool operator==(const LineShape&) const = default;
};

struct CircleShape {
  double x = 0, y = 0, radius = 0;
  Colour colour = Colour::Black;

  bool operator==(const CircleShape&) const = default;
};

/// A text whose top left corner is at (x, y).
struct TextShape {
  double x = 0, y = 0;
  std::string text;
  Colour colour = Colour::Black;

  bool operator==(const TextShape&) const = default;
};

using Shape = std::variant<LineShape, CircleShape, TextShape>;

/// A picture in its own units: x grows to the right, y downward, from 0 to width and height. Shapes
/// outside are legal and are clipped where the picture is shown.
struct Drawing {
  double width = 0;
  double height = 0;
  double textHeight = 0;  ///< of all its texts, in the picture's units
  std::vector<Shape> shapes;
  /// A diagram, whose two directions have scales of their own: it fills the room that it is given.
  /// Its texts are moved inward where they would not fit, and stay legible at any size.
  bool stretched = false;
  /// How a window and a page show it; without lines they show the shapes. Scripts print the shapes.
  Scene scene;

  bool operator==(const Drawing&) const = default;
};

}  // namespace lignara
