#include "multispan/results_window.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "desktop/kit/command_button.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/header_panel.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/statics_panel.h"
#include "desktop/kit/table.h"
#include "desktop/kit/text.h"
#include "desktop/multispan/arrow_button.h"
#include "desktop/windows.h"
#include "multispan/descriptions.h"
#include "multispan/stress_check.h"

namespace lignara {
namespace {

/// The results of a run of the multi-span beam.
class ResultsForm : public ToolWindow {
 public:
  explicit ResultsForm(WindowContext context)
      : ToolWindow(window_name::kMultiSpanResults, context),
        captions_(ResultCaptionsOf(session().unitSystem.value())) {
    setWindowTitle("Moment Distribution Output");
    ShowMultiSpanResults(record_, session());
    AddMenus();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setSpacing(8);
    auto* upper = new QHBoxLayout;
    upper->addLayout(Tables());
    upper->addLayout(Diagrams(), 1);
    rows->addLayout(upper, 3);
    rows->addWidget(MakeStaticsLine(Statics(), binding()));
    rows->addLayout(Panels(), 1);
    binding().Text(AddStatusText("Status"), &record_.status);
    resize(940, 680);
  }

  void Refresh() override {
    RefreshMultiSpanResults(record_, session());
    ToolWindow::Refresh();
  }

  QString DocumentName() const override { return TitleOr(windowTitle(), session()); }

  /// The arrow keys move the cursor of the diagrams.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return ToolWindow::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
    const bool right = key == Qt::Key_Right;
    binding().Act(
        {UserAction::Kind::Key, static_cast<QWidget*>(watched), nullptr, right ? "Right" : "Left"},
        [&] { MoveCursor(record_, right ? 1 : -1); });
    return true;
  }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("&Print Report"),
                   [this] { PrintMultiSpanReport(record_, session(), platform()); });
    binding().Menu(files->addAction("Print &Diagrams Only"),
                   [this] { PrintMultiSpanDiagrams(record_, session(), platform()); });
    binding().Menu(files->addAction("P&roject Description..."),
                   [this] { OpenHeaderPanel(record_.header, session()); });
    binding().Menu(files->addAction("&Save Output to Text File"),
                   [this] { SaveMultiSpanReport(record_, session(), platform()); });
    QMenu* check = menuBar()->addMenu("&Check Stress");
    binding().Menu(check->addAction("&Wood member..."),
                   [this] { CheckWoodSpans(record_, session(), platform()); });
    binding().Menu(check->addAction("&Glu-Lam Members..."),
                   [this] { CheckGlulamSpans(record_, session(), platform()); });
    binding().Menu(menuBar()->addAction("Show &Deflected Shape..."),
                   [this] { ShowDeflectedShape(record_, session(), platform()); });
    AddHelpMenu();
  }

  /// A result of the run: grey once the beam has changed.
  void GreyWhenOld(QWidget* result) {
    binding().OutOfDate(result, [this] { return record_.runOlder; });
  }

  void ShowResult(QLineEdit* field, const std::string* text) {
    binding().Text(field, text);
    GreyWhenOld(field);
  }

  QLayout* Tables() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(
        TablePanel("Span End Moments", {"SPAN", "LEFT MOM.", "RIGHT MOM."}, &record_.endMoments),
        1);
    rows->addWidget(TablePanel("Support Reactions", {"Supt.", "Reaction"}, &record_.reactions), 1);
    rows->addWidget(UnbracedPanelBox());
    return rows;
  }

  QGroupBox* TablePanel(const QString& caption, const QStringList& captions,
                        const std::vector<TableRow>* rows) {
    QGroupBox* panel = MakePanel(caption);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(6, 4, 6, 6);
    QTableWidget* table = MakeTable(caption, captions);
    table->setMinimumSize(InLetters(250), InLetters(72));
    table->setMaximumWidth(InLetters(340));
    binding().Table(table, rows);
    GreyWhenOld(table);
    column->addWidget(table);
    return panel;
  }

  QGroupBox* UnbracedPanelBox() {
    QGroupBox* panel = MakePanel("Unbraced Lengths");
    auto* rows = new QVBoxLayout(panel);
    auto* top = new QHBoxLayout;
    QPushButton* back =
        Arrow("<", "Previous span", [this] { ShowPreviousUnbraced(record_, session()); });
    QPushButton* on = Arrow(">", "Next span", [this] { ShowNextUnbraced(record_, session()); });
    QGroupBox* span = MakePanel("Span");
    auto* walk = new QHBoxLayout(span);
    walk->setContentsMargins(6, 2, 6, 4);
    QLineEdit* number = MakeField("Span", 40);
    ShowOnly(number);
    binding().Text(number, &record_.unbraced.span);
    walk->addWidget(back);
    walk->addWidget(number);
    walk->addWidget(on);
    top->addWidget(span);
    rows->addLayout(top);
    auto* row = new QHBoxLayout;
    auto* grid = new QGridLayout;
    binding().Field(PutField(grid, 0, 0, "Unbraced Length (ft)", 60), &record_.unbraced.length);
    row->addLayout(grid);
    QPushButton* enter = MakeButton(
        binding(), "&Enter", [this] { EnterUnbracedLength(record_, session(), platform()); });
    row->addWidget(enter);
    rows->addLayout(row);
    SetReturnButton(panel, enter);
    return panel;
  }

  QPushButton* Arrow(const QString& caption, const QString& tip, Binding::Command command) {
    QPushButton* button = MakeButton(binding(), caption, std::move(command));
    MakeArrow(button, tip);
    return button;
  }

  QLayout* Diagrams() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(DiagramPanel("Shear Diag.", &record_.shearPicture, DescribeShear), 1);
    rows->addWidget(DiagramPanel("Moment Diag.", &record_.momentPicture, DescribeMoment), 1);
    rows->addLayout(ReadOuts());
    return rows;
  }

  using Describer = std::string (*)(const MultiSpanResults& window);

  Picture* DiagramPicture(const char* name, const Drawing* drawing, Describer words, int height) {
    auto* picture = Named(name, new Picture);
    picture->setMinimumSize(InLetters(250), InLetters(height));
    binding().Show(picture, drawing);
    binding().Follow([this, picture, words] { Describe(picture, ToQt(words(record_))); });
    LetUserSave(picture, platform());
    return picture;
  }

  QGroupBox* DiagramPanel(const char* name, const Drawing* drawing, Describer words) {
    QGroupBox* panel = MakePanel(name);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(6, 4, 6, 6);
    Picture* picture = DiagramPicture(name, drawing, words, 85);
    binding().Hover(picture, [this](double x, double) { ReadDiagrams(record_, x); });
    picture->setFocusPolicy(Qt::StrongFocus);
    picture->installEventFilter(this);
    column->addWidget(picture);
    return panel;
  }

  QLayout* ReadOuts() {
    auto* grid = new QGridLayout;
    ShowResult(PutValue(grid, 0, 0, "Location", 76), &record_.location);
    ShowResult(PutValue(grid, 0, 2, "Shear", 76), &record_.shear);
    ShowResult(PutValue(grid, 0, 4, "Moment", 76), &record_.moment);
    grid->addWidget(new QLabel(captions_.units), 0, 6);
    ShowResult(PutValue(grid, 1, 0, "Max Moment", 76), &record_.maxMoment);
    QLineEdit* place = MakeField("Max Moment Location", 76);
    ShowOnly(place);
    ShowResult(place, &record_.maxMomentPlace);
    grid->addWidget(place, 1, 2, 1, 2);
    grid->addWidget(new QLabel("Move cursor over V or M diag. to get values."), 1, 4, 1, 3);
    return grid;
  }

  StaticsView Statics() {
    return {record_.statics, "MDOUTPUT_statics", [this] { return session().Header.Title; },
            [this] { return record_.runOlder; }};
  }

  QLayout* Panels() {
    auto* row = new QHBoxLayout;
    row->addWidget(StressPanel(), 2);
    row->addWidget(MakeStaticsPanel(Statics(), binding(), session(), platform()), 2);
    row->addWidget(ShapePanelBox(), 2);
    row->addWidget(MakeHeaderPanel(record_.header, binding(), session()), 1);
    return row;
  }

  QGroupBox* StressPanel() {
    QGroupBox* panel = MakePanel("Stress Check");
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(6, 4, 6, 6);
    QListWidget* list = MakeList("Stress Check", 5);
    binding().List(list, &record_.stressRows);
    list->setUniformItemSizes(false);  // the widest row is not the first: it scrolls sideways
    binding().WhyEmpty(list,
                       [] { return "The menu \"Check Stress\" lists the stresses of all spans."; });
    binding().OutOfDate(list, [this] { return record_.stressOlder; });
    column->addWidget(list);
    return panel;
  }

  QGroupBox* ShapePanelBox() {
    QGroupBox* panel = MakePanel("Deflected Shape");
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins(6, 4, 6, 6);
    Picture* picture = DiagramPicture("Deflected Shape", &record_.shape.picture, DescribeShape, 60);
    binding().Trace(picture, [this](double x, double) {
      MoveShapeStation(record_, record_.shape.shape.StationAt(x));
    });
    rows->addWidget(picture, 1);
    auto* bar = Named("Station", new QScrollBar(Qt::Horizontal));
    bar->setRange(0, DeflectedShape::kStations);
    bar->setPageStep(5);
    bar->setFocusPolicy(Qt::StrongFocus);
    binding().Scroll(bar, &record_.shape.station,
                     [this](int station) { MoveShapeStation(record_, station); });
    rows->addWidget(bar);
    auto* grid = new QGridLayout;
    ShowResult(PutValue(grid, 0, 0, captions_.location, 64), &record_.shape.location);
    ShowResult(PutValue(grid, 0, 2, captions_.deflection, 64), &record_.shape.deflection);
    ShowResult(PutValue(grid, 1, 0, "Rotation(rad)", 64), &record_.shape.rotation);
    ShowResult(PutValue(grid, 1, 2, captions_.largest, 64), &record_.shape.largest);
    rows->addLayout(grid);
    QPushButton* close = MakeButton(binding(), "Cl&ose", [this] { CloseDeflectedShape(record_); });
    grid->addWidget(close, 1, 4);
    binding().Shown(panel, &record_.shape.open);
    SetEscapeButton(panel, close);
    return panel;
  }

  MultiSpanResults record_;
  const ResultCaptions& captions_;
};

}  // namespace

ToolWindow* MakeMultiSpanResultsWindow(WindowContext context) { return new ResultsForm(context); }

}  // namespace lignara
