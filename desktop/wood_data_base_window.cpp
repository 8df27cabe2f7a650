#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/choice_button.h"
#include "desktop/desktop_platform.h"
#include "desktop/factor_panel.h"
#include "desktop/form.h"
#include "desktop/text.h"
#include "desktop/windows.h"
#include "wood/wood_data_base.h"

namespace lignara {
namespace {

struct SelectionRow {
  const char* caption;
  std::string FinalSelection::*text;
};

constexpr SelectionRow kSelectionRows[] = {
    {"Grade", &FinalSelection::grade},
    {"Allowable Bending Stress (psi)", &FinalSelection::fb},
    {"Allowable Tensile Stress (psi)", &FinalSelection::ft},
    {"All. Horz. Shear Stress (psi)", &FinalSelection::fv},
    {"Allowable Compressive Stress, across grain (psi)", &FinalSelection::fcPerp},
    {"Allowable Compressive Stress, Along Grain (psi)", &FinalSelection::fcPar},
    {"Youngs Modulus", &FinalSelection::e}};

/// Species, grade and final stresses of sawn lumber.
class WoodDataBaseForm : public ToolWindow {
 public:
  explicit WoodDataBaseForm(WindowContext context) : ToolWindow("wdb", context) {
    setWindowTitle("Wood Data Base");
    OpenWoodDataBase(record_);
    AddMenus();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->setSpacing(12);
    columns->addLayout(Choices(), 1);
    columns->addWidget(SelectionPanel());
    columns->addWidget(MakeFactorPanel(record_, binding(), session(), platform()));
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

  QLayout* Choices() {
    auto* rows = new QVBoxLayout;
    auto* families = new QHBoxLayout;
    for (const WoodFamilyEntry& entry : kWoodFamilies) {
      const WoodFamily family = entry.family;
      families->addWidget(MakeChoiceButton(
          binding(), QString("&") + entry.caption,
          [this, family] { return record_.DataBaseFamily == family; },
          [this, family] { ChooseFamily(record_, session(), platform(), family); }));
    }
    rows->addLayout(families);
    rows->addWidget(MakeHeading("Data Base File to Load"));
    QListWidget* files = MakeList("Data Base File to Load", 9);
    files->setMinimumWidth(290);
    binding().List(files, &record_.files.rows, &record_.files.row,
                   [this](int row) { ChooseSpeciesFile(record_, session(), platform(), row); });
    rows->addWidget(files, 3);
    rows->addWidget(MakeHeading("Types of Wood covered by File"));
    auto* types = Named("Types of Wood covered by File", new QLabel);
    types->setWordWrap(true);
    types->setMinimumHeight(types->fontMetrics().height() * 3);
    types->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    binding().Text(types, &record_.woodTypes);
    rows->addWidget(types);
    rows->addWidget(MakeHeading("Grades"));
    QListWidget* grades = MakeList("Grades", 9);
    binding().List(grades, &record_.grades.rows, &record_.grades.row,
                   [this](int row) { ChooseGrade(record_, session(), platform(), row); });
    rows->addWidget(grades, 3);
    return rows;
  }

  QWidget* SelectionPanel() {
    auto* column = new QWidget;
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* factors = new QPushButton("Stress &Adjustment Factors");
    binding().Press(factors, [this] { OpenFactorPanel(record_, platform()); });
    QGroupBox* panel = MakePanel("Final Selection");
    auto* inside = new QVBoxLayout(panel);
    auto* grid = new QGridLayout;
    for (const SelectionRow& row : kSelectionRows) {
      binding().Text(AddValue(grid, row.caption, 150), &(record_.selection.*row.text));
    }
    inside->addLayout(grid);
    inside->addSpacing(8);
    inside->addWidget(factors);
    auto* pair = new QHBoxLayout;
    auto* ok = new QPushButton("&OK");
    binding().Press(ok, [this] { AcceptSelection(record_, session(), platform()); });
    auto* cancel = new QPushButton("&Cancel");
    binding().Press(cancel, [this] { CancelSelection(record_, platform()); });
    pair->addStretch();
    pair->addWidget(ok);
    pair->addWidget(cancel);
    inside->addLayout(pair);
    rows->addWidget(panel);
    rows->addStretch();
    SetReturnButton(column, ok);
    SetEscapeButton(column, cancel);
    return column;
  }

  WoodDataBaseWindow record_;
};

}  // namespace

ToolWindow* MakeWoodDataBaseWindow(WindowContext context) { return new WoodDataBaseForm(context); }

}  // namespace lignara
