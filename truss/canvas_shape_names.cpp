#include "truss/canvas_shape_names.h"

#include <algorithm>
#include <cmath>

#include "app/clip.h"
#include "truss/canvas.h"

namespace lignara {
namespace {

/// Height of names, and how much of a panel's width it may be, so that the names of the bottom
/// chord do not run together.
constexpr double kLargest = 110;
constexpr double kSmallest = 45;
constexpr double kOfPanel = 0.36;
/// A letter is narrower than this part of its height.
constexpr double kLetterWidth = 60.0 / 110;
/// From a circle's centre to the corner of a name that stands aslant of it.
constexpr double kAslant = 40;
/// From a circle's centre to a name right above, below or beside it.
constexpr double kBeside = 55;
constexpr double kBelow = 50;
/// Of a name from lines.
constexpr double kClear = 10;
/// A name across a line can still be read; one on a circle, on another name or cut off cannot.
constexpr int kUnreadable = 100;
/// Where more members are drawn the circles themselves run together, and a search would take long.
constexpr std::size_t kMostMembers = 150;

/// The corners aslant of a circle, in which a name is nearest to it.
NameBox Aslant(CanvasPoint mark, bool right, bool above, NameSize size) {
  return {right ? mark.x + kAslant : mark.x - kAslant - size.width,
          above ? mark.y - kAslant - size.height : mark.y + kAslant, size.width, size.height};
}

/// Right or left of a circle; `part` of the name's height lies above the circle's centre.
NameBox Beside(CanvasPoint mark, bool right, double part, NameSize size) {
  return {right ? mark.x + kBeside : mark.x - kBeside - size.width, mark.y - part * size.height,
          size.width, size.height};
}

/// Above or below a circle; `part` of the name's width lies left of the circle's centre.
NameBox OverOrUnder(CanvasPoint mark, bool over, double part, NameSize size) {
  return {mark.x - part * size.width, over ? mark.y - kBeside - size.height : mark.y + kBeside,
          size.width, size.height};
}

/// All places around a circle, the nearer ones first.
std::vector<NameBox> PlacesAround(CanvasPoint mark, NameSize size) {
  std::vector<NameBox> places;
  for (const bool right : {true, false}) {
    for (const bool above : {false, true}) places.push_back(Aslant(mark, right, above, size));
  }
  for (const double part : {0.5, 0.25, 0.75, 0.0, 1.0}) {
    for (const bool first : {true, false}) {
      places.push_back(Beside(mark, first, part, size));
      places.push_back(OverOrUnder(mark, first, part, size));
    }
  }
  return places;
}

/// How a line runs across the canvas, read from left to right.
enum class Direction { Level, Upright, Rising, Falling };

Direction DirectionOf(const CanvasLine& line) {
  if (line.from.x == line.to.x) return Direction::Upright;
  if (line.from.y == line.to.y) return Direction::Level;
  return (line.to.x > line.from.x) == (line.to.y < line.from.y) ? Direction::Rising
                                                                : Direction::Falling;
}

/// The place from which the line leads away: outside of a top chord, to the right of a web.
NameBox Preferred(Family family, Direction direction, CanvasPoint mark, NameSize size) {
  // Of the top chord the left rafter alone rises.
  const bool rafter = family == Family::TL;
  if (direction == Direction::Upright) return Beside(mark, true, 0.5, size);
  if (direction == Direction::Level) return OverOrUnder(mark, true, 0.5, size);
  if (direction == Direction::Falling) return Aslant(mark, true, true, size);
  return Aslant(mark, !rafter, rafter, size);
}

NameBox BottomRoom(const CanvasLine& line, NameSize size) {
  const CanvasPoint mark = line.Middle();
  const double shift = DirectionOf(line) == Direction::Falling ? -size.width : 0.0;
  return {mark.x + shift, mark.y + kBelow, size.width, size.height};
}

/// True where the line comes nearer to the room than its own thickness.
bool Crosses(const CanvasLine& line, const NameBox& room) {
  double from = 0, to = 1;
  return Clip(line.from.x, line.to.x - line.from.x, room.x - kClear, room.x + room.width + kClear,
              from, to) &&
         Clip(line.from.y, line.to.y - line.from.y, room.y - kClear, room.y + room.height + kClear,
              from, to);
}

bool Covers(const NameBox& room, CanvasPoint mark) {
  const double dx = std::max({room.x - mark.x, 0.0, mark.x - room.x - room.width});
  const double dy = std::max({room.y - mark.y, 0.0, mark.y - room.y - room.height});
  return std::hypot(dx, dy) < kMarkRadius;
}

bool Overlap(const NameBox& a, const NameBox& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

int Halfway(int a, int b) { return static_cast<int>(RoundHalfEven((Number(a) + b) / 2).value()); }

bool IsBottom(Family family) { return family == Family::CL || family == Family::CR; }

double HeightFor(const std::vector<CanvasLine>& lines) {
  double height = kLargest;
  for (const CanvasLine& line : lines) {
    if (IsBottom(line.member.family)) {
      height = std::min(height, kOfPanel * std::abs(line.to.x - line.from.x));
    }
  }
  return std::max(height, kSmallest);
}

}  // namespace

CanvasPoint CanvasLine::Middle() const { return {Halfway(from.x, to.x), Halfway(from.y, to.y)}; }

NameSize SizeOf(const std::string& name, double height) {
  return {kLetterWidth * height * static_cast<double>(name.size()), height};
}

NamePlacer::NamePlacer(const std::vector<CanvasLine>& lines)
    : lines_(lines), height_(HeightFor(lines)) {
  // The names of the bottom chord have no choice, so the others have to heed them.
  for (const CanvasLine& line : lines_) {
    if (!IsBottom(line.member.family)) continue;
    taken_.push_back(BottomRoom(line, SizeOf(MemberLabel(line.member), height_)));
  }
}

NameBox NamePlacer::PlaceMember(const CanvasLine& line, const std::string& name) {
  const NameSize size = SizeOf(name, height_);
  if (IsBottom(line.member.family)) return BottomRoom(line, size);
  const CanvasPoint mark = line.Middle();
  const NameBox first = Preferred(line.member.family, DirectionOf(line), mark, size);
  taken_.push_back(Best(first, PlacesAround(mark, size)));
  return taken_.back();
}

NameBox NamePlacer::Best(NameBox first, const std::vector<NameBox>& places) const {
  if (lines_.size() > kMostMembers) return first;
  NameBox best = first;
  int least = Flaws(best);
  for (const NameBox& place : places) {
    if (least == 0) break;
    const int flaws = Flaws(place);
    if (flaws >= least) continue;
    best = place;
    least = flaws;
  }
  return best;
}

int NamePlacer::Flaws(const NameBox& room) const {
  int flaws = room.x < 0 || room.x + room.width > kCanvasWidth ? kUnreadable : 0;
  for (const CanvasLine& line : lines_) {
    if (Crosses(line, room)) ++flaws;
    if (Covers(room, line.Middle())) flaws += kUnreadable;
  }
  for (const NameBox& other : taken_) {
    if (Overlap(room, other)) flaws += kUnreadable;
  }
  return flaws;
}

}  // namespace lignara
