#include "beam/beam_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "beam/descriptions.h"
#include "beam/diagrams.h"
#include "beam/report.h"
#include "beam/stress_check.h"
#include "beam/unit_captions.h"
#include "desktop/beam/diagrams_panel.h"
#include "desktop/beam/stress_panels.h"
#include "desktop/kit/command_button.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/header_panel.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/scroll_page.h"
#include "desktop/kit/statics_panel.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

constexpr SupportType kSupports[] = {SupportType::Fixed, SupportType::Pinned, SupportType::Free};

/// The panels that open below the results. They scroll rather than ask for all the room that they
/// could use.
class PanelPage : public ScrollPage {
 public:
  PanelPage() { SetMost({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX}); }

  QSize sizeHint() const override {
    const int line = fontMetrics().height();
    return ScrollPage::sizeHint().boundedTo({36 * line, 24 * line});
  }
  QSize minimumSizeHint() const override { return QScrollArea::minimumSizeHint(); }
};

/// One beam, its loads and what a run finds.
class BeamForm : public ToolWindow {
 public:
  explicit BeamForm(WindowContext context);
  QString DocumentName() const override;

 protected:
  void Returned() override { FillFromMember(record_, session()); }

 private:
  void AddMenus();
  void AddFilesMenu();
  QLayout* InputColumn();
  QLayout* ResultColumn();
  QGroupBox* Constants();
  QLayout* ConstantFields();
  void BindLength(QLineEdit* field);
  QLayout* MemberRow();
  QGroupBox* Axes();
  QLayout* Supports();
  QGroupBox* Support(const QString& caption, BeamEnd side, const SupportType* type);
  QGroupBox* Loads();
  QGroupBox* Kinds();
  QLayout* LoadFields();
  QWidget* LoadFieldRow(LoadField field, int captionWidth);
  QLayout* LoadCommands();
  Picture* LoadPicture();
  QGroupBox* AppliedLoads();
  QGroupBox* Output();
  QWidget* Panels();
  StaticsView Statics();
  QString Caption(const char* shown) { return CaptionInUnits(shown, session().unitSystem.value()); }
  bool AnyPanelOpen() const {
    return record_.propertiesOpen || record_.check.open || record_.diagrams.open ||
           record_.header.open || record_.statics.open;
  }

  BeamWindow record_;
  QGroupBox* axes_ = nullptr;
  QGroupBox* kinds_ = nullptr;
};

BeamForm::BeamForm(WindowContext context) : ToolWindow(window_name::kBeam, context) {
  OpenBeam(record_, session(), platform());
  setWindowTitle("Multi-Load Single Span");
  AddMenus();
  binding().Text(AddStatusText("Member Note"), &record_.memberNote);
  auto* area = new QWidget;
  setCentralWidget(area);
  auto* columns = new QHBoxLayout(area);
  columns->setSpacing(10);
  columns->setContentsMargins(9, 4, 9, 4);
  columns->addLayout(InputColumn());
  columns->addLayout(ResultColumn(), 1);
  resize(1180, 900);
  ChosenOption(kinds_)->setFocus();  // a field would be emptied by coming into it
}

QString BeamForm::DocumentName() const { return TitleOr(windowTitle(), session()); }

void BeamForm::AddFilesMenu() {
  QMenu* files = menuBar()->addMenu("&Files");
  QAction* print = files->addAction("Print &Report");
  print->setShortcut(QKeySequence::Print);
  binding().Menu(print, [this] { PrintBeamReport(record_, session(), platform()); });
  binding().Menu(files->addAction("Print &Diagrams Only"),
                 [this] { PrintBeamDiagrams(record_, session(), platform()); });
  binding().Menu(files->addAction("&Project Description..."),
                 [this] { OpenHeaderPanel(record_.header, session()); });
  QAction* save = files->addAction("&Save Output to Text File...");
  save->setShortcut(QKeySequence::Save);
  binding().Menu(save, [this] { SaveBeamReport(record_, session(), platform()); });
  files->addSeparator();
  binding().Menu(files->addAction("E&xit"), [this] { CloseControl(); });
}

void BeamForm::AddMenus() {
  AddFilesMenu();
  QMenu* accuracy = menuBar()->addMenu("&Options")->addMenu("&Accuracy");
  binding().Menu(accuracy->addAction("&General..."), [this] { AskAccuracy(record_, platform()); });
  binding().Menu(accuracy->addAction("&Uniform Conversion..."),
                 [this] { AskUniformConversion(record_, platform()); });
  QMenu* dataBases = menuBar()->addMenu("&Data Bases");
  binding().Menu(dataBases->addAction("&Member Data Base..."),
                 [this] { VisitMemberDataBase(record_, session(), platform()); });
  QAction* glulam = dataBases->addAction("&Glu-Lam Data Base...");
  binding().Menu(glulam, [this] { VisitGlulamDataBase(record_, session(), platform()); });
  glulam->setEnabled(platform().HasWindow(window_name::kGlulam));
  QMenu* stress = menuBar()->addMenu("&Calc Stress");
  binding().Menu(stress->addAction("&Wood Member..."),
                 [this] { CheckSawnMember(record_, session(), platform()); });
  binding().Menu(stress->addAction("&Glu-Lam..."),
                 [this] { CheckGlulamMember(record_, session(), platform()); });
  AddHelpMenu();
}

QLayout* BeamForm::InputColumn() {
  auto* rows = new QVBoxLayout;
  rows->addWidget(Constants());
  rows->addLayout(Supports());
  rows->addWidget(Loads());
  rows->addStretch();
  return rows;
}

QLayout* BeamForm::ResultColumn() {
  auto* rows = new QVBoxLayout;
  rows->addWidget(LoadPicture(), 2);
  auto* results = new QHBoxLayout;
  results->addWidget(AppliedLoads(), 1);
  results->addWidget(Output());
  rows->addLayout(results);
  rows->addWidget(MakeStaticsLine(Statics(), binding()));
  rows->addWidget(Panels(), 5);
  return rows;
}

// Constants.

QGroupBox* BeamForm::Constants() {
  QGroupBox* panel = MakePanel("Constants");
  auto* rows = new QVBoxLayout(panel);
  rows->addLayout(MemberRow());
  rows->addLayout(ConstantFields());
  axes_ = Axes();
  rows->addWidget(axes_);
  rows->addWidget(MakeButton(binding(), "&More values reqd. for stress check",
                             [this] { OpenProperties(record_); }));
  return panel;
}

QLayout* BeamForm::MemberRow() {
  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel("Member"));
  QLabel* name = Named("Member", MakeHeading(""));
  binding().Text(name, &record_.memberName);
  row->addWidget(name, 1, Qt::AlignRight);
  return row;
}

QLayout* BeamForm::ConstantFields() {
  auto* grid = new QGridLayout;
  BindLength(AddField(grid, Caption("L(ft)"), 84));
  binding().Field(AddField(grid, Caption("Young Mod. (E psi)"), 84), &record_.modulus.text);
  binding().Field(AddField(grid, Caption("Moment of Inertia, I (in^4)"), 84),
                  &record_.inertia.text);
  binding().Field(AddField(grid, Caption("Unbraced Length (ft)"), 84), &record_.unbraced);
  return grid;
}

/// A user who keeps the loads is led on to the next control that takes no text: what would be typed
/// into the field would change the span below the loads.
void BeamForm::BindLength(QLineEdit* field) {
  binding().Field(field, &record_.length, [this] { EditLength(record_); });
  binding().Entered(field, [this] {
    if (!EnterLength(record_, platform())) ChosenOption(axes_)->setFocus();
  });
}

QGroupBox* BeamForm::Axes() {
  return MakeOptionFrame(
      binding(), "Axis", {"Loads about St. Axis", "Loads about wk axis"},
      [this] { return static_cast<int>(record_.beam.loadAxis.value()); },
      [this](int axis) { SetAxis(record_, session(), axis); }, Qt::Horizontal);
}

QLayout* BeamForm::Supports() {
  auto* row = new QHBoxLayout;
  row->addWidget(Support("Left Support", BeamEnd::Left, &record_.beam.leftSupport));
  row->addWidget(Support("Right Support", BeamEnd::Right, &record_.beam.rightSupport));
  return row;
}

QGroupBox* BeamForm::Support(const QString& caption, BeamEnd side, const SupportType* type) {
  return MakeOptionFrame(
      binding(), caption, {"Fixed", "Pinned", "Free"},
      [type] { return static_cast<int>(*type) - 1; },
      [this, side](int option) { SetSupport(record_, session(), side, kSupports[option]); });
}

// Loads.

QGroupBox* BeamForm::Loads() {
  QGroupBox* panel = MakePanel("Loads");
  auto* columns = new QHBoxLayout(panel);
  kinds_ = Kinds();
  columns->addWidget(kinds_);
  auto* rows = new QVBoxLayout;
  rows->addLayout(LoadFields());
  rows->addStretch();
  rows->addLayout(LoadCommands());
  columns->addLayout(rows, 1);
  return panel;
}

QGroupBox* BeamForm::Kinds() {
  std::vector<QString> captions;
  for (const LoadKindInfo& kind : LoadKindTable()) captions.push_back(kind.caption);
  return MakeOptionFrame(
      binding(), "Kind", captions,
      [this] { return static_cast<int>(record_.beam.selectedKind) - 1; },
      [this](int option) { SetKind(record_, static_cast<LoadKind>(option + 1)); });
}

QLayout* BeamForm::LoadFields() {
  auto* rows = new QVBoxLayout;
  int widest = 0;
  for (const char* caption : kLoadFieldCaptions) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(Caption(caption)));
  }
  for (int i = 0; i < kLoadFields; ++i) {
    rows->addWidget(LoadFieldRow(static_cast<LoadField>(i), widest));
  }
  return rows;
}

/// A field with its caption; both are there only for the kinds that need it.
QWidget* BeamForm::LoadFieldRow(LoadField field, int captionWidth) {
  auto* row = new QWidget;
  auto* grid = new QGridLayout(row);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setColumnMinimumWidth(0, captionWidth);
  QLineEdit* box =
      PutField(grid, 0, 0, Caption(kLoadFieldCaptions[static_cast<std::size_t>(field)]), 72);
  binding().Field(box, &record_.Field(field));
  binding().Entered(box, [this, field] { EnterLoadField(record_, field); });
  binding().Shown(row,
                  [this, field] { return LoadKindOf(record_.beam.selectedKind).Shows(field); });
  return row;
}

QLayout* BeamForm::LoadCommands() {
  auto* grid = new QGridLayout;
  QPushButton* add = MakeButton(binding(), "Add &New", [this] { AddLoad(record_, platform()); });
  QPushButton* edit = MakeButton(binding(), "&Edit", [this] { EditLoad(record_, platform()); });
  QPushButton* remove =
      MakeButton(binding(), "De&lete", [this] { DeleteLoad(record_, platform()); });
  binding().Enabled(add, [this] { return record_.addEnabled; });
  for (QPushButton* button : {edit, remove}) {
    binding().Enabled(button, [this] { return record_.editEnabled; });
  }
  grid->addWidget(add, 0, 0);
  grid->addWidget(edit, 0, 1);
  grid->addWidget(remove, 1, 0);
  grid->addWidget(MakeButton(binding(), "Cle&ar", [this] { ClearInputs(record_); }), 1, 1);
  return grid;
}

// Picture, list and results.

Picture* BeamForm::LoadPicture() {
  auto* picture = Named("Load Picture", new Picture);
  picture->setMinimumSize(420, 200);
  picture->LetUserExplore();
  binding().Show(picture, &record_.loadPicture);
  binding().Follow([this, picture] { Describe(picture, ToQt(DescribeLoads(record_.beam))); });
  LetUserSave(picture, platform());
  return picture;
}

QGroupBox* BeamForm::AppliedLoads() {
  QGroupBox* panel = MakePanel("Applied Loads");
  auto* rows = new QVBoxLayout(panel);
  rows->addWidget(new QLabel("Click on Applied Loads list\nto edit or delete a load."));
  QListWidget* list = MakeList("Applied Loads", 4);
  list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as high as "Output"
  binding().List(list, &record_.loads.rows, &record_.loads.row,
                 [this](int row) { SelectLoad(record_, row); });
  rows->addWidget(list, 1);
  return panel;
}

QGroupBox* BeamForm::Output() {
  QGroupBox* panel = MakePanel("Output");
  auto* grid = new QGridLayout(panel);
  const std::pair<const char*, const std::string*> results[] = {
      {"R1 (lbs)", &record_.reaction1},
      {"R2 (lbs)", &record_.reaction2},
      {"Max. Moment(ft-lbs)", &record_.maxMoment},
      {"Max. Shear (lbs)", &record_.maxShear},
      {"Max. Def. (in)", &record_.maxDeflection},
      {"Ax. Ld (lbs)", &record_.axial}};
  for (const auto& [caption, text] : results) {
    QLineEdit* value = AddValue(grid, Caption(caption), 100);
    binding().Text(value, text);
    binding().OutOfDate(value, [this] { return IsOutOfDate(record_); });
  }
  auto* commands = new QVBoxLayout;
  commands->addWidget(
      MakeButton(binding(), "&RUN", [this] { RunBeam(record_, session(), platform()); }));
  QPushButton* view =
      MakeButton(binding(), "&View Diag.", [this] { OpenDiagrams(record_, session()); });
  binding().Enabled(view, [this] { return record_.diagrams.enabled; });
  commands->addWidget(view);
  commands->addStretch();
  grid->addLayout(commands, 1, 2, grid->rowCount() - 1, 1);
  return panel;
}

StaticsView BeamForm::Statics() {
  return {record_.statics, "MLSP_statics", [this] { return session().Header.Title; },
          [this] { return IsOutOfDate(record_); }};
}

QWidget* BeamForm::Panels() {
  auto* area = new PanelPage;
  area->setMinimumHeight(160);
  // It opens ahead of the panels, which take the focus as soon as they can be seen, and closes
  // behind them, when they have given it back.
  binding().Follow([this, area] {
    if (AnyPanelOpen()) area->show();
  });
  auto* inner = new QWidget;
  auto* rows = new QVBoxLayout(inner);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(MakeStaticsPanel(Statics(), binding(), session(), platform()));
  rows->addWidget(MakeDiagramsPanel(record_, binding(), platform()), 1);
  rows->addWidget(MakeStressCheckPanel(record_, binding()), 1);
  rows->addWidget(MakePropertiesPanel(record_, binding()));
  rows->addWidget(MakeHeaderPanel(record_.header, binding(), session()));
  rows->addStretch();
  area->Hold(inner);
  binding().Follow([this, area] {
    if (!AnyPanelOpen()) area->hide();
  });
  return area;
}

}  // namespace

ToolWindow* MakeBeamWindow(WindowContext context) { return new BeamForm(context); }

}  // namespace lignara
