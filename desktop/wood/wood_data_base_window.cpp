#include "wood/wood_data_base_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/exclusive_button.h"
#include "desktop/kit/form.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"
#include "desktop/wood/stress_adjustment_panel.h"

namespace lignara {
namespace {

struct SelectionRow {
  const char* caption;
  std::string FinalSelection::*text;
};

constexpr SelectionRow kGradeRow = {"Grade", &FinalSelection::grade};

constexpr SelectionRow kStressRows[] = {
    {"Allowable Bending Stress (psi)", &FinalSelection::fb},
    {"Allowable Tensile Stress (psi)", &FinalSelection::ft},
    {"All. Horz. Shear Stress (psi)", &FinalSelection::fv},
    {"Allowable Compressive Stress, across grain (psi)", &FinalSelection::fcPerp},
    {"Allowable Compressive Stress, Along Grain (psi)", &FinalSelection::fcPar},
    {"Youngs Modulus", &FinalSelection::e}};

/// The steps of the work, as the window names them.
constexpr const char* kOrderOfWork =
    "1   Western Woods, Southern Pine or Machine Rated\n"
    "2   Data Base File to Load\n"
    "3   Grades\n"
    "4   Stress Adjustment Factors, where the stresses are to be adjusted\n"
    "5   OK";

/// Species, grade and final stresses of sawn lumber.
class WoodDataBaseForm : public ToolWindow {
 public:
  explicit WoodDataBaseForm(WindowContext context)
      : ToolWindow(window_name::kWoodDataBase, context) {
    setWindowTitle("Wood Data Base");
    OpenWoodDataBase(record_);
    AddMenus();
    AddStatusLine();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->setSpacing(12);
    columns->addLayout(Choices(), 1);
    auto* work = new QGridLayout;
    work->addWidget(SelectionPanel(area), 0, 0);
    work->addWidget(OrderOfWork(), 1, 0, Qt::AlignCenter);
    work->addWidget(Factors(), 1, 0);
    work->setRowStretch(1, 1);
    columns->addLayout(work);
  }

  /// The grade chosen, or the window's own name before.
  QString DocumentName() const override {
    const QStringList chosen = {ToQt(record_.files.Chosen()), ToQt(record_.grades.Chosen())};
    const QString name = chosen.join(' ').simplified();
    return name.isEmpty() ? windowTitle() : name;
  }

  void CloseControl() override { CancelSelection(record_, platform()); }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("&Print"), [this] { PrintWoodReport(record_, platform()); });
    binding().Menu(files->addAction("&Save Output to Text File..."),
                   [this] { SaveWoodReport(record_, platform()); });
    AddHelpMenu();
  }

  /// Family, species file and grade, from top to bottom in the order of work.
  QLayout* Choices() {
    auto* rows = new QVBoxLayout;
    rows->addLayout(Families());
    rows->addWidget(MakeHeading("Data Base File to Load"));
    QListWidget* files = MakeList("Data Base File to Load", 9);
    binding().List(files, &record_.files.rows, &record_.files.row,
                   [this](int row) { ChooseSpeciesFile(record_, session(), platform(), row); });
    binding().WhyEmpty(files, [] { return "choose a family of wood first"; });
    rows->addWidget(files, 3);
    rows->addWidget(MakeHeading("Types of Wood covered by File"));
    rows->addWidget(WoodTypes());
    rows->addWidget(MakeHeading("Grades"));
    grades_ = MakeList("Grades", 9);
    binding().List(grades_, &record_.grades.rows, &record_.grades.row,
                   [this](int row) { ChooseGrade(record_, session(), platform(), row); });
    binding().WhyEmpty(grades_, [] { return "choose a data base file first"; });
    rows->addWidget(grades_, 2);
    return rows;
  }

  QLayout* Families() {
    // One below the other, so that the lists below need not be wide.
    auto* row = new QVBoxLayout;
    std::vector<QPushButton*> buttons;
    for (const WoodFamilyEntry& entry : kWoodFamilies) {
      const WoodFamily family = entry.family;
      buttons.push_back(MakeExclusiveButton(
          binding(), QString("&") + entry.caption,
          [this, family] { return record_.DataBaseFamily == family; },
          [this, family] { ChooseFamily(record_, session(), platform(), family); }));
      row->addWidget(buttons.back());
    }
    MakeOneTabStop(binding(), buttons);
    buttons.front()->setFocus();
    return row;
  }

  QLabel* WoodTypes() {
    auto* types = Named("Types of Wood covered by File", new QLabel);
    types->setWordWrap(true);
    types->setMinimumHeight(types->fontMetrics().lineSpacing() * 5);
    types->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    binding().Text(types, &record_.woodTypes);
    return types;
  }

  /// The grade at hand, the way to its factors, and "OK", which hands it to the calculator.
  QGroupBox* SelectionPanel(QWidget* area) {
    QGroupBox* panel = MakePanel("Final Selection");
    auto* rows = new QVBoxLayout(panel);
    auto* grid = new QGridLayout;
    grid->setColumnMinimumWidth(kSecondColumn - 1, InLetters(8));
    // Grades have long names, stresses do not.
    QLineEdit* grade = PutValue(grid, 0, 0, kGradeRow.caption);
    grid->removeWidget(grade);
    grid->addWidget(grade, 0, 1, 1, kSecondColumn + 1);
    binding().Text(grade, &(record_.selection.*kGradeRow.text));
    int at = 0;
    for (const SelectionRow& row : kStressRows) {
      QLineEdit* value = PutValue(grid, 1 + at % kStressesOfColumn,
                                  at / kStressesOfColumn * kSecondColumn, row.caption, 72);
      binding().Text(value, &(record_.selection.*row.text));
      ++at;
    }
    rows->addLayout(grid);
    rows->addLayout(Commands(area));
    return panel;
  }

  QLayout* Commands(QWidget* area) {
    auto* row = new QHBoxLayout;
    auto* factors = new QPushButton("Stress &Adjustment Factors");
    binding().Press(factors, [this] { OpenFactorPanel(record_, platform()); });
    auto* ok = new QPushButton("&OK");
    binding().Press(ok, [this] { AcceptSelection(record_, session(), platform()); });
    auto* cancel = new QPushButton("&Cancel");
    binding().Press(cancel, [this] { CloseControl(); });
    row->addWidget(factors);
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    SetReturnButton(grades_, ok);
    SetEscapeButton(area, cancel);
    return row;
  }

  /// Stands where the factors open, until they do.
  QLabel* OrderOfWork() {
    auto* steps = new QLabel(kOrderOfWork);
    steps->setForegroundRole(QPalette::PlaceholderText);
    binding().Shown(steps, [this] { return !record_.panel.open; });
    return steps;
  }

  QGroupBox* Factors() {
    const FactorPanelParts factors = MakeFactorPanel(record_, binding(), session(), platform());
    KeepRoom(factors.panel);
    SetReturnButton(factors.panel, factors.calculate);
    SetEscapeButton(factors.panel, factors.cancel);
    return factors.panel;
  }

  static constexpr int kStressesOfColumn = 3;
  static constexpr int kSecondColumn = 3;  ///< of the grid of stresses

  WoodDataBaseWindow record_;
  QListWidget* grades_ = nullptr;
};

}  // namespace

ToolWindow* MakeWoodDataBaseWindow(WindowContext context) { return new WoodDataBaseForm(context); }

}  // namespace lignara
