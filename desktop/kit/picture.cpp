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
  double scale = 1.0;
  QPointF origin;
};

Fit FitInto(const QRectF& target, const Drawing& drawing) {
  Fit fit;
  if (drawing.width <= 0 || drawing.height <= 0) return fit;
  fit.scale = std::min(target.width() / drawing.width, target.height() / drawing.height);
  fit.origin = {target.x() + (target.width() - drawing.width * fit.scale) / 2,
                target.y() + (target.height() - drawing.height * fit.scale) / 2};
  return fit;
}

struct ScreenColour {
  Colour colour;
  const char* onLight;
  const char* onDark;
};

constexpr std::array<ScreenColour, 6> kColours = {{
    {Colour::Black, "#1c1c1c", "#ececec"},
    {Colour::Red, "#d01818", "#ff6b6b"},
    {Colour::Blue, "#1030e0", "#7aa2ff"},
    {Colour::Gray, "#808080", "#a0a0a0"},
    {Colour::RoyalBlue, "#2f5fd0", "#6f9bff"},
    {Colour::DarkOrange, "#d96a00", "#ffa040"},
}};

/// Among so many shapes no text can be read, and rims would only cost time.
constexpr std::size_t kCrowd = 2000;

/// Paints one shape after the other.
class ShapePainter {
 public:
  ShapePainter(QPainter& painter, const Drawing& drawing, const Fit& fit, const QColor& ground)
      : painter_(painter), fit_(fit), ground_(ground), rims_(drawing.shapes.size() < kCrowd) {
    QFont font = painter.font();
    font.setPixelSize(std::max(7, static_cast<int>(std::lround(drawing.textHeight * fit.scale))));
    painter.setFont(font);
  }

  void operator()(const LineShape& line) {
    SetPen(line.colour, 14.0);
    painter_.drawLine(Place(line.x1, line.y1), Place(line.x2, line.y2));
  }
  void operator()(const CircleShape& circle) {
    SetPen(circle.colour, 8.0);
    const double radius = circle.radius * fit_.scale;
    painter_.drawEllipse(Place(circle.x, circle.y), radius, radius);
  }
  /// A rim in the colour of the ground keeps a text legible where lines run behind it.
  void operator()(const TextShape& text) {
    const QPointF corner = Place(text.x, text.y);
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
  QPointF Place(double x, double y) const {
    return {fit_.origin.x() + x * fit_.scale, fit_.origin.y() + y * fit_.scale};
  }
  void SetPen(Colour colour, double width) {
    painter_.setPen(QPen(ColourOn(ground_, colour), std::max(1.2, width * fit_.scale),
                         Qt::SolidLine, Qt::RoundCap));
  }

  QPainter& painter_;
  const Fit fit_;
  const QColor ground_;
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
  ShapePainter shapes(painter, drawing, FitInto(target, drawing), palette.color(QPalette::Base));
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

void Picture::PressAt(double x, double y) {
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
  if (!isTarget_) return;
  const QPointF place = ToDrawing(event->position());
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
  return (position - fit.origin) / fit.scale;
}

}  // namespace lignara
