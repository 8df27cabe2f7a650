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
#include "desktop/truss/drawing_and_zoom.h"
#include "desktop/truss/truss_report_panels.h"
#include "desktop/windows.h"
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
  QGroupBox* LineLoadPanel();
  QGroupBox* AreaLoadPanel();
  QGroupBox* LengthsPanel();
  QGroupBox* DeflectionsPanel();
  QGroupBox* StressesPanel();
  QListWidget* FillListPanel(QGroupBox* panel, const std::vector<std::string>* rows, int width,
                             const QString& closing, Binding::Command close);
  QLayout* MemberHit();
  QPushButton* Button(const QString& caption, Binding::Command command);
  QLayout* ButtonPair(QGroupBox* panel, const QString& first, Binding::Command command,
                      Binding::Command cancel);

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
  row->addWidget(LengthsPanel(), 2);
  row->addWidget(DeflectionsPanel(), 2);
  row->addWidget(StressesPanel(), 5);
  row->addWidget(MakeStaticsPanel(Statics(), binding(), session(), platform()));
  return row;
}

QGroupBox* TrussForm::LengthsPanel() {
  QGroupBox* panel = MakePanel("Member Lengths (ft)");
  binding().Shown(panel, &record_.lengthsOpen, [this, panel] {
    FillListPanel(panel, &record_.lengthRows, 150, "Cancel",
                  [this] { CloseMemberLengths(record_); });
  });
  return panel;
}

QGroupBox* TrussForm::DeflectionsPanel() {
  QGroupBox* panel = MakePanel("Deflections");
  binding().Shown(panel, &record_.deflectionsOpen, [this, panel] {
    QListWidget* list = FillListPanel(panel, &record_.deflectionRows, 150, "Cancel",
                                      [this] { CloseDeflections(record_); });
    binding().WhyEmpty(list, [this] { return record_.whyNoDeflections; });
    binding().OutOfDate(list, [this] { return AreDeflectionsOlder(record_); });
  });
  return panel;
}

QGroupBox* TrussForm::StressesPanel() {
  QGroupBox* panel = MakePanel("Actual and Allowable Axial Stresses");
  binding().Shown(panel, &record_.stressOpen, [this, panel] {
    QListWidget* list =
        FillListPanel(panel, &record_.stressRows, 300, "OK", [this] { CloseStresses(record_); });
    binding().Notes(list, &record_.stressNotes);
    binding().WhyEmpty(list, [this] { return record_.whyNoStresses; });
    binding().OutOfDate(list, [this] { return AreStressesOlder(record_); });
  });
  return panel;
}

/// A list that is called as its panel, and below it the button that closes the panel.
QListWidget* TrussForm::FillListPanel(QGroupBox* panel, const std::vector<std::string>* rows,
                                      int width, const QString& closing, Binding::Command close) {
  auto* column = new QVBoxLayout(panel);
  QListWidget* list = MakeList(panel->title(), 9);
  list->setMinimumWidth(InLetters(width));
  list->setMaximumHeight(240);
  binding().List(list, rows);
  column->addWidget(list);
  QPushButton* button = Button(closing, std::move(close));
  column->addWidget(button, 0, Qt::AlignRight);
  SetEscapeButton(panel, button);
  return list;
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
  rows->addWidget(LineLoadPanel());
  rows->addWidget(AreaLoadPanel());
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

QLayout* TrussForm::ButtonPair(QGroupBox* panel, const QString& first, Binding::Command command,
                               Binding::Command cancel) {
  auto* row = new QHBoxLayout;
  QPushButton* accept = Button(first, std::move(command));
  QPushButton* leave = Button("Cancel", std::move(cancel));
  row->addStretch();
  row->addWidget(accept);
  row->addWidget(leave);
  SetReturnButton(panel, accept);
  SetEscapeButton(panel, leave);
  return row;
}

QGroupBox* TrussForm::LineLoadPanel() {
  QGroupBox* panel = MakePanel("Uniform Load (Line Load)");
  binding().Shown(panel, &record_.lineLoadOpen, [this, panel] {
    auto* grid = new QGridLayout(panel);
    binding().Field(AddField(grid, "Load (lb / ft)"), &record_.lineLoad);
    grid->addLayout(ButtonPair(
                        panel, "Apply", [this] { ApplyLineLoad(record_, session(), platform()); },
                        [this] { CancelDistributedLoad(record_); }),
                    grid->rowCount(), 0, 1, 2);
  });
  return panel;
}

QGroupBox* TrussForm::AreaLoadPanel() {
  QGroupBox* panel = MakePanel("Area Load ");
  binding().Shown(panel, &record_.areaLoadOpen, [this, panel] {
    auto* grid = new QGridLayout(panel);
    binding().Field(AddField(grid, "Truss Spacing (ft)"), &record_.trussSpacing);
    binding().Field(AddField(grid, "Load (lb/sf)"), &record_.areaLoad);
    grid->addLayout(ButtonPair(
                        panel, "Apply", [this] { ApplyAreaLoad(record_, session(), platform()); },
                        [this] { CancelDistributedLoad(record_); }),
                    grid->rowCount(), 0, 1, 2);
  });
  return panel;
}

}  // namespace

ToolWindow* MakeTrussWindow(WindowContext context) { return new TrussForm(context); }

}  // namespace lignara
