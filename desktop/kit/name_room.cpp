#include "desktop/kit/name_room.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace lignara {
namespace {

/// Turns from the direction wished for, in degrees, in the order in which they are tried: its own
/// side of the line first.
constexpr std::array<double, 15> kTurns = {0,   30, -30, 60,  -60,  180,  150, -150,
                                           120, 90, -90, 135, -135, -120, 105};

/// What a step away from the wish costs, in lines crossed.
constexpr double kTurnCost = 0.07;

/// Where more lines are in sight no name finds a place without crossing some.
constexpr std::size_t kMostLines = 2000;

QPointF Turned(const QPointF& way, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  return {way.x() * std::cos(angle) - way.y() * std::sin(angle),
          way.x() * std::sin(angle) + way.y() * std::cos(angle)};
}

/// The box of a size that touches a circle in a direction.
QRectF BoxBeside(const QPointF& centre, double radius, const QPointF& way, const QSizeF& size) {
  const double inside = std::min(size.width() / 2 / std::max(std::fabs(way.x()), 1e-6),
                                 size.height() / 2 / std::max(std::fabs(way.y()), 1e-6));
  QRectF box(QPointF(0, 0), size);
  box.moveCenter(centre + way * (radius + inside));
  return box;
}

double Distance(const QRectF& box, const QPointF& point) {
  const double dx = std::max({box.left() - point.x(), 0.0, point.x() - box.right()});
  const double dy = std::max({box.top() - point.y(), 0.0, point.y() - box.bottom()});
  return std::hypot(dx, dy);
}

/// Narrows the part [from, to] of a line to where a coordinate lies between two bounds; false where
/// nothing is left.
bool Clip(double start, double delta, double low, double high, double& from, double& to) {
  if (delta == 0) return start >= low && start <= high;
  const double a = (low - start) / delta, b = (high - start) / delta;
  from = std::max(from, std::min(a, b));
  to = std::min(to, std::max(a, b));
  return from <= to;
}

bool Crosses(const QLineF& line, const QRectF& box) {
  double from = 0, to = 1;
  return Clip(line.x1(), line.dx(), box.left(), box.right(), from, to) &&
         Clip(line.y1(), line.dy(), box.top(), box.bottom(), from, to);
}

QRectF Grown(const QRectF& box, double by) { return box.adjusted(-by, -by, by, by); }

}  // namespace

void NameRoom::AddLine(const QLineF& line) {
  if (lines_.size() < kMostLines && Crosses(line, room_)) lines_.push_back(line);
}

std::optional<QRectF> NameRoom::PlaceBeside(const QPointF& centre, double radius,
                                            const QPointF& wish, const QSizeF& size) {
  std::optional<QRectF> best;
  double least = 0, turns = 0;
  for (const double turn : kTurns) {
    const QRectF box = BoxBeside(centre, radius + gap_, Turned(wish, turn), size);
    const double cost = kTurnCost * turns++;
    if ((best && cost >= least) || !IsFree(box)) continue;
    const double whole = cost + LinesAcross(box);
    if (best && whole >= least) continue;
    best = box;
    least = whole;
  }
  if (best) Take(*best);
  return best;
}

bool NameRoom::IsFree(const QRectF& box) const {
  if (!room_.contains(box)) return false;
  const bool onCircle = std::any_of(circles_.begin(), circles_.end(), [&](const Circle& circle) {
    return Distance(box, circle.centre) < circle.radius + gap_ / 2;
  });
  if (onCircle) return false;
  const QRectF wide = Grown(box, gap_ / 2);
  return std::none_of(taken_.begin(), taken_.end(),
                      [&](const QRectF& other) { return wide.intersects(other); });
}

int NameRoom::LinesAcross(const QRectF& box) const {
  return static_cast<int>(std::count_if(lines_.begin(), lines_.end(), [&](const QLineF& line) {
    return Crosses(line, Grown(box, gap_ / 2));
  }));
}

}  // namespace lignara
