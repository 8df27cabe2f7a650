#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"
#include "truss/truss_input.h"

namespace lignara {
namespace {

/// The dimensions of a new truss.
class TrussInputForm : public ToolWindow {
 public:
  explicit TrussInputForm(WindowContext context)
      : ToolWindow(window_name::kTrussInput, context), record_(OpenTrussInput(session())) {
    setWindowTitle("Truss Input");
    AddHelpMenu();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->setSpacing(16);
    auto* left = new QVBoxLayout;
    columns->addLayout(left);
    left->addLayout(Fields());
    left->addLayout(Commands(area));
    left->addWidget(SlopePanel());
    left->addStretch();
    columns->addLayout(Sketch(), 1);
    resize(780, 500);
  }

  void CloseControl() override { CancelTrussInput(session(), platform()); }

 private:
  QLayout* Fields() {
    auto* grid = new QGridLayout;
    const QString first = ToQt(record_.firstCaption);
    // Alt+H is the help menu's.
    QLineEdit* firstField = AddField(grid, first.startsWith('H') ? "H&1 (ft)" : "&" + first);
    binding().Field(firstField, &record_.first);
    binding().Enabled(firstField, [this] { return record_.firstEnabled; });
    binding().Field(AddField(grid, "&Total Length (ft)"), &record_.totalLength);
    height_ = AddField(grid, "H (&ft)");
    binding().Field(height_, &record_.height);
    return grid;
  }

  QLayout* Commands(QWidget* area) {
    auto* rows = new QVBoxLayout;
    auto* pair = new QHBoxLayout;
    auto* ok = new QPushButton("&OK");
    binding().Press(ok, [this] { AcceptTrussInput(record_, session(), platform()); });
    binding().Enabled(ok, [this] { return record_.okEnabled; });
    auto* cancel = new QPushButton("&Cancel");
    binding().Press(cancel, [this] { CloseControl(); });
    pair->addWidget(ok);
    pair->addWidget(cancel);
    rows->addLayout(pair);
    auto* slope = new QPushButton("&Slope Calculator");
    binding().Press(slope, [this] { OpenSlopeCalculator(record_, platform()); });
    rows->addWidget(slope);
    SetReturnButton(area, ok);
    SetEscapeButton(area, cancel);
    return rows;
  }

  QGroupBox* SlopePanel() {
    QGroupBox* panel = MakePanel("Slope Calculator");
    ReturnFocusTo(panel, height_);
    binding().Shown(panel, &record_.slopeOpen, [this, panel] { FillSlopePanel(panel); });
    return panel;
  }

  void FillSlopePanel(QGroupBox* panel) {
    auto* rows = new QVBoxLayout(panel);
    auto* triangle = Named("Slope", new Picture);
    triangle->setFixedHeight(InLetters(100));
    binding().Show(triangle, &record_.slopeSketch);
    rows->addWidget(triangle);
    auto* grid = new QGridLayout;
    binding().Field(AddField(grid, "&Rise"), &record_.rise);
    binding().Field(AddField(grid, "R&un"), &record_.run);
    rows->addLayout(grid);
    auto* pair = new QHBoxLayout;
    auto* ok = new QPushButton("OK");
    binding().Press(ok, [this] { AcceptSlope(record_, platform()); });
    auto* cancel = new QPushButton("Cancel");
    binding().Press(cancel, [this] { CancelSlope(record_); });
    pair->addWidget(ok);
    pair->addWidget(cancel);
    rows->addLayout(pair);
    SetReturnButton(panel, ok);
    SetEscapeButton(panel, cancel);
  }

  QLayout* Sketch() {
    auto* rows = new QVBoxLayout;
    auto* caption = MakeHeading(ToQt(record_.exampleCaption));
    rows->addWidget(caption, 0, Qt::AlignHCenter);
    auto* sketch = Named("Example", new Picture);
    sketch->setMinimumSize(InLetters(320), InLetters(200));
    binding().Show(sketch, &record_.sketch);
    rows->addWidget(sketch, 1);
    return rows;
  }

  TrussInputWindow record_;
  QLineEdit* height_ = nullptr;
};

}  // namespace

ToolWindow* MakeTrussInputWindow(WindowContext context) { return new TrussInputForm(context); }

}  // namespace lignara
