#pragma once

#include <string>
#include <vector>

#include "app/drawing.h"

namespace lignara {

/// The texts of a drawing, in drawing order.
inline std::vector<std::string> DrawnTexts(const Drawing& drawing) {
  std::vector<std::string> texts;
  for (const Shape& shape : drawing.shapes) {
    if (const auto* text = std::get_if<TextShape>(&shape)) texts.push_back(text->text);
  }
  return texts;
}

/// The lines of one colour, in drawing order.
inline std::vector<LineShape> DrawnLines(const Drawing& drawing, Colour colour) {
  std::vector<LineShape> lines;
  for (const Shape& shape : drawing.shapes) {
    const auto* line = std::get_if<LineShape>(&shape);
    if (line != nullptr && line->colour == colour) lines.push_back(*line);
  }
  return lines;
}

}  // namespace lignara
