#include "desktop/session/repeat_form.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "app/data_directory.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/list_notes.h"
#include "desktop/kit/row_copy.h"
#include "desktop/kit/table.h"
#include "desktop/kit/text.h"
#include "desktop/session/repeat_window.h"
#include "desktop/session/variant_run.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

constexpr const char* kNothingEntered = "nothing was entered into a field yet";
constexpr const char* kNothingToRead = "no window shows a result yet";
constexpr const char* kNoResults =
    "Choose what was entered, give it values, mark what is to be read at the end, and press "
    "\"Run\"";
constexpr const char* kValuesHint = "20, 24, 30 or 20..40 step 2";

/// What is said behind the number of values that were played.
const char* HowEnded(VariantRun::End end) {
  switch (end) {
    case VariantRun::End::Cancelled:
      return "; cancelled";
    case VariantRun::End::Failed:
      return "; lignara-script, which plays them, is missing or has failed";
    default:
      return "";
  }
}

/// A session with several values in the place of one.
class RepeatForm : public ToolWindow {
 public:
  explicit RepeatForm(WindowContext context) : ToolWindow(window_name::kRepeat, context) {
    setWindowTitle("Repeat With...");
    resize(860, 620);
    AddHelpMenu();
    QLabel* status = AddStatusText("Status");
    // A long path does not widen the window.
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    binding().Text(status, &record_.status);
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setSpacing(10);
    rows->addLayout(Choices(), 2);
    rows->addLayout(Values());
    rows->addLayout(Commands(area));
    rows->addLayout(Results(), 3);
    rows->addLayout(TableCommands());
    slow_.setSingleShot(true);
    slow_.setInterval(kBetweenLooks);
    connect(&slow_, &QTimer::timeout, this, [this] { ShowProgress(); });
  }

  void Take(const QStringList& lines) {
    TakeSession(record_, lines, platform());
    Refresh();
    entered_->setFocus();
  }

 private:
  QLayout* Choices() {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    entered_ = MakeList("Entered in the Session", 5);
    binding().List(entered_, &record_.enteredRows.rows, &record_.enteredRows.row,
                   [this](int row) { ChooseEntered(record_, row); });
    binding().Notes(entered_, &record_.enteredNotes);
    binding().WhyEmpty(entered_, [] { return kNothingEntered; });
    columns->addWidget(MakeCaptionedList("&Entered in the Session", entered_), 1);
    columns->addWidget(MakeCaptionedList("Read at the E&nd", Readings()), 1);
    return columns;
  }

  /// Each row has a mark, which the space key or a click on it sets.
  QListWidget* Readings() {
    QListWidget* list = MakeList("Read at the End", 5);
    binding().List(list, &record_.readingRows);
    binding().Notes(list, &record_.readingNotes);
    binding().WhyEmpty(list, [] { return kNothingToRead; });
    binding().Follow([this, list] {
      const QSignalBlocker silent(list);
      for (int row = 0; row < list->count(); ++row) {
        const bool read = record_.read[static_cast<std::size_t>(row)];
        list->item(row)->setCheckState(read ? Qt::Checked : Qt::Unchecked);
      }
    });
    connect(list, &QListWidget::itemChanged, this, [this, list](const QListWidgetItem* item) {
      binding().Run([&] { SetRead(record_, list->row(item), item->checkState() == Qt::Checked); });
    });
    return list;
  }

  QLayout* Values() {
    auto* row = new QHBoxLayout;
    auto* field = Named("Values", new QLineEdit);
    field->setPlaceholderText(kValuesHint);
    binding().Words(field, &record_.values, [this] { EditValues(record_); });
    auto* caption = new QLabel("&Values");
    caption->setBuddy(field);
    row->addWidget(caption);
    row->addWidget(field, 1);
    auto* note = Named("Values Note", new QLabel);
    binding().Text(note, &record_.valuesNote);
    row->addWidget(note, 1);
    return row;
  }

  QLayout* Commands(QWidget* area) {
    auto* row = new QHBoxLayout;
    start_ = new QPushButton("&Run");
    binding().Press(start_, [this] { Run(); });
    cancel_ = new QPushButton("&Cancel");
    binding().Press(cancel_, [this] { run_.Cancel(); });
    // In this order: who has pressed "Run" is led on to "Cancel".
    binding().Enabled(cancel_, [this] { return record_.running; });
    binding().Enabled(start_, [this] { return !record_.running; });
    auto* progress = Named("Progress", new QProgressBar);
    progress->setFormat("%v of %m");
    KeepRoom(progress);
    binding().Follow([this, progress] {
      progress->setMaximum(static_cast<int>(record_.run.values.size()));
      progress->setValue(static_cast<int>(record_.outcomes.size()));
      progress->setVisible(record_.running);
    });
    row->addWidget(start_);
    row->addWidget(cancel_);
    row->addWidget(progress, 1);
    SetReturnButton(area, start_);
    SetEscapeButton(area, cancel_);
    return row;
  }

  QLayout* Results() {
    auto* rows = new QVBoxLayout;
    table_ = MakeTable("Results", {});
    auto* caption = new QLabel("Resul&ts");
    caption->setBuddy(table_);
    rows->addWidget(caption);
    rows->addWidget(table_, 1);
    BindResults();
    return rows;
  }

  void BindResults() {
    MakeCopyable(table_);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    QLabel* words = AddReasonLabel(table_);
    words->setText(kNoResults);
    binding().Follow([this, words, shown = VariantTable()]() mutable {
      words->setVisible(record_.table.heads.isEmpty());
      if (shown == record_.table) return;
      FillTable(shown);
      shown = record_.table;
    });
    binding().OutOfDate(table_, [this] { return IsOutOfDate(record_); });
  }

  /// Rows that stand there already stay: a table of thousands grows while it is looked at.
  void FillTable(const VariantTable& shown) {
    const VariantTable& now = record_.table;
    const bool same = shown.heads == now.heads && now.rows.size() >= shown.rows.size() &&
                      std::equal(shown.rows.begin(), shown.rows.end(), now.rows.begin());
    const int first = same ? static_cast<int>(shown.rows.size()) : 0;
    if (!same) {
      table_->setRowCount(0);
      table_->setColumnCount(static_cast<int>(now.heads.size()));
      table_->setHorizontalHeaderLabels(now.heads);
    }
    table_->setRowCount(static_cast<int>(now.rows.size()));
    for (int row = first; row < table_->rowCount(); ++row) {
      for (int column = 0; column < table_->columnCount(); ++column) {
        table_->setItem(row, column, CellOf(now.rows[row][column]));
      }
    }
    if (first < kMeasured) table_->resizeColumnsToContents();
  }

  /// Figures stand at the right, words at the left.
  static QTableWidgetItem* CellOf(const QString& text) {
    bool number = false;
    text.toDouble(&number);
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return cell;
  }

  QLayout* TableCommands() {
    auto* row = new QHBoxLayout;
    auto* copy = new QPushButton("C&opy");
    binding().Press(copy, [this] {
      QGuiApplication::clipboard()->setText(RowsAsText(table_, false));
      record_.status = "Copied";
    });
    auto* save = new QPushButton("&Save as CSV...");
    binding().Press(save, [this] { SaveTable(record_.table, record_.status, platform()); });
    row->addStretch();
    for (QPushButton* button : {copy, save}) {
      binding().Enabled(button, [this] { return !record_.table.rows.isEmpty(); });
      row->addWidget(button);
    }
    return row;
  }

  /// Where a script stands in the user's place the table is whole when the command ends.
  void Run() {
    const std::string missing = WhyNoRun(record_);
    if (!missing.empty()) return platform().ShowMessage({missing});
    BeginRun(record_);
    run_.Start(record_.run, ToQt(FolderOf(session().DataDirectory)));
    if (platform().respondent() != nullptr) run_.WaitForEnd();
  }

  void Ended(VariantRun::End end) {
    slow_.stop();
    EndRun(record_, HowEnded(end));
    const bool waited = focusWidget() == cancel_;
    Refresh();
    if (waited) start_->setFocus();
  }

  void ShowProgress() {
    ShowOutcomes(record_);
    Refresh();
  }

  static constexpr int kBetweenLooks = 100;  // milliseconds
  static constexpr int kMeasured = 100;      // rows that a column is made wide enough for

  RepeatWindow record_;
  QListWidget* entered_ = nullptr;
  QPushButton* start_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QTableWidget* table_ = nullptr;
  QTimer slow_;
  VariantRun run_{[this](const VariantOutcome& outcome) {
                    record_.outcomes.push_back(outcome);
                    if (!slow_.isActive()) slow_.start();
                  },
                  [this](VariantRun::End end) { Ended(end); }};
};

}  // namespace

ToolWindow* MakeRepeatWindow(WindowContext context) { return new RepeatForm(context); }

void RepeatSession(ToolWindow* window, const QStringList& lines) {
  static_cast<RepeatForm*>(window)->Take(lines);
}

}  // namespace lignara
