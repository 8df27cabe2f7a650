#pragma once

#include <QLineF>
#include <QRectF>
#include <limits>
#include <optional>
#include <vector>

namespace lignara {

/// What is taken on a picture, in pixels, and where a name still finds room.
class NameRoom {
 public:
  /// `room`: no name leaves it. `gap`: the least distance of names from what is taken.
  NameRoom(const QRectF& room, double gap) : room_(room), gap_(gap) {}

  /// A line may be crossed by a name, but only where there is no better place.
  void AddLine(const QLineF& line);
  /// No name but its own touches a circle.
  void AddCircle(const QPointF& centre, double radius) { circles_.push_back({centre, radius}); }
  void Take(const QRectF& rect) { taken_.push_back(rect); }

  /// A place for a name beside the circle at `centre`, the nearer to the direction `wish` the
  /// better; takes it. Nothing where all places are taken.
  std::optional<QRectF> PlaceBeside(const QPointF& centre, double radius, const QPointF& wish,
                                    const QSizeF& size);
  /// True where nothing but lines is in the way of a rectangle.
  bool IsFree(const QRectF& rect) const;

 private:
  struct Circle {
    QPointF centre;
    double radius;
  };

  /// Where a name could stand, and what is against it.
  struct Place {
    std::optional<QRectF> rect;
    double cost = std::numeric_limits<double>::infinity();
  };

  /// Takes a place for the best one where it is free and costs less.
  void Try(Place place, Place& best) const;
  int LinesAcross(const QRectF& rect) const;

  QRectF room_;
  double gap_;
  std::vector<QLineF> lines_;
  std::vector<Circle> circles_;
  std::vector<QRectF> taken_;
};

}  // namespace lignara
