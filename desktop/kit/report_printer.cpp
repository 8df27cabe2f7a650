#include "desktop/kit/report_printer.h"

#include <QPainter>
#include <QPalette>
#include <QPrinter>
#include <QPrinterInfo>

#include "app/launcher.h"
#include "app/report.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/drawing_painter.h"
#include "desktop/kit/legend.h"
#include "desktop/kit/page_layout.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

constexpr double kMargin = 0.75;      ///< around the text, inches
constexpr double kPageNumber = 0.45;  ///< of the page number below the upper edge, inches

QFont FontOf(const Report& report) {
  QFont font(ToQt(report.fontName), report.fontSize);
  font.setStyleHint(QFont::Serif);
  return font;
}

/// Paints one page after the other.
class PagePainter {
 public:
  PagePainter(QPrinter& printer, QPainter& painter, const QRectF& area)
      : printer_(printer), painter_(painter), area_(area) {}

  void Paint(const std::vector<PaperPage>& pages) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0) printer_.newPage();
      for (const PlacedItem& item : pages[i]) std::visit(*this, item);
      PaintNumber(i + 1, pages.size());
    }
  }

  void operator()(const PlacedText& item) {
    painter_.drawText(item.room.translated(area_.topLeft()), kWrapped, item.text);
  }

  /// The legend takes the foot of the drawing's room.
  void operator()(const PlacedDrawing& item) {
    const QPalette paper(Qt::white);
    const std::vector<LegendEntry>& legend = item.drawing->scene.legend;
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    QRectF room = item.room.translated(area_.topLeft());
    QRectF foot = room;
    room.setBottom(room.bottom() - LegendHeight(legend, metrics.lineSpacing()));
    foot.setTop(room.bottom());
    PaintDrawing(painter_, room, *item.drawing, paper);
    PaintLegend(painter_, foot, legend, paper);
  }

 private:
  /// In the upper margin, where no print zone is.
  void PaintNumber(std::size_t page, std::size_t pages) {
    const double base = kPageNumber * printer_.resolution();
    const QRectF room(area_.left(), 0, area_.width(), base);
    painter_.drawText(room, Qt::AlignRight | Qt::AlignBottom,
                      QString("Page %1 of %2").arg(page).arg(pages));
  }

  QPrinter& printer_;
  QPainter& painter_;
  const QRectF area_;
};

/// The paper without its margins, in units of the printer.
QRectF TextArea(const QPrinter& printer) {
  const double margin = kMargin * printer.resolution();
  return printer.paperRect(QPrinter::DevicePixel).adjusted(margin, margin, -margin, -margin);
}

}  // namespace

void PrintOnPaper(const Report& report, DesktopPlatform& platform) {
  QPrinter printer(QPrinter::HighResolution);
  if (QPrinterInfo::defaultPrinter().isNull()) {
    const auto path = platform.ChooseSaveFile(kPdfFilter);
    if (!path) return;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt(*path));
  }
  printer.setDocName(platform.DocumentName());
  printer.setCreator(kProgramName);
  printer.setPageSize(QPageSize(QPageSize::Letter));
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) {
    platform.ShowMessage({"The report could not be printed."});
    return;
  }
  painter.setFont(FontOf(report));
  const QRectF area = TextArea(printer);
  PagePainter(printer, painter, area).Paint(LayOut(report, FontOf(report), &printer, area.size()));
  const QString file = printer.outputFileName();
  platform.ShowNote(
      FromQt(file.isEmpty() ? "Sent to " + printer.printerName() : "Saved to " + file));
}

}  // namespace lignara
