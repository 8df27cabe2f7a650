#include "desktop/kit/program_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <vector>

namespace lignara {
namespace {

struct Stroke {
  const char* colour;
  double width;
  std::vector<QPointF> points;
  bool filled = false;
};

/// The same truss under a load as in the desktop's icon file, on a square of 128.
const std::vector<Stroke>& Strokes() {
  static const std::vector<Stroke> strokes = {
      {"#b4834a", 6, {{42, 92}, {42, 71}}},
      {"#b4834a", 6, {{86, 92}, {86, 71}}},
      {"#b4834a", 6, {{42, 92}, {64, 50}, {86, 92}}},
      {"#b4834a", 6, {{64, 50}, {64, 92}}},
      {"#6f4519", 9, {{20, 92}, {64, 50}, {108, 92}, {20, 92}}},
      {"#4a4a4a", 1, {{20, 96}, {12, 110}, {28, 110}, {20, 96}}, true},
      {"#4a4a4a", 1, {{108, 96}, {100, 110}, {116, 110}, {108, 96}}, true},
      {"#2f5fd0", 5, {{64, 14}, {64, 32}}},
      {"#2f5fd0", 5, {{57, 26}, {64, 36}, {71, 26}}},
  };
  return strokes;
}

QPixmap Paint(int size) {
  constexpr double kSquare = 128;
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kSquare, size / kSquare);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor("#f6efe2"));
  painter.drawRoundedRect(QRectF(4, 4, 120, 120), 20, 20);
  for (const Stroke& stroke : Strokes()) {
    QPainterPath path(stroke.points.front());
    for (const QPointF& point : stroke.points) path.lineTo(point);
    painter.setBrush(stroke.filled ? QBrush(QColor(stroke.colour)) : QBrush(Qt::NoBrush));
    painter.setPen(
        QPen(QColor(stroke.colour), stroke.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
  }
  return pixmap;
}

}  // namespace

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(Paint(size));
  return icon;
}

}  // namespace lignara
