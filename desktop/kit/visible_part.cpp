#include "desktop/kit/visible_part.h"

#include <algorithm>

namespace lignara {
namespace {

constexpr double kLargestZoom = 40;

/// A box that can be divided by.
QRectF Solid(const QRectF& box) {
  return {box.topLeft(), QSizeF(std::max(box.width(), 1.0), std::max(box.height(), 1.0))};
}

/// By how much a span of pixels has to move so that enough of it lies between 0 and `room`.
double Shift(double from, double size, double room) {
  const double least = std::min(size, room) / 2;
  if (from + size < least) return least - from - size;
  return from > room - least ? room - least - from : 0.0;
}

}  // namespace

void VisiblePart::SetContent(const QRectF& content) {
  content_ = Solid(content);
  KeepInSight();
}

void VisiblePart::SetRoom(const QSizeF& room) {
  room_ = {std::max(room.width(), 1.0), std::max(room.height(), 1.0)};
  KeepInSight();
}

void VisiblePart::Fit() {
  home_ = content_;
  zoom_ = 1;
  centre_ = home_.center();
}

void VisiblePart::ZoomAt(const QPointF& pixel, double factor) {
  const QPointF held = ToDrawing(pixel);
  const double smallest = std::min(1.0, FitScale(content_) / FitScale(home_));
  zoom_ = std::clamp(zoom_ * factor, smallest, kLargestZoom);
  MoveBy(pixel - ToPixels(held));
}

void VisiblePart::MoveBy(const QPointF& pixels) {
  centre_ -= pixels / scale();
  KeepInSight();
}

QPointF VisiblePart::ToPixels(const QPointF& place) const {
  return (place - centre_) * scale() + QPointF(room_.width(), room_.height()) / 2;
}

QPointF VisiblePart::ToDrawing(const QPointF& pixel) const {
  return (pixel - QPointF(room_.width(), room_.height()) / 2) / scale() + centre_;
}

double VisiblePart::FitScale(const QRectF& box) const {
  return std::min(room_.width() / box.width(), room_.height() / box.height());
}

void VisiblePart::KeepInSight() {
  const QPointF corner = ToPixels(content_.topLeft());
  const QSizeF size = content_.size() * scale();
  const QPointF shift(Shift(corner.x(), size.width(), room_.width()),
                      Shift(corner.y(), size.height(), room_.height()));
  centre_ -= shift / scale();
}

}  // namespace lignara
