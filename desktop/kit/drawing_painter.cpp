#include "desktop/kit/drawing_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "desktop/kit/curve_stroke.h"
#include "desktop/kit/scene_painter.h"
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

Fit FitOf(const VisiblePart& view, const QRectF& room, const Drawing& drawing) {
  if (drawing.stretched) return StretchInto(room, drawing);
  return {view.scale(), view.scale(), view.ToPixels({0, 0})};
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
  ShapePainter(QPainter& painter, const QRectF& target, const Drawing& drawing, const Fit& fit,
               const QColor& ground)
      : painter_(painter),
        target_(target),
        stretched_(drawing.stretched),
        fit_(fit),
        ground_(ground),
        pixel_(painter.device()->logicalDpiY() / 96.0),
        rims_(drawing.stretched || drawing.shapes.size() < kCrowd),
        curve_(painter, pixel_ / 2) {
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::lround(TextPixels(drawing.textHeight))));
    painter.setFont(font);
  }

  void operator()(const LineShape& line) {
    const QPointF from = fit_.Place(line.x1, line.y1), to = fit_.Place(line.x2, line.y2);
    if (line.colour != penColour_) {
      penColour_ = line.colour;
      linePen_ = PenOf(line.colour, 14.0);
    }
    if (stretched_) return curve_.Add(from, to, linePen_);
    painter_.setPen(linePen_);
    painter_.drawLine(from, to);
  }
  void operator()(const CircleShape& circle) {
    Finish();
    painter_.setPen(PenOf(circle.colour, 8.0));
    const double radius = circle.radius * fit_.scaleY;
    painter_.drawEllipse(fit_.Place(circle.x, circle.y), radius, radius);
  }
  /// A rim in the colour of the ground keeps a text legible where lines run behind it.
  void operator()(const TextShape& text) {
    Finish();
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
  /// The lines of a diagram are gathered, since a curve may have thousands.
  void Finish() { curve_.Finish(); }

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
  QPen PenOf(Colour colour, double width) const {
    const double pixels = stretched_ ? kCurveWidth * pixel_ : std::max(1.2, width * fit_.scaleY);
    return {ColourOn(ground_, colour), pixels, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
  }

  QPainter& painter_;
  const QRectF target_;
  const bool stretched_;
  const Fit fit_;
  const QColor ground_;
  const double pixel_;  ///< of a screen, on the device at hand
  const bool rims_;
  std::optional<Colour> penColour_;  ///< of the line before, which most lines go on
  QPen linePen_;
  CurveStroke curve_;
};

}  // namespace

QColor ColourOn(const QColor& ground, Colour colour) {
  const bool dark = ground.lightness() < 128;
  for (const ScreenColour& entry : kColours) {
    if (entry.colour == colour) return QColor(dark ? entry.onDark : entry.onLight);
  }
  return dark ? Qt::white : Qt::black;
}

QPointF PlaceAt(const VisiblePart& view, const QRectF& room, const Drawing& drawing,
                const QPointF& pixel) {
  if (!drawing.stretched) return view.ToDrawing(pixel);
  const Fit fit = StretchInto(room, drawing);
  const QPointF from = pixel - fit.origin;
  // The margin of a diagram belongs to its ends.
  return {std::clamp(from.x() / fit.scaleX, 0.0, drawing.width),
          std::clamp(from.y() / fit.scaleY, 0.0, drawing.height)};
}

QRectF ContentOf(const Drawing& drawing) {
  const Scene& scene = drawing.scene;
  if (scene.lines.empty()) return {0, 0, drawing.width, drawing.height};
  return {QPointF(scene.left, scene.top), QPointF(scene.right, scene.bottom)};
}

void PaintDrawing(QPainter& painter, const QRectF& target, const Drawing& drawing,
                  const QPalette& palette) {
  VisiblePart view;
  view.SetContent(ContentOf(drawing));
  view.SetRoom(target.size());
  view.Fit();
  painter.save();
  painter.translate(target.topLeft());
  PaintDrawing(painter, view, QRectF(QPointF(0, 0), target.size()), drawing, palette);
  painter.restore();
}

void PaintDrawing(QPainter& painter, const VisiblePart& view, const QRectF& room,
                  const Drawing& drawing, const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  if (!drawing.scene.lines.empty()) {
    PaintScene(painter, view, room, drawing.scene, palette);
  } else {
    ShapePainter shapes(painter, room, drawing, FitOf(view, room, drawing),
                        palette.color(QPalette::Base));
    for (const Shape& shape : drawing.shapes) std::visit(shapes, shape);
    shapes.Finish();
  }
  painter.restore();
}

}  // namespace lignara
