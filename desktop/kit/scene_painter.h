#pragma once

#include <QLineF>
#include <QPalette>
#include <QRectF>

#include "app/scene.h"
#include "desktop/kit/visible_part.h"

class QPainter;

namespace lignara {

/// How a line of a scene is drawn.
struct LineLook {
  Colour colour = Colour::Black;
  Stroke stroke = Stroke::Plain;
  bool warned = false;
  bool lit = false;
  double thinness = 1;    ///< of the stroke, where lines are dense
  bool hairline = false;  ///< as thin as the paper or the screen can show
  bool doubted = false;
};

/// Draws a line in its look; all widths go with the height of the painter's letters.
void PaintLine(QPainter& painter, const QLineF& line, const LineLook& look,
               const QPalette& palette);

/// Paints a scene as a view shows it, in the painter's font. Where names do not find room, circles
/// and names thin out evenly; each name stands beside its own circle and on no other.
void PaintScene(QPainter& painter, const VisiblePart& view, const QRectF& room, const Scene& scene,
                const QPalette& palette);

}  // namespace lignara
