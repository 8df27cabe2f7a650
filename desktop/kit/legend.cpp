#include "desktop/kit/legend.h"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "desktop/kit/scene_painter.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// In heights of a letter.
constexpr double kSample = 2.2;
constexpr double kGap = 0.5;
constexpr double kBetween = 1.4;

void PaintSample(QPainter& painter, const QRectF& room, const LegendEntry& entry,
                 const QPalette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double y = room.center().y();
  PaintLine(painter, {QPointF(room.left(), y), QPointF(room.right(), y)},
            {entry.colour, entry.stroke, entry.warned, false, 1, entry.doubted}, palette);
}

double LegendWidth(const std::vector<LegendEntry>& legend, const QFontMetricsF& metrics) {
  double width = -kBetween * metrics.height();
  for (const LegendEntry& entry : legend) {
    width += metrics.horizontalAdvance(ToQt(entry.meaning)) +
             (kSample + kGap + kBetween) * metrics.height();
  }
  return width;
}

/// A piece of line on a widget, in the size of its letters.
class Sample : public QWidget {
 public:
  explicit Sample(const LegendEntry& entry) : entry_(entry) {
    const double letter = QFontMetricsF(font()).height();
    setFixedSize(static_cast<int>(kSample * letter) + 8, static_cast<int>(letter));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QPalette ground = palette();
    ground.setColor(QPalette::Base, ground.color(QPalette::Window));
    PaintSample(painter, QRectF(rect()).adjusted(4, 0, -4, 0), entry_, ground);
  }

 private:
  const LegendEntry entry_;
};

}  // namespace

double LegendHeight(const std::vector<LegendEntry>& legend, double lineHeight) {
  return legend.empty() ? 0.0 : lineHeight * 2.4;
}

void PaintLegend(QPainter& painter, const QRectF& room, const std::vector<LegendEntry>& legend,
                 const QPalette& palette) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double letter = metrics.height();
  double x = room.center().x() - LegendWidth(legend, metrics) / 2;
  for (const LegendEntry& entry : legend) {
    PaintSample(painter, QRectF(x, room.top(), kSample * letter, room.height()), entry, palette);
    x += (kSample + kGap) * letter;
    const QString meaning = ToQt(entry.meaning);
    const QRectF words(x, room.top(), metrics.horizontalAdvance(meaning) + letter, room.height());
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft, meaning);
    x += metrics.horizontalAdvance(meaning) + kBetween * letter;
  }
}

QWidget* MakeLegend(const std::vector<LegendEntry>& legend) {
  auto* area = new QWidget;
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(0, 0, 0, 0);
  for (const LegendEntry& entry : legend) {
    row->addWidget(new Sample(entry));
    row->addWidget(new QLabel(ToQt(entry.meaning)));
    row->addStretch();
  }
  return area;
}

}  // namespace lignara
