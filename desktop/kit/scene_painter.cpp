#include "desktop/kit/scene_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/kit/drawing_painter.h"
#include "desktop/kit/scene_layout.h"
#include "desktop/kit/text.h"
#include "desktop/kit/warning_colour.h"

namespace lignara {
namespace {

struct StrokeLook {
  Stroke stroke;
  double width;  ///< in sixteenths of a letter's height
  Qt::PenStyle style;
};

constexpr std::array<StrokeLook, 4> kStrokes = {{{Stroke::Plain, 2.0, Qt::SolidLine},
                                                 {Stroke::Heavy, 4.2, Qt::SolidLine},
                                                 {Stroke::Fine, 1.6, Qt::SolidLine},
                                                 {Stroke::Dotted, 1.6, Qt::DotLine}}};

/// The broad bands below a line: dashes of amber below what departs from statics, red below what is
/// beyond its limit, the system's own colour of chosen things below the line that was chosen.
constexpr double kDoubtedBand = 15;
constexpr double kWarnedBand = 11;
constexpr double kLitBand = 14;

double UnitOf(const QPainter& painter) {
  return QFontMetricsF(painter.font(), painter.device()).height() / 16;
}

QColor BandColour(QColor colour, const QPalette& palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  colour.setAlpha(dark ? 170 : 100);
  return colour;
}

void PaintBand(QPainter& painter, const QLineF& line, const QColor& colour, double width) {
  painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(line);
}

/// Short dashes, so that they are told from the other bands without colour.
void PaintDashes(QPainter& painter, const QLineF& line, const QColor& colour, double width) {
  QPen pen(colour, width, Qt::CustomDashLine, Qt::FlatCap);
  pen.setDashPattern({0.35, 0.35});
  painter.setPen(pen);
  painter.drawLine(line);
}

/// Paints the parts of a scene one over the other.
class ScenePainter {
 public:
  ScenePainter(QPainter& painter, const VisiblePart& view, const QRectF& room, const Scene& scene,
               const QPalette& palette)
      : painter_(painter),
        view_(view),
        room_(room),
        scene_(scene),
        palette_(palette),
        ground_(palette.color(QPalette::Base)),
        layout_(LayOut(scene, view, room, QFontMetricsF(painter.font(), painter.device()))),
        unit_(layout_.unit) {}

  void Paint() {
    PaintLines();
    for (const SceneText& name : layout_.names) PaintCircle(scene_.lines[name.of]);
    for (const std::size_t load : layout_.loads) PaintLoad(scene_.loads[load]);
    for (const PointerArrow& pointer : scene_.pointers) PaintPointer(pointer);
    for (const SceneText& name : layout_.names) PaintText(name, scene_.lines[name.of].lit);
    for (const auto* texts : {&layout_.points, &layout_.values}) {
      for (const SceneText& text : *texts) PaintText(text, false);
    }
    PaintNote();
  }

 private:
  /// Where lines fall on each other they are painted as thin and as fast as can be.
  void PaintLines() {
    const bool smooth = painter_.testRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::Antialiasing, smooth && !layout_.dense);
    for (const NamedLine& line : scene_.lines) {
      PaintLine(painter_, Drawn(line),
                {line.colour, line.stroke, line.warned, line.lit, layout_.thinness, layout_.dense,
                 line.doubted},
                palette_);
    }
    painter_.setRenderHint(QPainter::Antialiasing, smooth);
  }

  QLineF Drawn(const NamedLine& line) const {
    return {view_.ToPixels({line.x1, line.y1}), view_.ToPixels({line.x2, line.y2})};
  }

  void SetPen(Colour colour, double width) {
    painter_.setPen(
        QPen(ColourOn(ground_, colour), width * unit_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }

  void PaintCircle(const NamedLine& line) {
    SetPen(Colour::Red, 1.6);
    const QPointF mark = view_.ToPixels({line.markX, line.markY});
    painter_.drawEllipse(mark, layout_.radius(), layout_.radius());
  }

  /// An arrow from `tail` to `tip`.
  void PaintArrow(const QPointF& tail, const QPointF& tip, double head) {
    painter_.drawLine(tail, tip);
    const double back = tail.y() < tip.y() ? -head : head;
    for (const double side : {-head * 0.6, head * 0.6}) {
      painter_.drawLine(tip + QPointF(side, back), tip);
    }
  }

  void PaintLoad(const LoadArrow& load) {
    SetPen(Colour::Black, 1.8);
    const QPointF node = view_.ToPixels({load.x, load.y});
    const QPointF low = node - QPointF(0, kLoadGap * unit_);
    const QPointF high = low - QPointF(0, kLoadLength * unit_);
    PaintArrow(load.up ? low : high, load.up ? high : low, 6 * unit_);
  }

  /// Over the arrow of the node's own load.
  void PaintPointer(const PointerArrow& pointer) {
    SetPen(Colour::Blue, 3);
    QPointF tip = view_.ToPixels({pointer.x, pointer.tip});
    QPointF tail = view_.ToPixels({pointer.x, pointer.top});
    const double node = view_.ToPixels({pointer.x, pointer.node}).y();
    const double clear = node - (kLoadGap + kLoadLength + 18) * unit_;
    const QPointF up(0, std::max(0.0, tip.y() - clear));
    PaintArrow(tail - up, tip - up, 9 * unit_);
  }

  /// A rim in the colour of the ground keeps a text legible where lines run behind it.
  void PaintText(const SceneText& text, bool bold) {
    QFont font = painter_.font();
    font.setBold(bold);
    const QFontMetricsF metrics(font, painter_.device());
    const QPointF base(text.rect.center().x() - metrics.horizontalAdvance(text.text) / 2,
                       text.rect.center().y() + metrics.capHeight() / 2);
    painter_.save();
    painter_.setFont(font);
    QPainterPath outline;
    outline.addText(base, font, text.text);
    painter_.setPen(palette_.color(QPalette::Text));
    painter_.strokePath(outline, QPen(ground_, 3 * unit_));
    painter_.drawText(base, text.text);
    painter_.restore();
  }

  void PaintNote() {
    if (scene_.note.empty()) return;
    const QRectF corner = room_.adjusted(8 * unit_, 6 * unit_, -8 * unit_, 0);
    painter_.setPen(WarningColour(palette_));
    painter_.drawText(corner, Qt::AlignTop | Qt::AlignLeft, ToQt(scene_.note));
  }

  QPainter& painter_;
  const VisiblePart& view_;
  const QRectF room_;
  const Scene& scene_;
  const QPalette& palette_;
  const QColor ground_;
  const SceneLayout layout_;
  const double unit_;
};

}  // namespace

void PaintLine(QPainter& painter, const QLineF& line, const LineLook& look,
               const QPalette& palette) {
  const double unit = UnitOf(painter);
  if (look.doubted) {
    PaintDashes(painter, line, BandColour(WarningColour(palette), palette),
                kDoubtedBand * look.thinness * unit);
  }
  if (look.warned) {
    PaintBand(painter, line, BandColour(AlarmColour(palette), palette),
              kWarnedBand * look.thinness * unit);
  }
  if (look.lit) {
    PaintBand(painter, line, BandColour(palette.color(QPalette::Highlight), palette),
              kLitBand * unit);
  }
  const auto stroke = std::find_if(kStrokes.begin(), kStrokes.end(), [&](const StrokeLook& entry) {
    return entry.stroke == look.stroke;
  });
  painter.setPen(QPen(ColourOn(palette.color(QPalette::Base), look.colour),
                      look.hairline ? 0 : stroke->width * look.thinness * unit, stroke->style,
                      Qt::RoundCap));
  painter.drawLine(line);
}

void PaintScene(QPainter& painter, const VisiblePart& view, const QRectF& room, const Scene& scene,
                const QPalette& palette) {
  // Letters measured in pixels are as high as a path as they are as a text, on any device.
  QFont font = painter.font();
  if (font.pixelSize() <= 0) {
    constexpr double kPointsPerInch = 72;
    const double pixels = font.pointSizeF() * painter.device()->logicalDpiY() / kPointsPerInch;
    font.setPixelSize(static_cast<int>(std::lround(pixels)));
  }
  painter.setFont(font);
  ScenePainter(painter, view, room, scene, palette).Paint();
}

}  // namespace lignara
