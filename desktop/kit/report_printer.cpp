#include "desktop/kit/report_printer.h"

#include <QBuffer>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "app/launcher.h"
#include "app/report.h"
#include "app/report_file.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/drawing_painter.h"
#include "desktop/kit/legend.h"
#include "desktop/kit/page_layout.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

QFont FontOf(const Report& report) {
  QFont font(ToQt(report.fontName), report.fontSize);
  font.setStyleHint(QFont::Serif);
  return font;
}

/// Paints one page after the other.
class PagePainter {
 public:
  PagePainter(QPagedPaintDevice& paper, QPainter& painter, const QRectF& area)
      : paper_(paper), painter_(painter), area_(area) {}

  void Paint(const std::vector<PaperPage>& pages) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0) paper_.newPage();
      for (const PlacedItem& item : pages[i]) std::visit(*this, item);
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
  QPagedPaintDevice& paper_;
  QPainter& painter_;
  const QRectF area_;
};

/// Paints a report on sheets of letter size. False when they cannot be painted on.
bool PaintReport(const Report& report, QPagedPaintDevice& paper) {
  paper.setPageSize(QPageSize(QPageSize::Letter));
  QPainter painter;
  if (!painter.begin(&paper)) return false;
  const QFont font = FontOf(report);
  painter.setFont(font);
  const QRectF area = TextArea(paper);
  std::vector<PaperPage> pages = LayOut(report, font, &paper, area.size());
  NumberPages(pages, font, &paper, area.size());
  PagePainter(paper, painter, area).Paint(pages);
  return painter.end();
}

void SendToPrinter(const Report& report, DesktopPlatform& platform) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(platform.DocumentName());
  printer.setCreator(kProgramName);
  printer.setFullPage(true);
  if (PaintReport(report, printer)) {
    platform.ShowNote(FromQt("Sent to " + printer.printerName()));
  } else {
    platform.ShowMessage({"The report could not be printed."});
  }
}

QByteArray PdfOf(const Report& report, const QString& title) {
  QBuffer pdf;
  pdf.open(QIODevice::WriteOnly);
  QPdfWriter writer(&pdf);
  writer.setTitle(title);
  writer.setCreator(kProgramName);
  writer.setPageMargins(QMarginsF());
  PaintReport(report, writer);
  return pdf.data();
}

/// Made whole before a byte is written, so that the file is whole too, or told and gone.
void WritePdf(const Report& report, DesktopPlatform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform, kPdfFilter);
  if (!file) return;
  const QByteArray pdf = PdfOf(report, platform.DocumentName());
  WriteWhole(*file, {pdf.constData(), static_cast<std::size_t>(pdf.size())}, platform);
}

}  // namespace

void PrintOnPaper(const Report& report, DesktopPlatform& platform) {
  if (QPrinterInfo::defaultPrinter().isNull()) {
    WritePdf(report, platform);
  } else {
    SendToPrinter(report, platform);
  }
}

}  // namespace lignara
