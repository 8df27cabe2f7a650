#include "truss/truss_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/scroll_page.h"
#include "desktop/kit/statics_panel.h"
#include "desktop/kit/tab_order.h"
#include "desktop/kit/text.h"
#include "desktop/truss/distributed_load_panels.h"
#include "desktop/truss/headings_and_fonts.h"
#include "desktop/truss/result_lists.h"
#include "desktop/truss/truss_picture.h"
#include "desktop/windows.h"
#include "truss/force_and_length_lists.h"
#include "truss/headings_and_fonts.h"
#include "truss/report.h"
#include "truss/window_marks.h"

namespace lignara {
namespace {

/// A list of the side column: it takes its height from the window and leaves the width to the
/// drawing.
QListWidget* SideList(const char* name) {
  QListWidget* list = MakeList(name, 6);
  list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
  return list;
}

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
  QLayout* NodeLoads();
  QLayout* NodeField();
  QLayout* Forces();
  QLayout* MemberHit();
  QPushButton* Button(const QString& caption, Binding::Command command);

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

QPushButton* TrussForm::Button(const QString& caption, Binding::Command command) {
  auto* button = new QPushButton(caption);
  binding().Press(button, std::move(command));
  return button;
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
  QPushButton* wood = Button("&Wood Type", [this] { OpenWoodType(session(), platform()); });
  wood->setEnabled(platform().HasWindow(window_name::kMemberSize));
  grid->addWidget(wood, 0, 0);
  QPushButton* run = Button("&Run", [this] { RunTruss(record_, session(), platform()); });
  grid->addWidget(run, 0, 1);
  grid->addWidget(
      Button("&Memb. Len.", [this] { ShowMemberLengths(record_, session(), platform()); }), 0, 2);
  grid->addWidget(Button("&Deflections", [this] { OpenDeflections(record_); }), 1, 0);
  grid->addWidget(Button("&Code Stress", [this] { OpenStresses(record_); }), 1, 1);
  return grid;
}

QGroupBox* TrussForm::ResultsPanel() {
  QGroupBox* panel = MakePanel("Results");
  auto* columns = new QHBoxLayout(panel);
  columns->setSpacing(12);
  loads_ = InWidget(NodeLoads());
  columns->addWidget(loads_);
  forces_ = InWidget(Forces());
  columns->addWidget(forces_);
  return panel;
}

QLayout* TrussForm::NodeLoads() {
  auto* rows = new QVBoxLayout;
  rows->addWidget(MakeHeading("Top Node Loads (lbs)"));
  rows->addWidget(new QLabel("Click on list item to select"));
  nodes_ = SideList("Top Node Loads (lbs)");
  binding().List(nodes_, &record_.nodeRows, &record_.nodeRow,
                 [this](int row) { SelectNode(record_, session(), platform(), row); });
  rows->addWidget(nodes_, 1);
  rows->addLayout(NodeField());
  rows->addWidget(Button("&Unif. Load (lb/ft)", [this] { OpenLineLoad(record_); }));
  rows->addWidget(Button("&Area Load (lbs/sf)", [this] { OpenAreaLoad(record_); }));
  return rows;
}

QLayout* TrussForm::NodeField() {
  auto* rows = new QVBoxLayout;
  QLineEdit* field = MakeField("Top Node Loads (lbs)");
  binding().Field(field, &record_.nodeLoad);
  rows->addWidget(field);
  auto* pair = new QHBoxLayout;
  pair->addWidget(Button("&Enter", [this] { EnterNodeLoad(record_, session(), platform()); }));
  pair->addWidget(Button("A&ll", [this] { EnterAllNodeLoads(record_, session(), platform()); }));
  rows->addLayout(pair);
  binding().OnReturn(field, [this, field] {
    EnterNodeLoadAndGoOn(record_, session(), platform());
    // The load of the next node is there to be typed over.
    binding().Refresh();
    field->selectAll();
  });
  return rows;
}

QLayout* TrussForm::Forces() {
  auto* rows = new QVBoxLayout;
  rows->addWidget(MakeHeading("Axial Load (lbs)"));
  QListWidget* list = SideList("Axial Load (lbs)");
  binding().List(list, &record_.axialRows, &record_.axialRow,
                 [this](int row) { SelectAxialRow(record_, row); });
  // The row that lights its member is one of the rows that may be marked to be copied.
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  binding().Notes(list, &record_.axialNotes);
  binding().WhyEmpty(list, [this] { return record_.whyNoForces; });
  rows->addWidget(list, 1);
  rows->addLayout(MemberHit());
  QGroupBox* reactions = MakePanel("End Reactions (lbs)");
  auto* grid = new QGridLayout(reactions);
  QLineEdit* left = AddValue(grid, "Left Side");
  binding().Text(left, &record_.leftReaction);
  QLineEdit* right = AddValue(grid, "Right Side");
  binding().Text(right, &record_.rightReaction);
  rows->addWidget(reactions);
  for (QWidget* result : std::initializer_list<QWidget*>{list, left, right}) {
    binding().OutOfDate(result, [this] { return record_.outOfDate; });
  }
  return rows;
}

QLayout* TrussForm::MemberHit() {
  auto* rows = new QVBoxLayout;
  rows->addWidget(new QLabel("Click in red circle on member!"));
  QLineEdit* member = MakeField("Click in red circle on member!");
  ShowOnly(member);
  binding().Text(member, &record_.hitMember);
  rows->addWidget(member);
  auto* grid = new QGridLayout;
  binding().Text(AddValue(grid, "Axial Load (lbs)"), &record_.hitLoad);
  QLineEdit* sense = MakeField("Tension or compression", 24);
  sense->setMaximumWidth(sense->minimumWidth());
  ShowOnly(sense);
  binding().Text(sense, &record_.hitSense);
  grid->addWidget(sense, grid->rowCount() - 1, 2);
  rows->addLayout(grid);
  return rows;
}

}  // namespace

ToolWindow* MakeTrussWindow(WindowContext context) { return new TrussForm(context); }

}  // namespace lignara
