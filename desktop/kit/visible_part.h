#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace lignara {

/// How the user looks at a picture: which part of it, and how large. The picture's own units know
/// nothing of it.
class VisiblePart {
 public:
  /// The part of a drawing, in its units, that holds all there is to see.
  void SetContent(const QRectF& content);
  /// The room on the screen, in pixels.
  void SetRoom(const QSizeF& room);

  /// The whole content, in the middle of the room.
  void Fit();
  /// Larger or smaller by a factor; what lies at a place of the room stays there.
  void ZoomAt(const QPointF& pixel, double factor);
  void MoveBy(const QPointF& pixels);

  /// Pixels a unit.
  double scale() const { return FitScale(home_) * zoom_; }
  /// 1 when the content fitted last fills the room.
  double zoom() const { return zoom_; }
  QPointF ToPixels(const QPointF& place) const;
  QPointF ToDrawing(const QPointF& pixel) const;

 private:
  double FitScale(const QRectF& box) const;
  /// At least half of the content, or content in half of the room, stays in sight, whatever a
  /// command or a hand does.
  void KeepInSight();

  QRectF content_{0, 0, 1, 1};
  QRectF home_{0, 0, 1, 1};  ///< the content that was fitted last
  QSizeF room_{1, 1};
  double zoom_ = 1;
  QPointF centre_{0.5, 0.5};  ///< of the room, in units of the drawing
};

}  // namespace lignara
