#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <variant>
#include <vector>

#include "app/report.h"

class QPagedPaintDevice;
class QPaintDevice;

namespace lignara {

struct PlacedText {
  QString text;
  QRectF room;  ///< in units of the device, from the corner of the text area
};

struct PlacedDrawing {
  const Drawing* drawing;
  QRectF room;
};

using PlacedItem = std::variant<PlacedText, PlacedDrawing>;
using PaperPage = std::vector<PlacedItem>;

/// Flags for drawing the text of an item: one that does not fit beside the margin goes on below.
inline constexpr int kWrapped = Qt::TextWordWrap | Qt::AlignTop | Qt::AlignLeft;

/// The sheet without its margins, in units of the device.
QRectF TextArea(const QPagedPaintDevice& paper);

/// Lays a report out on pages with a text area of this size. A page that is full goes on with the
/// column heads in force; it is not left for two lines, which stand in the margin then.
std::vector<PaperPage> LayOut(const Report& report, const QFont& font, QPaintDevice* device,
                              const QSizeF& area);

/// Puts "Page 1 of 3" at the right end of the upper margin of each page, where no print zone is.
void NumberPages(std::vector<PaperPage>& pages, const QFont& font, QPaintDevice* device,
                 const QSizeF& area);

}  // namespace lignara
