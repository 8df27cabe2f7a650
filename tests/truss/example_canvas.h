#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/opened_truss.h"

namespace lignara {

/// 30 ft by 7.5 ft: 144 units a foot across, 280 up, origin (144, 2580).
inline OpenedTruss ExampleOnCanvas(const std::string& type = "PRATT1") {
  const bool fixed = type == "KINGPOST" || type == "SCI";
  return OpenedTruss(type, fixed ? 4 : 6, 30, 7.5, 3);
}

inline void ExpectView(const OpenedTruss& truss, int scaleX, int scaleY, int originX, int originY) {
  const TrussView& view = truss.window.view;
  EXPECT_EQ(view.PixelsPerFootX.value(), scaleX);
  EXPECT_EQ(view.PixelsPerFootY.value(), scaleY);
  EXPECT_EQ(view.CanvasOriginX.value(), originX);
  EXPECT_EQ(view.CanvasOriginY.value(), originY);
}

inline void Enlarge(OpenedTruss& truss) {
  EnlargeTruss(truss.window, truss.session, truss.platform);
}
inline void Reduce(OpenedTruss& truss) { ReduceTruss(truss.window, truss.session, truss.platform); }
inline void Pan(OpenedTruss& truss, int bar) {
  PanTruss(truss.window, truss.session, truss.platform, bar);
}
inline void Select(OpenedTruss& truss, int row) {
  SelectNode(truss.window, truss.session, truss.platform, row);
}

/// The blue lines of the picture.
inline std::vector<LineShape> Arrow(const OpenedTruss& truss) {
  std::vector<LineShape> lines;
  for (const Shape& shape : truss.window.view.drawing.shapes) {
    const auto* line = std::get_if<LineShape>(&shape);
    if (line != nullptr && line->colour == Colour::Blue) lines.push_back(*line);
  }
  return lines;
}

}  // namespace lignara
