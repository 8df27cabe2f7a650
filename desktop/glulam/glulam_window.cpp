#include "glulam/glulam_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <vector>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/exclusive_button.h"
#include "desktop/kit/form.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"
#include "glulam/combination_files.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"
#include "glulam/values_and_wet_factors.h"

namespace lignara {
namespace {

/// A caption with the letter that reaches it from the keyboard.
QString WithKey(const QString& caption, QChar key) {
  QString text = caption;
  return text.insert(caption.indexOf(key), '&');
}

/// The letters of the four files, in their order.
constexpr char kFileKeys[] = "VEGS";
/// The letters of the options of each frame, in their order.
constexpr char kMoistureKeys[] = "yW";
constexpr char kDurationKeys[] = "127im";
constexpr char kLoadTypeKeys[] = "nU3";

const char* Caption(const GlulamUseCondition& choice) { return choice.caption; }
const char* Caption(const GlulamDuration& duration) { return duration.use.caption; }

template <typename Choices>
std::vector<QString> OptionTexts(const Choices& choices, const char* keys) {
  std::vector<QString> texts;
  for (const auto& choice : choices) texts.push_back(WithKey(Caption(choice), *keys++));
  return texts;
}

/// Runs a command at each click into a field, before the field takes the click.
class ClickWatcher : public QObject {
 public:
  ClickWatcher(QLineEdit* field, Binding::Command clicked)
      : QObject(field), clicked_(std::move(clicked)) {
    field->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const bool click = event->type() == QEvent::MouseButtonPress &&
                       static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (click) clicked_();
    return false;
  }

 private:
  Binding::Command clicked_;
};

struct SizeRow {
  const char* caption;
  std::string GlulamWindow::*text;
};
constexpr SizeRow kSizeRows[] = {{"&L(ft)", &GlulamWindow::length},
                                 {"&d(in)", &GlulamWindow::depth},
                                 {"&b(in)", &GlulamWindow::width}};

/// Combinations on the left, their values in the middle, the choices that change them on the right.
class GlulamForm : public ToolWindow {
 public:
  explicit GlulamForm(WindowContext context) : ToolWindow(window_name::kGlulam, context) {
    setWindowTitle("Glued-Laminated Member Data Base");
    OpenGlulamWindow(record_, session(), platform());
    AddMenus();
    AddStatusLine();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->setSpacing(12);
    columns->addLayout(Combinations(), 1);
    // Made ahead of the values, so that the Tab key comes to the choices first.
    QLayout* choices = Choices();
    columns->addLayout(choices);
    columns->insertLayout(1, Values());
    auto* done = new QPushButton("Done / &Transfer");
    binding().Press(done, [this] { TransferGlulamSelection(record_, session(), platform()); });
    choices->addWidget(done);
    SetReturnButton(area, done);
  }

  /// The combination chosen, or the window's own name before.
  QString DocumentName() const override {
    const QString symbol = ToQt(record_.combinations.Chosen()).trimmed();
    return symbol.isEmpty() ? windowTitle() : "Glu-Lam " + symbol;
  }

  void CloseControl() override { ExitGlulam(platform()); }

 protected:
  void Returned() override { ReturnToGlulam(record_, session(), platform()); }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("&Print"),
                   [this] { PrintGlulamReport(record_, session(), platform()); });
    binding().Menu(files->addAction("&Save Output to Text File..."),
                   [this] { SaveGlulamReport(record_, session(), platform()); });
    binding().Menu(files->addAction("&Exit"), [this] { CloseControl(); });
    AddHelpMenu();
  }

  Binding::Command Recompute() {
    return [this] { RecomputeAllowables(record_, session(), platform()); };
  }

  /// File and combination, from top to bottom in the order of work.
  QLayout* Combinations() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(FilePanel());
    QListWidget* list = MakeList("Combination Symbol", 6);
    binding().List(list, &record_.combinations.rows, &record_.combinations.row,
                   [this](int row) { ChooseCombination(record_, session(), platform(), row); });
    binding().WhyEmpty(list, [] { return "Choose one of the Data Base Options."; });
    auto* caption = MakeHeading("&Combination Symbol");
    caption->setBuddy(list);
    rows->addWidget(caption);
    rows->addWidget(list, 1);
    rows->addWidget(MakeHeading("Species Out. Lay/Core Lay"));
    QLineEdit* species = MakeField("Species Out. Lay/Core Lay");
    species->setAlignment(Qt::AlignLeft);
    ShowOnly(species);
    binding().Text(species, &record_.species);
    rows->addWidget(species);
    return rows;
  }

  QGroupBox* FilePanel() {
    QGroupBox* panel = MakePanel("Data Base Options");
    auto* rows = new QVBoxLayout(panel);
    std::vector<QPushButton*> buttons;
    for (std::size_t i = 0; i < kGlulamFiles.size(); ++i) {
      const int option = static_cast<int>(i) + 1;
      buttons.push_back(MakeExclusiveButton(
          binding(), WithKey(kGlulamFiles[i].caption, kFileKeys[i]),
          [this, option] { return IsLoaded(option); },
          [this, option] { LoadCombinationFile(record_, session(), platform(), option); }));
      rows->addWidget(buttons.back());
    }
    MakeOneTabStop(binding(), buttons);
    buttons.front()->setFocus();
    return panel;
  }

  bool IsLoaded(int option) {
    return !record_.combinations.rows.empty() && session().GlulamCombinations.Option == option;
  }

  QLayout* Choices() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(SizePanel());
    rows->addWidget(MoistureFrame());
    rows->addWidget(DurationFrame());
    rows->addWidget(MakeOptionFrame(
        binding(), "Main Load Type", OptionTexts(kGlulamLoadTypes, kLoadTypeKeys),
        [this] { return record_.loadType; }, [this](int at) { ChooseLoadType(record_, at); }));
    rows->addStretch();
    return rows;
  }

  QGroupBox* SizePanel() {
    QGroupBox* panel = MakePanel("Slenderness");
    auto* grid = new QGridLayout(panel);
    for (const SizeRow& row : kSizeRows) {
      QLineEdit* field = AddField(grid, row.caption, 72);
      binding().Field(field, &(record_.*row.text), Recompute());
      const auto size = row.text;
      new ClickWatcher(field, [this, field, size] {
        binding().Act({UserAction::Kind::Enter, field},
                      [this, size] { EmptySize(record_, session(), platform(), size); });
      });
    }
    return panel;
  }

  QGroupBox* MoistureFrame() {
    QGroupBox* frame = MakeOptionFrame(
        binding(), "Moisture", OptionTexts(kGlulamMoistures, kMoistureKeys),
        [this] { return record_.dryUse ? 0 : 1; },
        [this](int at) { ChooseMoisture(record_, session(), platform(), at == 0); });
    binding().Enabled(frame->findChildren<QRadioButton*>().back(),
                      [this] { return record_.wetOffered; });
    return frame;
  }

  QGroupBox* DurationFrame() {
    QGroupBox* frame = MakeOptionFrame(
        binding(), "Duration", OptionTexts(kGlulamDurations, kDurationKeys),
        [this] { return record_.duration; },
        [this](int at) { ChooseDuration(record_, session(), platform(), at); });
    constexpr int kNormal = -1;
    auto* clear = new QPushButton("Clea&r");
    clear->setToolTip("No choice: normal duration, factor 1");
    binding().Press(clear, [this] { ChooseDuration(record_, session(), platform(), kNormal); });
    binding().Enabled(clear, [this] { return record_.duration != kNormal; });
    frame->layout()->addWidget(clear);
    return frame;
  }

  /// The table of values, and what is to be said of it.
  QLayout* Values() {
    auto* rows = new QVBoxLayout;
    auto* tables = new QHBoxLayout;
    tables->addWidget(ValuePanel(), 1);
    tables->addWidget(FactorPanel());
    rows->addLayout(tables);
    auto* useNote = Named("Use Note", MakeHeading(""));
    useNote->setWordWrap(true);
    // Room for the longest note, so that nothing moves.
    useNote->setMinimumHeight(useNote->fontMetrics().lineSpacing() * 2);
    binding().Text(useNote, &record_.useNote);
    rows->addWidget(useNote);
    rows->addWidget(Note(kGlulamFixedNote));
    rows->addStretch();
    rows->addWidget(Note(kGlulamFactorNote));
    auto* keep = new QPushButton("Set user &adjustment as default");
    binding().Press(keep, [this] {
      if (platform().MayWriteFiles()) {
        SaveUserFactors(record_, session(), platform());
      } else {
        HoldUserFactors(record_, session(), platform());
      }
    });
    rows->addWidget(keep, 0, Qt::AlignRight);
    return rows;
  }

  static QLabel* Note(const char* text) {
    auto* note = new QLabel(text);
    note->setWordWrap(true);
    return note;
  }

  QGroupBox* ValuePanel() {
    QGroupBox* panel = MakePanel("Display Data, Allowable Stress Values (psi)");
    auto* grid = new QGridLayout(panel);
    int at = 0;
    for (const GlulamColumn& column : kGlulamColumns) {
      QLineEdit* value = PutValue(grid, at, 0, column.caption);
      value->setFixedWidth(InLetters(kValueWidth));
      binding().Text(value, &record_.values[static_cast<std::size_t>(at)]);
      ++at;
    }
    grid->setVerticalSpacing(kRowGap);
    return panel;
  }

  /// Its rows go on those of the values, so they need no captions of their own.
  QGroupBox* FactorPanel() {
    QGroupBox* panel = MakePanel("User Adjustment");
    auto* grid = new QGridLayout(panel);
    int at = 0;
    for (const GlulamColumn& column : kGlulamColumns) {
      QLineEdit* factor = MakeField(column.caption);
      factor->setFixedWidth(InLetters(kValueWidth));
      binding().Field(factor, &record_.factors[static_cast<std::size_t>(at)], Recompute());
      grid->addWidget(factor, at++, 0);
    }
    grid->setVerticalSpacing(kRowGap);
    return panel;
  }

  static constexpr int kRowGap = 3;
  static constexpr int kValueWidth = 92;

  GlulamWindow record_;
};

}  // namespace

ToolWindow* MakeGlulamWindow(WindowContext context) { return new GlulamForm(context); }

}  // namespace lignara
