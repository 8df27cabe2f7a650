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
  PagePainter(QPagedPaintDevice& paper, QPainter& painter, const QRectF& area)
      : paper_(paper), painter_(painter), area_(area) {}

  void Paint(const std::vector<PaperPage>& pages) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0) paper_.newPage();
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
    const double base = kPageNumber * paper_.logicalDpiY();
    const QRectF room(area_.left(), 0, area_.width(), base);
    painter_.drawText(room, Qt::AlignRight | Qt::AlignBottom,
                      QString("Page %1 of %2").arg(page).arg(pages));
  }

  QPagedPaintDevice& paper_;
  QPainter& painter_;
  const QRectF area_;
};

/// The sheet without its margins, in dots.
QRectF TextArea(const QPagedPaintDevice& paper) {
  const int dots = paper.logicalDpiX();
  const double margin = kMargin * dots;
  return QRectF(paper.pageLayout().fullRectPixels(dots)).adjusted(margin, margin, -margin, -margin);
}

/// Paints a report on sheets of letter size. False when they cannot be painted on.
bool PaintReport(const Report& report, QPagedPaintDevice& paper) {
  paper.setPageSize(QPageSize(QPageSize::Letter));
  QPainter painter;
  if (!painter.begin(&paper)) return false;
  painter.setFont(FontOf(report));
  const QRectF area = TextArea(paper);
  PagePainter(paper, painter, area).Paint(LayOut(report, FontOf(report), &paper, area.size()));
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
