#include "truss/canvas_shapes.h"

#include <cstdint>
#include <limits>

#include "truss/canvas.h"

namespace lignara {
namespace {

/// From a node to its name.
constexpr double kAslant = 40;
constexpr double kBeside = 60;

constexpr double kHeadWidth = 60;
constexpr double kHeadHeight = 90;

/// A place, counted from another one.
struct Offset {
  double x, y;
};

/// The top left corner of a node's name, counted from the node. Over a level chord it stands one
/// line above the chord's names and inward of the node, so that it stays on the page; over a rafter
/// it stands outward, where the rafter falls away.
Offset NodeNameOffset(NodeSide side, bool level, NameSize size) {
  const double above = -kBeside - (level ? 2 : 1) * size.height;
  if (side == NodeSide::Peak) return {-size.width / 2, above};
  const bool toTheRight = (side == NodeSide::Left) == level;
  if (level) return {toTheRight ? 0.0 : -size.width, above};
  return {toTheRight ? kAslant : -kAslant - size.width, -kAslant - size.height};
}

}  // namespace

CanvasPainter::CanvasPainter(const TrussView& view) : view_(view) {
  drawing_.width = kCanvasWidth;
  drawing_.height = kCanvasHeight;
}

void CanvasPainter::DrawMembers(const TrussLayout& layout, const ColourOf& colourOf) {
  const std::vector<CanvasLine> lines = Placed(layout);
  NamePlacer names(lines);
  drawing_.textHeight = names.height();
  for (const CanvasLine& line : lines) DrawMember(line, colourOf(line.member), names);
}

std::vector<CanvasLine> CanvasPainter::Placed(const TrussLayout& layout) {
  std::vector<CanvasLine> lines;
  for (const MemberLine& line : layout) {
    const auto from = Place(line.from);
    const auto to = Place(line.to);
    if (from && to) lines.push_back({line.member, *from, *to});
  }
  return lines;
}

void CanvasPainter::DrawMember(const CanvasLine& line, Colour colour, NamePlacer& names) {
  const CanvasPoint mark = line.Middle();
  drawing_.shapes.emplace_back(
      LineShape{static_cast<double>(line.from.x), static_cast<double>(line.from.y),
                static_cast<double>(line.to.x), static_cast<double>(line.to.y), colour});
  drawing_.shapes.emplace_back(CircleShape{static_cast<double>(mark.x), static_cast<double>(mark.y),
                                           kMarkRadius, Colour::Red});
  const Member& member = line.member;
  const std::string name = member.family == Family::CV ? centreName : MemberLabel(member);
  const NameBox room = names.PlaceMember(line, name);
  Text(room.x, room.y, name);
  marks_[{member.family, member.index}] = {mark.x, mark.y};
}

void CanvasPainter::DrawArrow(const FootPoint& node) {
  const auto place = Place(node);
  if (!place) return;
  const double x = place->x;
  const double tip = place->y - kArrowTip;
  const auto stroke = [&](double fromX, double fromY) {
    drawing_.shapes.emplace_back(LineShape{fromX, fromY, x, tip, Colour::Blue});
  };
  stroke(x, place->y - kArrowTop);
  stroke(x - kHeadWidth, tip - kHeadHeight);
  stroke(x + kHeadWidth, tip - kHeadHeight);
}

void CanvasPainter::DrawNodeName(const FootPoint& node, NodeSide side, bool level,
                                 const std::string& name) {
  const auto place = Place(node);
  if (!place) return;
  const Offset offset = NodeNameOffset(side, level, SizeOf(name, drawing_.textHeight));
  Text(place->x + offset.x, place->y + offset.y, name);
}

std::optional<CanvasPoint> CanvasPainter::Place(const FootPoint& point) {
  const auto x = Whole(view_.CanvasOriginX + point.x * view_.PixelsPerFootX);
  const auto y = Whole(view_.CanvasOriginY - point.y * view_.PixelsPerFootY);
  if (!x || !y) return std::nullopt;
  return CanvasPoint{*x, *y};
}

std::optional<int> CanvasPainter::Whole(const Number& coordinate) {
  const Number whole = RoundHalfEven(coordinate);
  using Limits = std::numeric_limits<std::int16_t>;
  if (whole >= Limits::min() && whole <= Limits::max()) return static_cast<int>(whole.value());
  if (!faultShown_) {
    const Fault fault = whole.fault();
    ReportFault(fault == Fault::None ? Fault::Overflow : fault);
    faultShown_ = true;
  }
  return std::nullopt;
}

void CanvasPainter::Text(double x, double y, const std::string& text) {
  drawing_.shapes.emplace_back(TextShape{x, y, text, Colour::Black});
}

}  // namespace lignara
