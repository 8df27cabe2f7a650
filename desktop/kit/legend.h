#pragma once

#include <QRectF>
#include <vector>

#include "app/scene.h"

class QPainter;
class QPalette;
class QWidget;

namespace lignara {

/// The height of a legend in one line of text; 0 for a legend without entries.
double LegendHeight(const std::vector<LegendEntry>& legend, double lineHeight);

/// Paints a legend in one line in the middle of its room, in the painter's font: of each entry a
/// piece of line and what it means.
void PaintLegend(QPainter& painter, const QRectF& room, const std::vector<LegendEntry>& legend,
                 const QPalette& palette);

/// A legend beside a picture: of each entry a piece of line and a label.
QWidget* MakeLegend(const std::vector<LegendEntry>& legend);

}  // namespace lignara
