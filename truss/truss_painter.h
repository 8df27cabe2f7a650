#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "truss/layout.h"
#include "truss/truss_window.h"

namespace lignara {

/// A place on the canvas, in whole canvas units.
struct CanvasPoint {
  int x, y;
};

/// Turns members and nodes into shapes, at the scales and the origin of a view.
///
/// Places are 16-bit. A member with an end that does not fit is left out, and the user is told of
/// it once a drawing.
class TrussPainter {
 public:
  using Marks = std::map<std::pair<Family, int>, MarkPoint>;

  explicit TrussPainter(const TrussView& view);

  /// The line, the circle at its midpoint and the name beside it.
  void DrawMember(const MemberLine& line, Colour colour);
  /// The arrow that points down at a node.
  void DrawArrow(const FootPoint& node);
  /// The name of a top node, away from the members that meet there. `level`: on a level chord.
  void DrawNodeName(const FootPoint& node, NodeSide side, bool level, const std::string& name);

  Marks TakeMarks() { return std::move(marks_); }
  Drawing TakeDrawing() { return std::move(drawing_); }

  std::string centreName = "CV";  ///< what the centre vertical is called

 private:
  std::optional<CanvasPoint> Place(const FootPoint& point);
  std::optional<int> Whole(const Number& coordinate);
  void Line(const CanvasPoint& from, const CanvasPoint& to, Colour colour);
  void Text(double x, double y, const std::string& text);

  const TrussView& view_;
  Drawing drawing_;
  Marks marks_;
  bool faultShown_ = false;
};

}  // namespace lignara
