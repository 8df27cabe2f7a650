#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>

#include "app/drawing.h"
#include "desktop/kit/visible_part.h"

class QPainter;

namespace lignara {

/// A colour of drawings as it is legible on a light or a dark ground.
QColor ColourOn(const QColor& ground, Colour colour);

/// The place of a drawing that lies under a pixel of its room.
QPointF PlaceAt(const VisiblePart& view, const QRectF& room, const Drawing& drawing,
                const QPointF& pixel);

/// What of a drawing is to be seen at once, in its units: its scene, or the whole of its room.
QRectF ContentOf(const Drawing& drawing);

/// Paints a drawing into a rectangle, as large as fits, true to shape unless it may be stretched.
/// On a dark palette what the drawing calls black is light.
void PaintDrawing(QPainter& painter, const QRectF& target, const Drawing& drawing,
                  const QPalette& palette);

/// Paints a drawing as a view shows it; the view's room begins at the painter's origin.
void PaintDrawing(QPainter& painter, const VisiblePart& view, const QRectF& room,
                  const Drawing& drawing, const QPalette& palette);

}  // namespace lignara
