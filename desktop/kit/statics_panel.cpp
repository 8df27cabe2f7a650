#include "desktop/kit/statics_panel.h"

#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/help.h"
#include "desktop/kit/form.h"
#include "desktop/kit/out_of_date.h"
#include "desktop/kit/row_copy.h"
#include "desktop/kit/table.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "desktop/kit/warning_colour.h"
#include "desktop/kit/wrapped_label.h"

namespace lignara {
namespace {

constexpr const char* kName = "Statics Check";

/// A panel for the names of what is in it only: it shows no frame.
class FramelessPanel : public QGroupBox {
 protected:
  void paintEvent(QPaintEvent*) override {}
};

QColor ColourOf(StaticsVerdict verdict, const QPalette& palette) {
  if (verdict == StaticsVerdict::Mechanism) return AlarmColour(palette);
  if (verdict == StaticsVerdict::Differs) return WarningColour(palette);
  return palette.color(QPalette::WindowText);
}

/// A tick where results agree, a triangle with an exclamation mark where they do not: told apart
/// without colour.
class VerdictMark : public QWidget {
 public:
  VerdictMark() { setFixedSize(InLetters(18), InLetters(18)); }

  void SetVerdict(StaticsVerdict verdict) {
    if (verdict_ == verdict) return;
    verdict_ = verdict;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (verdict_ == StaticsVerdict::None) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / 18.0, height() / 18.0);
    painter.setPen(
        QPen(ColourOf(verdict_, palette()), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (verdict_ == StaticsVerdict::Agrees) {
      painter.drawPolyline(QPolygonF({{3, 9.5}, {7, 13.5}, {15, 4.5}}));
      return;
    }
    painter.drawPolygon(QPolygonF({{9, 2}, {17, 16}, {1, 16}}));
    painter.drawLine(QPointF(9, 7), QPointF(9, 10.5));
    painter.drawPoint(QPointF(9, 13.4));
  }

 private:
  StaticsVerdict verdict_ = StaticsVerdict::None;
};

/// Grey while the results are older than their input, else in the colour of the verdict.
void ColourResult(QLabel* label, StaticsVerdict verdict, bool outOfDate) {
  SetOutOfDate(label, outOfDate);
  if (outOfDate) return;
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, ColourOf(verdict, QApplication::palette(label)));
  label->setPalette(palette);
}

QLabel* MakeResultLabel(const StaticsView& view, Binding& binding) {
  auto* label = Named("Result", new WrappedLabel);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  binding.Text(label, &view.check.line);
  binding.Follow([label, check = &view.check, outOfDate = view.outOfDate] {
    ColourResult(label, check->verdict, outOfDate && outOfDate());
  });
  return label;
}

void FillTable(QTableWidget* table, const StaticsCheck& check) {
  const auto rows = DifferenceRows(check);
  table->setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < table->rowCount(); ++row) {
    const std::vector<std::string>& texts = rows[static_cast<std::size_t>(row)];
    for (int column = 0; column < table->columnCount(); ++column) {
      auto* item = new QTableWidgetItem(ToQt(texts[static_cast<std::size_t>(column)]));
      item->setTextAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
      table->setItem(row, column, item);
    }
  }
  table->scrollToTop();
}

QTableWidget* MakeDifferences(const StaticsCheck* check, Binding& binding) {
  QStringList heads;
  for (const std::string& head : kDifferenceHeads) heads << ToQt(head);
  QTableWidget* table = MakeTable("Differences", heads);
  table->setMinimumWidth(InLetters(300));
  table->setMinimumHeight(InLetters(84));
  table->setMaximumHeight(InLetters(240));
  table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  MakeCopyable(table);
  // A large truss has thousands of rows: they are made when they are looked at.
  binding.Follow([table, check, shown = std::vector<StaticsDifference>()]() mutable {
    if (!check->open || shown == check->differences) return;
    shown = check->differences;
    FillTable(table, *check);
  });
  return table;
}

QLayout* MakeCommands(const StaticsView& view, Binding& binding, const SessionState& session,
                      Platform& platform) {
  const StaticsCheck* check = &view.check;
  auto* rows = new QVBoxLayout;
  auto* save = new QPushButton("Save Ta&ble...");
  binding.Press(
      save, [check, title = view.title, &platform] { SaveDifferences(*check, title(), platform); });
  binding.Enabled(save, [check] { return !check->line.empty(); });
  rows->addWidget(save);
  auto* why = new QPushButton("Wh&y?");
  binding.Press(why, [section = view.helpSection, &session, &platform] {
    ShowHelp(section, session, platform);
  });
  rows->addWidget(why);
  rows->addStretch();
  return rows;
}

}  // namespace

QWidget* MakeStaticsLine(const StaticsView& view, Binding& binding) {
  auto* line = Named(kName, new FramelessPanel);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  auto* mark = new VerdictMark;
  row->addWidget(mark);
  row->addWidget(MakeResultLabel(view, binding), 1);
  auto* button = new QPushButton("S&tatics Check");
  binding.Check(button, &view.check.open);
  row->addWidget(button);
  binding.Follow([mark, check = &view.check] { mark->SetVerdict(check->verdict); });
  line->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return line;
}

QGroupBox* MakeStaticsPanel(const StaticsView& view, Binding& binding, const SessionState& session,
                            Platform& platform) {
  StaticsCheck* check = &view.check;
  QGroupBox* panel = MakePanel(kName);
  binding.CloseOnEscape(panel, [check] { check->open = false; });
  binding.Shown(panel, &check->open, [panel, view, check, &binding, &session, &platform] {
    auto* columns = new QHBoxLayout(panel);
    auto* rows = new QVBoxLayout;
    rows->addWidget(MakeDifferences(check, binding), 1);
    auto* units = new WrappedLabel;
    binding.Follow([units, check] { units->setText(ToQt(UnitsNote(*check))); });
    rows->addWidget(units);
    columns->addLayout(rows, 1);
    columns->addLayout(MakeCommands(view, binding, session, platform));
  });
  return panel;
}

}  // namespace lignara
