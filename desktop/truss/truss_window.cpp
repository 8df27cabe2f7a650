#include "truss/truss_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "desktop/kit/command_button.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/scroll_page.h"
#include "desktop/kit/statics_panel.h"
#include "desktop/kit/tab_order.h"
#include "desktop/kit/text.h"
#include "desktop/truss/distributed_load_panels.h"
#include "desktop/truss/force_list.h"
#include "desktop/truss/headings_and_fonts.h"
#include "desktop/truss/node_loads.h"
#include "desktop/truss/result_lists.h"
#include "desktop/truss/truss_picture.h"
#include "desktop/windows.h"
#include "truss/headings_and_fonts.h"
#include "truss/report.h"
#include "truss/window_marks.h"

namespace lignara {
namespace {

/// The truss at hand: loads, analysis, results and the drawing.
class TrussForm : public ToolWindow {
 public:
  explicit TrussForm(WindowContext context);

  /// The title of the report, or the type where it has none.
  QString DocumentName() const override;

  void Refresh() override {
    ShowMarks(record_, session());
    ToolWindow::Refresh();
  }

 private:
  void AddMenus();
  QLayout* CanvasColumn();
  StaticsView Statics();
  QLayout* ResultPanels();
  QWidget* ResultArea();
  QWidget* SideColumn();
  QLayout* OpenedPanels();
  QLayout* CommandRow();
  QGroupBox* ResultsPanel();

  TrussWindow record_;
  QListWidget* nodes_ = nullptr;
  // The parts of the window, in the order of work.
  QWidget* loads_ = nullptr;
  QWidget* commands_ = nullptr;
  QWidget* panels_ = nullptr;
  QWidget* forces_ = nullptr;
  QWidget* statics_ = nullptr;
  QWidget* results_ = nullptr;
};

TrussForm::TrussForm(WindowContext context) : ToolWindow(window_name::kTruss, context) {
  OpenTruss(record_, session(), platform());
  setWindowTitle(ToQt(record_.title));
  AddMenus();
  binding().Text(AddStatusText("Status"), &record_.status);
  auto* area = new QWidget;
  setCentralWidget(area);
  auto* columns = new QHBoxLayout(area);
  columns->setSpacing(10);
  QWidget* canvas = InWidget(CanvasColumn());
  columns->addWidget(canvas, 1);
  columns->addWidget(SideColumn());
  // Loads, wood, run, panels, results, picture: the order of work.
  TabThrough({loads_, commands_, panels_, forces_, results_, statics_, canvas});
  resize(1200, 720);
  nodes_->setFocus();  // a truss starts with its loads
}

QString TrussForm::DocumentName() const {
  const QString title = ToQt(session().ReportTitle).trimmed();
  return title.isEmpty() ? windowTitle() : title;
}

void TrussForm::AddMenus() {
  QMenu* files = menuBar()->addMenu("&Files");
  binding().Menu(files->addAction("&Headings..."), [this] { OpenHeadings(record_); });
  binding().Menu(files->addAction("F&onts..."), [this] { OpenFonts(record_); });
  files->addSeparator();
  QAction* print = files->addAction("&Print");
  print->setShortcut(QKeySequence::Print);
  binding().Menu(print, [this] { PrintTruss(record_, session(), platform()); });
  QAction* save = files->addAction("&Save Output to Text File...");
  save->setShortcut(QKeySequence::Save);
  binding().Menu(save, [this] { SaveTrussReport(record_, session(), platform()); });
  AddHelpMenu();
}

QLayout* TrussForm::CanvasColumn() {
  auto* rows = new QVBoxLayout;
  rows->addLayout(MakeTrussCanvas(record_, binding(), session(), platform()), 1);
  statics_ = MakeStaticsLine(Statics(), binding());
  rows->addWidget(statics_);
  rows->addWidget(ResultArea());
  return rows;
}

StaticsView TrussForm::Statics() {
  return {record_.statics, "statics", [this] { return session().ReportTitle; },
          [this] { return record_.outOfDate; }};
}

/// The lists that are open, side by side below the drawing. They scroll rather than crowd it out.
QWidget* TrussForm::ResultArea() {
  auto* page = new ScrollPage;
  page->SetMost({InLetters(280), InLetters(150)});
  page->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  const auto anyOpen = [this] {
    return record_.lengthsOpen || record_.deflectionsOpen || record_.stressOpen ||
           record_.statics.open;
  };
  // There before its first panel opens, and until its last has closed: panels move the focus.
  binding().Follow([page, anyOpen] {
    if (anyOpen()) page->show();
  });
  results_ = InWidget(ResultPanels());
  page->Hold(results_);
  binding().Follow([page, anyOpen] {
    if (!anyOpen()) page->hide();
  });
  return page;
}

QLayout* TrussForm::ResultPanels() {
  auto* row = new QHBoxLayout;
  row->addWidget(MakeLengthsPanel(record_, binding()), 2);
  row->addWidget(MakeDeflectionsPanel(record_, binding()), 2);
  row->addWidget(MakeStressesPanel(record_, binding()), 5);
  row->addWidget(MakeStaticsPanel(Statics(), binding(), session(), platform()));
  return row;
}

/// Commands, panels that are open, loads and results. It scrolls by itself, so that the drawing
/// stays in view.
QWidget* TrussForm::SideColumn() {
  auto* rows = new QVBoxLayout;
  commands_ = InWidget(CommandRow());
  rows->addWidget(commands_);
  panels_ = InWidget(OpenedPanels());
  rows->addWidget(panels_);
  rows->addWidget(ResultsPanel(), 1);
  auto* page = new ScrollPage;
  page->SetMost({InLetters(390), InLetters(200)});
  page->Hold(InWidget(rows));
  return page;
}

QLayout* TrussForm::OpenedPanels() {
  auto* rows = new QVBoxLayout;
  rows->addWidget(MakeLineLoadPanel(record_, binding(), session(), platform()));
  rows->addWidget(MakeAreaLoadPanel(record_, binding(), session(), platform()));
  rows->addWidget(MakeHeadingsPanel(record_, binding(), session()));
  rows->addWidget(MakeFontsPanel(record_, binding(), session()));
  return rows;
}

QLayout* TrussForm::CommandRow() {
  auto* grid = new QGridLayout;
  QPushButton* wood =
      MakeButton(binding(), "&Wood Type", [this] { OpenWoodType(session(), platform()); });
  wood->setEnabled(platform().HasWindow(window_name::kMemberSize));
  grid->addWidget(wood, 0, 0);
  QPushButton* run =
      MakeButton(binding(), "&Run", [this] { RunTruss(record_, session(), platform()); });
  grid->addWidget(run, 0, 1);
  grid->addWidget(MakeButton(binding(), "&Memb. Len.",
                             [this] { ShowMemberLengths(record_, session(), platform()); }),
                  0, 2);
  grid->addWidget(MakeButton(binding(), "&Deflections", [this] { OpenDeflections(record_); }), 1,
                  0);
  grid->addWidget(MakeButton(binding(), "&Code Stress", [this] { OpenStresses(record_); }), 1, 1);
  return grid;
}

QGroupBox* TrussForm::ResultsPanel() {
  QGroupBox* panel = MakePanel("Results");
  auto* columns = new QHBoxLayout(panel);
  columns->setSpacing(12);
  const NodeLoads loads = MakeNodeLoads(record_, binding(), session(), platform());
  loads_ = loads.area;
  nodes_ = loads.list;
  columns->addWidget(loads_);
  forces_ = MakeForces(record_, binding());
  columns->addWidget(forces_);
  return panel;
}

}  // namespace

ToolWindow* MakeTrussWindow(WindowContext context) { return new TrussForm(context); }

}  // namespace lignara
