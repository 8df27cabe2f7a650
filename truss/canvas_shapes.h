#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "truss/canvas_shape_names.h"
#include "truss/member_layout.h"
#include "truss/truss_window.h"

namespace lignara {

/// Turns members and nodes into shapes, at the scales and the origin of a view.
///
/// Places are 16-bit. A member with an end that does not fit is left out, and the user is told of
/// it once a drawing.
class CanvasPainter {
 public:
  using Marks = std::map<std::pair<Family, int>, MarkPoint>;
  using ColourOf = std::function<Colour(const Member&)>;

  explicit CanvasPainter(const TrussView& view);

  /// Of each member the line, the circle at its midpoint and the name beside it.
  void DrawMembers(const TrussLayout& layout, const ColourOf& colourOf);
  /// The members that fit, in the order of the layout.
  std::vector<CanvasLine> Placed(const TrussLayout& layout);
  /// A point of the truss on the canvas; nothing where it does not fit.
  std::optional<CanvasPoint> Place(const FootPoint& point);
  /// The arrow that points down at a node.
  void DrawArrow(const FootPoint& node);
  /// The name of a top node, as high as those of the members drawn before, away from the members
  /// that meet there. `level`: on a level chord.
  void DrawNodeName(const FootPoint& node, NodeSide side, bool level, const std::string& name);

  Marks TakeMarks() { return std::move(marks_); }
  Drawing TakeDrawing() { return std::move(drawing_); }

  std::string centreName = "CV";  ///< what the centre vertical is called

 private:
  void DrawMember(const CanvasLine& line, Colour colour, NamePlacer& names);
  std::optional<int> Whole(const Number& coordinate);
  void Text(double x, double y, const std::string& text);

  const TrussView& view_;
  Drawing drawing_;
  Marks marks_;
  bool faultShown_ = false;
};

}  // namespace lignara
