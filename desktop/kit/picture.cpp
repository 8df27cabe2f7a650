#include "desktop/kit/picture.h"

#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// How a picture's units lie on the screen.
struct Fit {
  double scaleX = 1.0;
  double scaleY = 1.0;
  QPointF origin;

  QPointF Place(double x, double y) const {
    return {origin.x() + x * scaleX, origin.y() + y * scaleY};
  }
};

/// Keeps the ends of a diagram off the rim of its room.
constexpr double kDiagramMargin = 0.012;

Fit StretchInto(const QRectF& target, const Drawing& drawing) {
  const double margin = target.width() * kDiagramMargin;
  const QRectF room = target.adjusted(margin, margin, -margin, -margin);
  return {room.width() / drawing.width, room.height() / drawing.height, room.topLeft()};
}

Fit FitInto(const QRectF& target, const Drawing& drawing) {
  if (drawing.width <= 0 || drawing.height <= 0) return {};
  if (drawing.stretched) return StretchInto(target, drawing);
  const double scale = std::min(target.width() / drawing.width, target.height() / drawing.height);
  return {scale, scale,
          QPointF(target.x() + (target.width() - drawing.width * scale) / 2,
                  target.y() + (target.height() - drawing.height * scale) / 2)};
}

struct ScreenColour {
  Colour colour;
  const char* onLight;
  const char* onDark;
};

constexpr std::array<ScreenColour, 7> kColours = {{
    {Colour::Black, "#1c1c1c", "#ececec"},
    {Colour::Red, "#d01818", "#ff6b6b"},
    {Colour::Blue, "#1030e0", "#7aa2ff"},
    {Colour::Gray, "#808080", "#a0a0a0"},
    {Colour::RoyalBlue, "#2f5fd0", "#6f9bff"},
    {Colour::DarkOrange, "#d96a00", "#ffa040"},
    {Colour::Green, "#0a8a2a", "#5fd07a"},
}};

/// Among so many shapes no text can be read, and rims would only cost time.
constexpr std::size_t kCrowd = 2000;

/// Paints one shape after the other.
class ShapePainter {
 public:
  ShapePainter(QPainter& painter, const QRectF& target, const Drawing& drawing,
               const QColor& ground)
      : painter_(painter),
        target_(target),
        stretched_(drawing.stretched),
        fit_(FitInto(target, drawing)),
        ground_(ground),
        pixel_(painter.device()->logicalDpiY() / 96.0),
        rims_(drawing.shapes.size() < kCrowd) {
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::lround(TextPixels(drawing.textHeight))));
    painter.setFont(font);
  }

  void operator()(const LineShape& line) {
    SetPen(line.colour, 14.0);
    painter_.drawLine(fit_.Place(line.x1, line.y1), fit_.Place(line.x2, line.y2));
  }
  void operator()(const CircleShape& circle) {
    SetPen(circle.colour, 8.0);
    const double radius = circle.radius * fit_.scaleY;
    painter_.drawEllipse(fit_.Place(circle.x, circle.y), radius, radius);
  }
  /// A rim in the colour of the ground keeps a text legible where lines run behind it.
  void operator()(const TextShape& text) {
    const QPointF corner = Inward(fit_.Place(text.x, text.y), ToQt(text.text));
    const QPointF base(corner.x(), corner.y() + QFontMetricsF(painter_.font()).ascent());
    if (rims_) {
      QPainterPath outline;
      outline.addText(base, painter_.font(), ToQt(text.text));
      painter_.strokePath(outline, QPen(ground_, painter_.font().pixelSize() / 4.0));
    }
    painter_.setPen(ColourOn(ground_, text.colour));
    painter_.drawText(base, ToQt(text.text));
  }

 private:
  double TextPixels(double height) const {
    const double pixels = height * fit_.scaleY;
    return stretched_ ? std::clamp(pixels, 10 * pixel_, 15 * pixel_) : std::max(7.0, pixels);
  }
  /// The corner of a text, moved so that a diagram shows it whole.
  QPointF Inward(const QPointF& corner, const QString& text) const {
    if (!stretched_) return corner;
    const QFontMetricsF metrics(painter_.font());
    const double right = target_.right() - metrics.horizontalAdvance(text);
    const double bottom = target_.bottom() - metrics.height();
    return {std::max(target_.left(), std::min(corner.x(), right)),
            std::max(target_.top(), std::min(corner.y(), bottom))};
  }
  void SetPen(Colour colour, double width) {
    const double pixels = stretched_ ? 1.5 * pixel_ : std::max(1.2, width * fit_.scaleY);
    painter_.setPen(QPen(ColourOn(ground_, colour), pixels, Qt::SolidLine, Qt::RoundCap));
  }

  QPainter& painter_;
  const QRectF target_;
  const bool stretched_;
  const Fit fit_;
  const QColor ground_;
  const double pixel_;  ///< of a screen, on the device at hand
  const bool rims_;
};

}  // namespace

QColor ColourOn(const QColor& ground, Colour colour) {
  const bool dark = ground.lightness() < 128;
  for (const ScreenColour& entry : kColours) {
    if (entry.colour == colour) return QColor(dark ? entry.onDark : entry.onLight);
  }
  return dark ? Qt::white : Qt::black;
}

void PaintDrawing(QPainter& painter, const QRectF& target, const Drawing& drawing,
                  const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  ShapePainter shapes(painter, target, drawing, palette.color(QPalette::Base));
  for (const Shape& shape : drawing.shapes) std::visit(shapes, shape);
  painter.restore();
}

Picture::Picture(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Picture::SetDrawing(const Drawing& drawing) {
  if (drawing == drawing_) return;
  drawing_ = drawing;
  update();
}

void Picture::OnPress(std::function<void(double, double)> press) { press_ = std::move(press); }

void Picture::OnHover(std::function<bool(double, double)> isTarget) {
  isTarget_ = std::move(isTarget);
  setMouseTracking(true);
}

void Picture::OnMove(std::function<void(double, double)> move) {
  move_ = std::move(move);
  setMouseTracking(true);
}

void Picture::PressAt(double x, double y) {
  if (move_) move_(x, y);
  if (press_) press_(x, y);
}

bool Picture::SavePng(const QString& path) {
  QImage image(size() * 2, QImage::Format_RGB32);
  image.setDevicePixelRatio(2.0);
  render(&image);
  return image.save(path, "PNG");
}

void Picture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  PaintDrawing(painter, rect(), drawing_, palette());
}

void Picture::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPointF place = ToDrawing(event->position());
  PressAt(place.x(), place.y());
}

void Picture::mouseMoveEvent(QMouseEvent* event) {
  const QPointF place = ToDrawing(event->position());
  if (move_) move_(place.x(), place.y());
  if (!isTarget_) return;
  setCursor(isTarget_(place.x(), place.y()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void Picture::contextMenuEvent(QContextMenuEvent* event) {
  if (!save_) return;
  QMenu menu(this);
  menu.addAction("Save Picture As...", this, [this] { save_(); });
  menu.exec(event->globalPos());
}

QPointF Picture::ToDrawing(const QPointF& position) const {
  const Fit fit = FitInto(rect(), drawing_);
  const QPointF from = position - fit.origin;
  const QPointF place(from.x() / fit.scaleX, from.y() / fit.scaleY);
  if (!drawing_.stretched) return place;
  // The margin of a diagram belongs to its ends.
  return {std::clamp(place.x(), 0.0, drawing_.width), std::clamp(place.y(), 0.0, drawing_.height)};
}

}  // namespace lignara
