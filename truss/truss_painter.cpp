#include "truss/truss_painter.h"

#include <cstdint>
#include <limits>

#include "truss/canvas.h"

namespace lignara {
namespace {

constexpr double kTextHeight = 110;
constexpr double kLetterWidth = 60;  // enough for the widest names
/// From a circle's centre to the corner of a name that stands aslant of it.
constexpr double kAslant = 40;
/// From a circle's centre to a name right above or beside it.
constexpr double kBeside = 60;
constexpr double kBelow = 50;

constexpr double kArrowTop = 500;
constexpr double kArrowTip = 300;
constexpr double kHeadWidth = 60;
constexpr double kHeadHeight = 90;

double Width(const std::string& text) { return kLetterWidth * static_cast<double>(text.size()); }

bool IsTop(Family family) { return family == Family::TL || family == Family::TR; }
bool IsBottom(Family family) { return family == Family::CL || family == Family::CR; }

/// How a line runs across the canvas, read from left to right.
enum class Run { Level, Upright, Rising, Falling };

Run RunOf(CanvasPoint from, CanvasPoint to) {
  if (from.x == to.x) return Run::Upright;
  if (from.y == to.y) return Run::Level;
  return (to.x > from.x) == (to.y < from.y) ? Run::Rising : Run::Falling;
}

/// The top left corner of a name, counted from the midpoint of its member.
struct Offset {
  double x, y;
};

/// Beside the circle, on the side from which the line leads away: above a top chord, below a bottom
/// chord, to the right of a web.
Offset NameOffset(Family family, Run run, double width) {
  constexpr double above = -kAslant - kTextHeight;
  if (IsBottom(family)) return {run == Run::Falling ? -width : 0.0, kBelow};
  switch (run) {
    case Run::Upright:
      return {kBeside, -kTextHeight / 2};
    case Run::Level:
      return {-width / 2, -kBeside - kTextHeight};
    case Run::Rising:
      return IsTop(family) ? Offset{-kAslant - width, above} : Offset{kAslant, kAslant};
    case Run::Falling:
      return {kAslant, above};
  }
  return {};
}

/// The top left corner of a node's name, counted from the node. Over a level chord it stands one
/// line above the chord's names and inward of the node, so that it stays on the page; over a rafter
/// it stands outward, where the rafter falls away.
Offset NodeNameOffset(NodeSide side, bool level, double width) {
  const double above = -kBeside - (level ? 2 : 1) * kTextHeight;
  if (side == NodeSide::Peak) return {-width / 2, above};
  const bool toTheRight = (side == NodeSide::Left) == level;
  if (level) return {toTheRight ? 0.0 : -width, above};
  return {toTheRight ? kAslant : -kAslant - width, -kAslant - kTextHeight};
}

/// The middle of two places, to whole units with ties to the even one.
int Middle(int a, int b) { return static_cast<int>(RoundHalfEven((Number(a) + b) / 2).value()); }

}  // namespace

TrussPainter::TrussPainter(const TrussView& view) : view_(view) {
  drawing_.width = kCanvasWidth;
  drawing_.height = kCanvasHeight;
  drawing_.textHeight = kTextHeight;
}

void TrussPainter::DrawMember(const MemberLine& line, Colour colour) {
  const auto from = Place(line.from);
  const auto to = Place(line.to);
  if (!from || !to) return;
  const CanvasPoint mark{Middle(from->x, to->x), Middle(from->y, to->y)};
  Line(*from, *to, colour);
  drawing_.shapes.emplace_back(CircleShape{static_cast<double>(mark.x), static_cast<double>(mark.y),
                                           kMarkRadius, Colour::Red});
  const Family family = line.member.family;
  const std::string name = family == Family::CV ? centreName : MemberLabel(line.member);
  const Offset offset = NameOffset(family, RunOf(*from, *to), Width(name));
  Text(mark.x + offset.x, mark.y + offset.y, name);
  marks_[{family, line.member.index}] = {mark.x, mark.y};
}

void TrussPainter::DrawArrow(const FootPoint& node) {
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

void TrussPainter::DrawNodeName(const FootPoint& node, NodeSide side, bool level,
                                const std::string& name) {
  const auto place = Place(node);
  if (!place) return;
  const Offset offset = NodeNameOffset(side, level, Width(name));
  Text(place->x + offset.x, place->y + offset.y, name);
}

std::optional<CanvasPoint> TrussPainter::Place(const FootPoint& point) {
  const auto x = Whole(view_.CanvasOriginX + point.x * view_.PixelsPerFootX);
  const auto y = Whole(view_.CanvasOriginY - point.y * view_.PixelsPerFootY);
  if (!x || !y) return std::nullopt;
  return CanvasPoint{*x, *y};
}

std::optional<int> TrussPainter::Whole(const Number& coordinate) {
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

void TrussPainter::Line(const CanvasPoint& from, const CanvasPoint& to, Colour colour) {
  drawing_.shapes.emplace_back(LineShape{static_cast<double>(from.x), static_cast<double>(from.y),
                                         static_cast<double>(to.x), static_cast<double>(to.y),
                                         colour});
}

void TrussPainter::Text(double x, double y, const std::string& text) {
  drawing_.shapes.emplace_back(TextShape{x, y, text, Colour::Black});
}

}  // namespace lignara
