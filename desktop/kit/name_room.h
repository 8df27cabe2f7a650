#pragma once

#include <QLineF>
#include <QRectF>
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
  void Take(const QRectF& box) { taken_.push_back(box); }

  /// A place for a name beside the circle at `centre`, the nearer to the direction `wish` the
  /// better; takes it. Nothing where all places are taken.
  std::optional<QRectF> PlaceBeside(const QPointF& centre, double radius, const QPointF& wish,
                                    const QSizeF& size);
  /// True where nothing but lines is in the way of a box.
  bool IsFree(const QRectF& box) const;

 private:
  struct Circle {
    QPointF centre;
    double radius;
  };

  int LinesAcross(const QRectF& box) const;

  QRectF room_;
  double gap_;
  std::vector<QLineF> lines_;
  std::vector<Circle> circles_;
  std::vector<QRectF> taken_;
};

}  // namespace lignara
