#include "connections/bolt_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <vector>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

constexpr const char* kLengthTip = "decimal inches";

/// A bolt in shear on the left, a rod in tension on the right.
class BoltForm : public ToolWindow {
 public:
  explicit BoltForm(WindowContext context) : ToolWindow(window_name::kBolts, context) {
    setWindowTitle("Bolt and Rod Connectors");
    OpenBoltWindow(record_, session(), platform());
    AddMenus();
    AddStatusLine();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->setSpacing(12);
    columns->addWidget(ShearPanel(), 2);
    columns->addWidget(TensionPanel(), 1);
    resize(980, 640);
  }

  /// The window belongs to that of the fasteners, however that one is closed.
  void WindowClosed(const QString& name) override {
    if (name == window_name::kFasteners) platform().CloseWindow(window_name::kBolts);
  }

 private:
  using Print = void (*)(const BoltWindow&, Platform&);

  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    QMenu* print = files->addMenu("&Print");
    const std::pair<const char*, Print> prints[] = {{"Print &Tension Results", PrintTensionResults},
                                                    {"Print &Shear Results", PrintShearResults},
                                                    {"Print &Both", PrintBoltResults}};
    for (const auto& [caption, command] : prints) {
      binding().Menu(print->addAction(caption),
                     [this, run = command] { run(record_, platform()); });
    }
    binding().Menu(files->addAction("&Save Text Output to File..."),
                   [this] { SaveBoltResults(record_, platform()); });
    binding().Menu(files->addAction("E&xit"), [this] { CloseControl(); });
    AddHelpMenu();
  }

  QGroupBox* ShearPanel() {
    QGroupBox* panel = MakePanel("Allowable Shear");
    auto* columns = new QHBoxLayout(panel);
    columns->setSpacing(12);
    auto* joint = new QVBoxLayout;
    joint->addWidget(Sketch("Joint", &record_.jointSketch, {InLetters(300), InLetters(135)}), 3);
    joint->addLayout(Members());
    joint->addLayout(Angle(), 2);
    columns->addLayout(joint, 1);
    auto* options = new QVBoxLayout;
    options->addLayout(Options());
    options->addStretch();
    options->addLayout(ShearResults(panel));
    columns->addLayout(options);
    return panel;
  }

  Picture* Sketch(const char* name, const Drawing* drawing, QSize least) {
    auto* sketch = Named(name, new Picture);
    sketch->setMinimumSize(least);
    binding().Show(sketch, drawing);
    LetUserSave(sketch, platform());
    return sketch;
  }

  /// Thicknesses and bolt.
  QLayout* Members() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    auto* lengths = new QGridLayout;
    for (const auto& [caption, text] :
         {std::pair{"L&1", &record_.L1}, std::pair{"L&2", &record_.L2}}) {
      binding().Field(Length(lengths, caption), text);
    }
    QLineEdit* third = Length(lengths, "L&3");
    binding().Field(third, &record_.L3);
    const auto shown = [this] { return !record_.options.IsSingleShear(); };
    binding().Shown(third, shown);
    binding().Shown(CaptionBeside(lengths, third), shown);
    lengths->setRowStretch(lengths->rowCount(), 1);
    row->addLayout(lengths);
    constexpr int kBolts = 7;
    QListWidget* bolts = MakeList("Bolt Dia.", kBolts);
    bolts->setMinimumWidth(InLetters(90));
    binding().List(bolts, &record_.bolts.rows, &record_.bolts.row,
                   [this](int at) { ChooseBolt(record_, at); });
    row->addWidget(MakeCaptionedList("&Bolt Dia.", bolts), 1);
    return row;
  }

  static QLineEdit* Length(QGridLayout* grid, const char* caption) {
    QLineEdit* field = AddField(grid, caption);
    field->setToolTip(kLengthTip);
    return field;
  }

  QLayout* Angle() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    auto* grid = new QGridLayout;
    binding().Field(AddField(grid, "&A(deg)", 72), &record_.A);
    grid->setRowStretch(grid->rowCount(), 1);
    row->addLayout(grid);
    row->addWidget(Sketch("Load Angle", &record_.angleSketch, {InLetters(150), InLetters(100)}), 1);
    return row;
  }

  QGroupBox* OptionFrame(const JointOptionGroup& group, Qt::Orientation orientation) {
    std::vector<QString> captions;
    for (const JointChoice& choice : group.choices) captions.emplace_back(choice.caption);
    return MakeOptionFrame(
        binding(), group.caption, captions,
        [this, &group] { return record_.options.*group.chosen; },
        [this, &group](int choice) { ChooseJointOption(record_, group, choice); }, orientation);
  }

  QLayout* Options() {
    const auto groups = JointOptionGroups();  // shear, moisture, plates, duration, wood
    auto* grid = new QGridLayout;
    grid->addWidget(OptionFrame(groups[0], Qt::Vertical), 0, 0);
    grid->addWidget(OptionFrame(groups[1], Qt::Vertical), 1, 0);
    grid->addWidget(OptionFrame(groups[3], Qt::Vertical), 0, 1, 2, 1);
    grid->addWidget(OptionFrame(groups[2], Qt::Horizontal), 2, 0, 1, 2);
    grid->addWidget(OptionFrame(groups[4], Qt::Vertical), 3, 0, 1, 2);
    return grid;
  }

  QLayout* ShearResults(QGroupBox* shear) {
    auto* rows = new QVBoxLayout;
    auto* compute = new QPushButton("&Compute");
    binding().Press(compute, [this] { ComputeShear(record_, platform()); });
    SetReturnButton(shear, compute);
    rows->addWidget(compute);
    QGroupBox* panel = MakePanel(" Results (lbs)");
    auto* grid = new QGridLayout(panel);
    const auto old = [this] { return ShearIsOutOfDate(record_); };
    Value(grid, "Allow. Load Parall to Grain", &record_.parallel, old);
    Value(grid, "Allow. Load Perp. to Grain", &record_.perpendicular, old);
    Value(grid, "Allow. Load at Ang. (A)", &record_.atAngle, old);
    rows->addWidget(panel);
    return rows;
  }

  void Value(QGridLayout* grid, const char* caption, const std::string* text,
             const Binding::Condition& outOfDate) {
    QLineEdit* value = AddValue(grid, caption);
    binding().Text(value, text);
    binding().OutOfDate(value, outOfDate);
  }

  QGroupBox* TensionPanel() {
    QGroupBox* panel = MakePanel("Allowable Tension");
    auto* rows = new QVBoxLayout(panel);
    auto* upper = new QHBoxLayout;
    upper->setSpacing(12);
    constexpr int kRodsAtLeast = 8;
    QListWidget* rods = MakeList("Bolt Dia.", kRodsAtLeast);
    rods->setMinimumWidth(InLetters(90));
    binding().List(rods, &record_.rods.rows, &record_.rods.row,
                   [this](int row) { ChooseRod(record_, platform(), row); });
    upper->addWidget(MakeCaptionedList("Bolt &Dia.", rods), 1);
    upper->addWidget(Sketch("Tension Rod", &record_.rodSketch, {InLetters(130), InLetters(165)}),
                     2);
    rows->addLayout(upper, 1);
    auto* grid = new QGridLayout;
    const auto compute = [this] { ComputeTension(record_, platform()); };
    binding().Field(AddField(grid, "Allow Bolt &Stress (ksi)"), &record_.boltStress, compute);
    binding().Field(AddField(grid, "Allow &Wood Bearing Stress (psi)"), &record_.woodStress,
                    compute);
    rows->addLayout(grid);
    rows->addWidget(TensionResults());
    return panel;
  }

  QGroupBox* TensionResults() {
    QGroupBox* panel = MakePanel("Results");
    auto* grid = new QGridLayout(panel);
    const auto old = [this] { return TensionIsOutOfDate(record_); };
    Value(grid, "Max. Load (lbs)", &record_.load, old);
    Value(grid, "Min. Plate Side Dim (in)", &record_.plateSide, old);
    Value(grid, "Min. Plate Thk. (in)", &record_.plateThickness, old);
    return panel;
  }

  BoltWindow record_;
};

}  // namespace

ToolWindow* MakeBoltWindow(WindowContext context) { return new BoltForm(context); }

}  // namespace lignara
