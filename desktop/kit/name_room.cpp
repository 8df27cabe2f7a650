#include "desktop/kit/name_room.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "app/clip.h"

namespace lignara {
namespace {

/// Turns from the direction wished for, in degrees, in the order in which they are tried: its own
/// side of the line first.
constexpr std::array<double, 15> kTurns = {0,   30, -30, 60,  -60,  180,  150, -150,
                                           120, 90, -90, 135, -135, -120, 105};

/// What a step away from the wish costs, in lines crossed.
constexpr double kTurnCost = 0.07;

/// How far from its circle a name is tried, in heights of the name, and what a step costs. A little
/// farther off is better than across a line.
constexpr std::array<double, 3> kPushes = {0, 0.2, 0.38};
constexpr double kPushCost = 0.25;

/// Where more lines are in sight no name finds a place without crossing some.
constexpr std::size_t kMostLines = 2000;

QPointF Turned(const QPointF& way, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  return {way.x() * std::cos(angle) - way.y() * std::sin(angle),
          way.x() * std::sin(angle) + way.y() * std::cos(angle)};
}

/// The rectangle of a size that touches a circle in a direction.
QRectF RectBeside(const QPointF& centre, double radius, const QPointF& way, const QSizeF& size) {
  const double inside = std::min(size.width() / 2 / std::max(std::fabs(way.x()), 1e-6),
                                 size.height() / 2 / std::max(std::fabs(way.y()), 1e-6));
  QRectF rect(QPointF(0, 0), size);
  rect.moveCenter(centre + way * (radius + inside));
  return rect;
}

double Distance(const QRectF& rect, const QPointF& point) {
  const double dx = std::max({rect.left() - point.x(), 0.0, point.x() - rect.right()});
  const double dy = std::max({rect.top() - point.y(), 0.0, point.y() - rect.bottom()});
  return std::hypot(dx, dy);
}

bool Crosses(const QLineF& line, const QRectF& rect) {
  double from = 0, to = 1;
  return Clip(line.x1(), line.dx(), rect.left(), rect.right(), from, to) &&
         Clip(line.y1(), line.dy(), rect.top(), rect.bottom(), from, to);
}

QRectF Grown(const QRectF& rect, double by) { return rect.adjusted(-by, -by, by, by); }

}  // namespace

void NameRoom::AddLine(const QLineF& line) {
  if (lines_.size() < kMostLines && Crosses(line, room_)) lines_.push_back(line);
}

std::optional<QRectF> NameRoom::PlaceBeside(const QPointF& centre, double radius,
                                            const QPointF& wish, const QSizeF& size) {
  Place best;
  for (std::size_t push = 0; push < kPushes.size(); ++push) {
    const double distance = radius + gap_ + kPushes[push] * size.height();
    for (std::size_t turn = 0; turn < kTurns.size(); ++turn) {
      const double cost =
          kPushCost * static_cast<double>(push) + kTurnCost * static_cast<double>(turn);
      Try({RectBeside(centre, distance, Turned(wish, kTurns[turn]), size), cost}, best);
    }
  }
  if (!best.rect) return std::nullopt;
  Take(*best.rect);
  return best.rect;
}

void NameRoom::Try(Place place, Place& best) const {
  if (place.cost >= best.cost || !IsFree(*place.rect)) return;
  place.cost += LinesAcross(*place.rect);
  if (place.cost < best.cost) best = place;
}

bool NameRoom::IsFree(const QRectF& rect) const {
  if (!room_.contains(rect)) return false;
  const bool onCircle = std::any_of(circles_.begin(), circles_.end(), [&](const Circle& circle) {
    return Distance(rect, circle.centre) < circle.radius + gap_ / 2;
  });
  if (onCircle) return false;
  const QRectF wide = Grown(rect, gap_ / 2);
  return std::none_of(taken_.begin(), taken_.end(),
                      [&](const QRectF& other) { return wide.intersects(other); });
}

int NameRoom::LinesAcross(const QRectF& rect) const {
  return static_cast<int>(std::count_if(lines_.begin(), lines_.end(), [&](const QLineF& line) {
    return Crosses(line, Grown(rect, gap_ / 2));
  }));
}

}  // namespace lignara
