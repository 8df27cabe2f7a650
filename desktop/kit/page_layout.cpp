#include "desktop/kit/page_layout.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <algorithm>
#include <cmath>

#include "desktop/kit/legend.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

constexpr double kMargin = 0.75;      ///< around the text, inches
constexpr double kPageNumber = 0.45;  ///< of the page number below the upper edge, inches

/// A drawing takes no more of a page's height than this, so that the figures stand below it.
constexpr double kDrawingShare = 0.36;
/// Height by width of a drawing that has no shape of its own; three and a sketch fill a page.
constexpr double kDiagramShape = 0.24;

/// So many lines are not worth a page of their own.
constexpr std::ptrdiff_t kFewLines = 2;

class PageMaker {
 public:
  PageMaker(const Report& report, const QFont& font, QPaintDevice* device, const QSizeF& area)
      : report_(report), metrics_(font, device), area_(area) {
    // Letters differ in width; digits do not, and a zone has to hold the numbers of a column.
    zoneWidth_ = metrics_.horizontalAdvance('0') * static_cast<double>(kPrintZone);
  }

  std::vector<PaperPage> Make() {
    for (at_ = report_.items().begin(); at_ != report_.items().end(); ++at_) {
      std::visit(*this, *at_);
    }
    return std::move(pages_);
  }

  void operator()(const ReportLine& line) {
    KeepHeads(line);
    const std::vector<PlacedText> items = PlaceItems(line);
    if (y_ > 0 && y_ + HeightOf(items) > area_.height() && !FewLinesLeft()) GoOn(line);
    Put(items);
  }

  void operator()(const NewPage&) {
    heads_.clear();
    pages_.emplace_back();
    y_ = 0;
  }

  void operator()(const Drawing& drawing) {
    const double shape = drawing.stretched ? kDiagramShape : drawing.height / drawing.width;
    const double height = std::min(area_.width() * shape, area_.height() * kDrawingShare) +
                          LegendHeight(drawing.scene.legend, metrics_.lineSpacing());
    if (y_ > 0 && y_ + height > area_.height()) operator()(NewPage{});
    pages_.back().push_back(PlacedDrawing{&drawing, QRectF(0, y_, area_.width(), height)});
    y_ += height;
  }

 private:
  /// Heads hold until a blank line or other heads; several lines of heads are one block.
  void KeepHeads(const ReportLine& line) {
    if (line.items.empty() || (line.heads && !headsBefore_)) heads_.clear();
    if (line.heads) heads_.push_back(&line);
    headsBefore_ = line.heads;
  }

  /// Goes on with a page that begins with the heads in force.
  void GoOn(const ReportLine& line) {
    pages_.emplace_back();
    y_ = 0;
    if (line.heads) return;
    for (const ReportLine* heads : heads_) Put(PlaceItems(*heads));
  }

  /// True where from here on the page has no more than a few lines to take.
  bool FewLinesLeft() const {
    const auto isNewPage = [](const Report::Item& item) {
      return std::holds_alternative<NewPage>(item);
    };
    const auto end = std::find_if(at_, report_.items().end(), isNewPage);
    return end - at_ <= kFewLines && std::all_of(at_, end, [](const Report::Item& item) {
             return std::holds_alternative<ReportLine>(item);
           });
  }

  double HeightOf(const std::vector<PlacedText>& items) const {
    double height = metrics_.lineSpacing();
    for (const PlacedText& item : items) height = std::max(height, item.room.height());
    return height;
  }

  void Put(std::vector<PlacedText> items) {
    const double height = HeightOf(items);
    for (PlacedText& item : items) {
      item.room.translate(0, y_);
      pages_.back().push_back(std::move(item));
    }
    y_ += height;
  }

  std::vector<PlacedText> PlaceItems(const ReportLine& line) const {
    std::vector<PlacedText> items;
    double x = zoneWidth_ * static_cast<double>(line.emptyZones);
    for (const std::string& item : line.items) {
      const QRectF room(x, 0, area_.width() - x, area_.height());
      items.push_back({ToQt(item), metrics_.boundingRect(room, kWrapped, ToQt(item))});
      x += zoneWidth_ * static_cast<double>(item.size() / kPrintZone + 1);
    }
    return items;
  }

  const Report& report_;
  const QFontMetricsF metrics_;
  const QSizeF area_;
  double zoneWidth_ = 0;
  double y_ = 0;
  std::vector<const ReportLine*> heads_;
  bool headsBefore_ = false;
  std::vector<PaperPage> pages_ = {{}};
  std::vector<Report::Item>::const_iterator at_;
};

}  // namespace

QRectF TextArea(const QPagedPaintDevice& paper) {
  const int dots = paper.logicalDpiX();
  const double margin = kMargin * dots;
  return QRectF(paper.pageLayout().fullRectPixels(dots)).adjusted(margin, margin, -margin, -margin);
}

std::vector<PaperPage> LayOut(const Report& report, const QFont& font, QPaintDevice* device,
                              const QSizeF& area) {
  return PageMaker(report, font, device, area).Make();
}

void NumberPages(std::vector<PaperPage>& pages, const QFont& font, QPaintDevice* device,
                 const QSizeF& area) {
  const QFontMetricsF metrics(font, device);
  const double foot = (kPageNumber - kMargin) * device->logicalDpiY();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const QString number = QString("Page %1 of %2").arg(i + 1).arg(pages.size());
    const double width = std::ceil(metrics.horizontalAdvance(number));
    const double height = metrics.lineSpacing();
    pages[i].push_back(PlacedText{number, {area.width() - width, foot - height, width, height}});
  }
}

}  // namespace lignara
