#include "desktop/kit/report_printer.h"

#include <QPainter>
#include <QPalette>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "app/report.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/picture.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// A drawing takes no more of a page's height than this, so that the figures stand below it.
constexpr double kDrawingShare = 0.36;

/// Puts the items of a report on the pages of a printer, one below the other.
class PagePainter {
 public:
  PagePainter(QPrinter& printer, QPainter& painter, const Report& report)
      : printer_(printer),
        painter_(painter),
        page_(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size()) {
    QFont font(ToQt(report.fontName), report.fontSize);
    font.setStyleHint(QFont::Serif);
    painter_.setFont(font);
    const QFontMetricsF metrics(font, &printer);
    lineHeight_ = metrics.lineSpacing();
    // Letters differ in width; digits do not, and a zone has to hold the numbers of a column.
    zoneWidth_ = metrics.horizontalAdvance('0') * static_cast<double>(kPrintZone);
  }

  void operator()(const ReportLine& line) {
    const std::vector<PlacedItem> items = PlaceItems(line);
    double height = lineHeight_;
    for (const PlacedItem& item : items) height = std::max(height, item.room.height());
    if (y_ > 0 && y_ + height > page_.height()) operator()(NewPage{});
    for (const PlacedItem& item : items) {
      painter_.drawText(item.room.translated(0, y_), kWrapped, item.text);
    }
    y_ += height;
  }

  void operator()(const NewPage&) {
    printer_.newPage();
    y_ = 0;
  }

  void operator()(const Drawing& drawing) {
    const double height =
        std::min(page_.width() * drawing.height / drawing.width, page_.height() * kDrawingShare);
    if (y_ > 0 && y_ + height > page_.height()) operator()(NewPage{});
    PaintDrawing(painter_, QRectF(0, y_, page_.width(), height), drawing, QPalette(Qt::white));
    y_ += height;
  }

 private:
  struct PlacedItem {
    QString text;
    QRectF room;
  };

  /// The items in their zones; one that does not fit beside the margin goes on in lines below.
  std::vector<PlacedItem> PlaceItems(const ReportLine& line) const {
    std::vector<PlacedItem> items;
    double x = zoneWidth_ * static_cast<double>(line.emptyZones);
    for (const std::string& item : line.items) {
      const QRectF room(x, 0, page_.width() - x, page_.height());
      items.push_back({ToQt(item), painter_.boundingRect(room, kWrapped, ToQt(item))});
      x += zoneWidth_ * static_cast<double>(item.size() / kPrintZone + 1);
    }
    return items;
  }

  static constexpr int kWrapped = Qt::TextWordWrap | Qt::AlignTop | Qt::AlignLeft;

  QPrinter& printer_;
  QPainter& painter_;
  const QRectF page_;
  double lineHeight_ = 0;
  double zoneWidth_ = 0;
  double y_ = 0;
};

}  // namespace

void PrintOnPaper(const Report& report, DesktopPlatform& platform) {
  QPrinter printer(QPrinter::HighResolution);
  if (QPrinterInfo::defaultPrinter().isNull()) {
    const auto path = platform.ChooseSaveFile("PDF(*.pdf)|*.pdf|");
    if (!path) return;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt(*path));
  }
  printer.setPageSize(QPageSize(QPageSize::Letter));
  printer.setPageMargins(QMarginsF(0.75, 0.75, 0.75, 0.75), QPageLayout::Inch);
  QPainter painter;
  if (!painter.begin(&printer)) {
    platform.ShowMessage({"The report could not be printed."});
    return;
  }
  PagePainter page(printer, painter, report);
  for (const Report::Item& item : report.items()) std::visit(page, item);
}

}  // namespace lignara
