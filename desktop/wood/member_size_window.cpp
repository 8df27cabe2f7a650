#include "wood/member_size_window.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <span>
#include <vector>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/exclusive_button.h"
#include "desktop/kit/form.h"
#include "desktop/kit/text.h"
#include "desktop/kit/warning_colour.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

struct GroupRow {
  const char* caption;
  std::string GroupPanel::*text;
  GroupField field;
};

constexpr GroupRow kGroupStressRows[] = {{"Fa (psi)", &GroupPanel::fa, GroupField::Fa},
                                         {"Ft (psi)", &GroupPanel::ft, GroupField::Ft},
                                         {"E (psi)", &GroupPanel::e, GroupField::E}};

constexpr GroupRow kGroupSectionRows[] = {{"B(in)", &GroupPanel::b, GroupField::B},
                                          {"D(in)", &GroupPanel::d, GroupField::D},
                                          {"Area (in^2)", &GroupPanel::area, GroupField::Area}};

struct BeamRow {
  const char* caption;
  std::string BeamPanel::*text;
  bool changesSize;
};

constexpr BeamRow kBeamStressRows[] = {{"Fb (psi)", &BeamPanel::fb, false},
                                       {"Fa (psi)", &BeamPanel::fa, false},
                                       {"Fv (psi)", &BeamPanel::fv, false},
                                       {"Ft (psi)", &BeamPanel::ft, false},
                                       {"E (psi)", &BeamPanel::e, false}};

constexpr BeamRow kBeamSectionRows[] = {
    {"B(in)", &BeamPanel::b, true},           {"D(in)", &BeamPanel::d, true},
    {"Area (in^2)", &BeamPanel::area, false}, {"Ix (in^4)", &BeamPanel::ix, false},
    {"Iy (in^4)", &BeamPanel::iy, false},     {"Sx (in^3)", &BeamPanel::sx, false},
    {"Sy (in^3)", &BeamPanel::sy, false}};

/// Nominal sizes, sections and stresses of the members of a truss or of a beam.
class MemberSizeForm : public ToolWindow {
 public:
  explicit MemberSizeForm(WindowContext context) : ToolWindow(window_name::kMemberSize, context) {
    setWindowTitle("Member Size Data Calculator");
    OpenMemberSize(record_, session(), platform());
    AddMenus();
    AddTicksNote();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setSpacing(10);
    auto* upper = new QHBoxLayout;
    upper->addWidget(SizePanel());
    upper->addWidget(Groups(), 1);
    upper->addWidget(BeamPanelBox(), 1);
    rows->addLayout(upper, 1);
    rows->addLayout(Foot(area));
    // Hides the panels of the other client before the window is measured.
    binding().Refresh();
    firstWidth_->setFocus();
  }

  void CloseControl() override { ExitMemberSize(platform()); }

  void WindowClosed(const QString& name) override {
    if (name == window_name::kWoodDataBase) ReturnFromWoodDataBase(record_, session(), platform());
  }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("E&xit"), [this] { CloseControl(); });
    AddHelpMenu();
  }

  /// Said while there is time to tick, and not after the visit to the data base.
  void AddTicksNote() {
    QLabel* note = AddStatusText("Note");
    QPalette palette = note->palette();
    palette.setColor(QPalette::WindowText, WarningColour(palette));
    note->setPalette(palette);
    binding().Follow([this, note] { note->setText(ToQt(TicksNote(record_))); });
  }

  /// Width, depth, "Accept" and what came of it, from top to bottom in the order of work.
  QWidget* SizePanel() {
    auto* column = new QWidget;
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* picks = new QHBoxLayout;
    picks->addWidget(ButtonColumn("Width", record_.widthPick, PickWidth));
    picks->addWidget(ButtonColumn("Depth", record_.depthPick, PickDepth));
    rows->addLayout(picks);
    QGroupBox* panel = MakePanel("Size Selection");
    auto* inside = new QVBoxLayout(panel);
    auto* accept = new QPushButton("&Accept");
    binding().Press(accept, [this] { AcceptSize(record_, session(), platform()); });
    inside->addWidget(accept);
    auto* grid = new QGridLayout;
    binding().Text(AddValue(grid, "Size", 80), &record_.selection.size);
    binding().Text(AddValue(grid, "B(in)", 80), &record_.selection.dressedB);
    binding().Text(AddValue(grid, "D(in)", 80), &record_.selection.dressedD);
    inside->addLayout(grid);
    rows->addWidget(panel);
    rows->addStretch();
    return column;
  }

  QGroupBox* ButtonColumn(const QString& caption, const int& pick,
                          void (*choose)(MemberSizeWindow&, int)) {
    QGroupBox* panel = MakePanel(caption);
    auto* grid = new QGridLayout(panel);
    grid->setSpacing(4);
    constexpr int kHalf = static_cast<int>(kNominalSizes.size()) / 2;
    std::vector<QPushButton*> buttons;
    for (int i = 0; i < static_cast<int>(kNominalSizes.size()); ++i) {
      QPushButton* button = MakeExclusiveButton(
          binding(), QString::number(kNominalSizes[static_cast<std::size_t>(i)]),
          [&pick, i] { return pick == i; }, [this, choose, i] { choose(record_, i); });
      button->setFixedWidth(InLetters(44));
      grid->addWidget(button, i % kHalf, i / kHalf);
      buttons.push_back(button);
    }
    MakeOneTabStop(binding(), buttons);
    if (firstWidth_ == nullptr) firstWidth_ = buttons.front();
    return panel;
  }

  QWidget* Groups() {
    auto* area = new QWidget;
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < kMemberGroups; ++i) {
      grid->addWidget(GroupPanelBox(static_cast<MemberGroup>(i)), i / 2, i % 2);
    }
    binding().Shown(area, &record_.groupsShown);
    return area;
  }

  QGroupBox* GroupPanelBox(MemberGroup group) {
    GroupPanel& record = record_.Group(group);
    QGroupBox* panel = MakePanel(kGroupCaptions[static_cast<std::size_t>(group)].panel);
    auto* rows = new QVBoxLayout(panel);
    auto* head = new QHBoxLayout;
    auto* select = new QPushButton("Select");
    binding().Press(select,
                    [this, group] { SelectGroupSize(record_, session(), platform(), group); });
    head->addWidget(SizeCaption(&record.size));
    head->addStretch();
    head->addWidget(select);
    rows->addLayout(head);
    rows->addWidget(GradeLabel(&record.gradeLabel));
    QGridLayout* grid = BoxGrid();
    AddGroupFields(grid, 0, group, kGroupSectionRows);
    AddGroupFields(grid, kSecondColumn, group, kGroupStressRows);
    rows->addLayout(grid);
    rows->addStretch();
    return panel;
  }

  void AddGroupFields(QGridLayout* grid, int column, MemberGroup group,
                      std::span<const GroupRow> table) {
    int at = 0;
    for (const GroupRow& row : table) {
      const GroupField field = row.field;
      binding().Field(
          PutField(grid, at++, column, row.caption, 72), &(record_.Group(group).*row.text),
          [this, group, field] { EditGroupField(record_, session(), platform(), group, field); });
    }
  }

  /// Two columns of fields with a gap between, rows aligned.
  static QGridLayout* BoxGrid() {
    auto* grid = new QGridLayout;
    grid->setColumnMinimumWidth(kSecondColumn - 1, 12);
    return grid;
  }

  QLabel* SizeCaption(const std::string* text) {
    QLabel* label = Named("Size", MakeHeading(""));
    binding().Text(label, text);
    return label;
  }

  QLabel* GradeLabel(const std::string* text) {
    auto* label = Named("Grade", new QLabel);
    label->setWordWrap(true);
    // Room for the types of most files, so that the fields below stay where they are.
    label->setMinimumHeight(label->fontMetrics().lineSpacing() * 3);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    binding().Text(label, text);
    return label;
  }

  QGroupBox* BeamPanelBox() {
    QGroupBox* panel = MakePanel("Beam Member");
    auto* rows = new QVBoxLayout(panel);
    rows->addWidget(SizeCaption(&record_.beam.size));
    rows->addWidget(GradeLabel(&record_.beam.gradeLabel));
    QGridLayout* grid = BoxGrid();
    AddBeamBoxes(grid, 0, kBeamSectionRows);
    AddBeamBoxes(grid, kSecondColumn, kBeamStressRows);
    rows->addLayout(grid);
    rows->addStretch();
    binding().Shown(panel, &record_.beamShown);
    return panel;
  }

  void AddBeamBoxes(QGridLayout* grid, int column, std::span<const BeamRow> table) {
    int at = 0;
    for (const BeamRow& row : table) {
      Binding::Command typed;
      if (row.changesSize) typed = [this] { EditBeamSize(record_, session(), platform()); };
      binding().Field(PutField(grid, at++, column, row.caption), &(record_.beam.*row.text), typed);
    }
  }

  QLayout* Foot(QWidget* area) {
    auto* row = new QHBoxLayout;
    auto* wood = new QPushButton("&Wood Type Data Base");
    binding().Press(wood, [this] { VisitWoodDataBase(session(), platform()); });
    row->addWidget(Ticks());
    row->addWidget(wood);
    row->addStretch();
    auto* ok = new QPushButton("&OK");
    binding().Press(ok, [this] { AcceptMemberSize(record_, session(), platform()); });
    auto* cancel = new QPushButton("&Cancel");
    binding().Press(cancel, [this] { CancelMemberSize(session(), platform()); });
    row->addWidget(ok);
    row->addWidget(cancel);
    SetReturnButton(area, ok);
    SetEscapeButton(area, cancel);
    return row;
  }

  QWidget* Ticks() {
    auto* area = new QWidget;
    auto* row = new QHBoxLayout(area);
    row->setContentsMargins(0, 0, 8, 0);
    row->addWidget(new QLabel("Stresses go to"));
    for (int i = 0; i < kMemberGroups; ++i) {
      auto* tick = new QCheckBox(QString("&") + kGroupCaptions[static_cast<std::size_t>(i)].check);
      binding().Check(tick, &record_.Group(static_cast<MemberGroup>(i)).ticked);
      row->addWidget(tick);
    }
    binding().Shown(area, &record_.groupsShown);
    return area;
  }

  static constexpr int kSecondColumn = 3;  ///< of a grid of fields

  MemberSizeWindow record_;
  QPushButton* firstWidth_ = nullptr;
};

}  // namespace

ToolWindow* MakeMemberSizeWindow(WindowContext context) { return new MemberSizeForm(context); }

}  // namespace lignara
