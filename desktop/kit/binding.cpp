#include "desktop/kit/binding.h"

#include <QAbstractButton>
#include <QAction>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>
#include <utility>

#include "desktop/kit/list_notes.h"
#include "desktop/kit/misread_number_mark.h"
#include "desktop/kit/out_of_date.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/return_and_escape.h"
#include "desktop/kit/row_copy.h"
#include "desktop/kit/row_widths.h"
#include "desktop/kit/tab_order.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// Set on a list whose rows were made anew: what stood beside them is gone.
constexpr const char* kNotesLost = "notesLost";

/// Set on a field that acts when the user comes into it.
constexpr const char* kActsOnEntry = "actsOnEntry";

using Kind = UserAction::Kind;

/// A place in the units of a picture, in as many digits as tell it from all others.
QString PlaceText(double x, double y) {
  return QString::number(x, 'g', QLocale::FloatingPointShortest) + " " +
         QString::number(y, 'g', QLocale::FloatingPointShortest);
}

/// What is typed into a field, in one line: what is pasted may have several, which neither a report
/// nor a script has room for.
QString InOneLine(QLineEdit* field, const QString& text) {
  QString line = text;
  for (QChar& sign : line) {
    const bool breaks = sign == QChar::LineSeparator || sign == QChar::ParagraphSeparator ||
                        (sign.category() == QChar::Other_Control && sign != '\t');
    if (breaks) sign = ' ';
  }
  if (line == text) return text;
  const int cursor = field->cursorPosition();
  field->setText(line);
  field->setCursorPosition(cursor);
  return line;
}

/// Calls back after the left mouse button was released over a widget, wherever it was pressed.
class ReleaseWatcher : public QObject {
 public:
  ReleaseWatcher(QWidget* watched, Binding::Command released)
      : QObject(watched), released_(std::move(released)) {
    watched->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    const bool release = event->type() == QEvent::MouseButtonRelease &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (release) released_();
    return false;
  }

 private:
  Binding::Command released_;
};

/// Calls when the focus comes into a field, unless it only comes back.
class EntryWatcher : public QObject {
 public:
  EntryWatcher(QLineEdit* field, Binding::Command entered)
      : QObject(field), field_(field), entered_(std::move(entered)) {
    field->installEventFilter(this);
    field->setProperty(kActsOnEntry, true);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::FocusIn) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool back = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                      reason == Qt::MenuBarFocusReason;
    if (!back) entered_();
    return field_->window()->focusWidget() != field_;  // it was led away meanwhile
  }

 private:
  QLineEdit* field_;
  Binding::Command entered_;
};

}  // namespace

int ChosenRow(const QListWidget* list) {
  const QListWidgetItem* item = list->currentItem();
  return item != nullptr && item->isSelected() ? list->currentRow() : -1;
}

bool ActsOnEntry(const QWidget* widget) {
  return widget != nullptr && widget->property(kActsOnEntry).toBool();
}

void Binding::Field(QLineEdit* field, std::string* text, Command typed) {
  MarkReading(field);
  Words(field, text, std::move(typed));
}

void Binding::Words(QLineEdit* field, std::string* text, Command typed) {
  QObject::connect(field, &QLineEdit::textEdited, [this, field, text, typed](const QString& said) {
    const QString now = InOneLine(field, said);
    Act({Kind::Enter, field, nullptr, now}, [&] {
      *text = FromQt(now);
      if (typed) typed();
    });
  });
  Text(field, text);
}

void Binding::Entered(QLineEdit* field, Command entered) {
  new EntryWatcher(field, [this, field, entered] { Act({Kind::ComeInto, field}, entered); });
}

void Binding::Text(QLineEdit* field, const std::string* text) {
  Follow([field, text] {
    if (field->text() != ToQt(*text)) field->setText(ToQt(*text));
  });
}

void Binding::Text(QLabel* label, const std::string* text) {
  Follow([label, text] {
    if (label->text() != ToQt(*text)) label->setText(ToQt(*text));
  });
}

void Binding::List(QListWidget* list, const std::vector<std::string>* rows, const int* row,
                   RowCommand chosen) {
  list->setUniformItemSizes(true);
  list->setItemDelegate(new RowDelegate(list));
  list->setTextElideMode(Qt::ElideNone);
  MakeCopyable(list);
  Follow([list, rows, row, shown = std::vector<std::string>()]() mutable {
    const QSignalBlocker silent(list);
    if (shown != *rows || list->count() != static_cast<int>(rows->size())) {
      const int scrolled = list->verticalScrollBar()->value();
      list->clear();
      for (const std::string& text : *rows) list->addItem(ToQt(text));
      list->verticalScrollBar()->setValue(scrolled);
      shown = *rows;
      list->setProperty(kNotesLost, true);
    }
    if (row != nullptr && ChosenRow(list) != *row) list->setCurrentRow(*row);
  });
  if (!chosen) {
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QObject::connect(list, &QListWidget::currentRowChanged, [this, list](int at) {
      if (at >= 0) Act({Kind::Select, list, nullptr, QString::number(at), true}, [] {});
    });
    return;
  }
  const auto choose = [this, list, chosen](int at) {
    if (at < 0) return;
    Act({Kind::Select, list, nullptr, QString::number(at)}, [&] { chosen(at); });
  };
  // The mouse may be dragged over rows: the one under it when the button is released counts. A list
  // that only gets the focus moves its current row too, but chooses none.
  QObject::connect(list, &QListWidget::currentRowChanged, [list, choose](int at) {
    if (QGuiApplication::mouseButtons() == Qt::NoButton && ChosenRow(list) == at) choose(at);
  });
  new ReleaseWatcher(list->viewport(), [list, choose] { choose(ChosenRow(list)); });
}

void Binding::Notes(QListWidget* list, const std::vector<RowNote>* notes) {
  ShowNotesOf(list);
  Follow([list, notes, shown = std::vector<RowNote>()]() mutable {
    if (!list->property(kNotesLost).toBool() && shown == *notes) return;
    for (int row = 0; row < list->count(); ++row) {
      const auto at = static_cast<std::size_t>(row);
      SetRowNote(list->item(row), at < notes->size() ? (*notes)[at] : RowNote());
    }
    list->setProperty(kNotesLost, false);
    shown = *notes;
  });
}

void Binding::WhyEmpty(QListWidget* list, std::function<std::string()> reason) {
  QLabel* words = AddReasonLabel(list);
  Follow([list, words, reason] {
    const QString text = IsEmptyList(list) ? ToQt(reason()) : QString();
    if (words->text() != text) words->setText(text);
    words->setVisible(!text.isEmpty());
  });
}

void Binding::OutOfDate(QWidget* result, Condition outOfDate) {
  Follow([result, outOfDate] { SetOutOfDate(result, outOfDate()); });
}

void Binding::Table(QTableWidget* table, const std::vector<std::vector<std::string>>* rows) {
  MakeCopyable(table);
  Follow([table, rows, shown = std::vector<std::vector<std::string>>()]() mutable {
    if (shown == *rows) return;
    shown = *rows;
    table->setRowCount(static_cast<int>(shown.size()));
    for (int row = 0; row < table->rowCount(); ++row) {
      const std::vector<std::string>& texts = shown[static_cast<std::size_t>(row)];
      for (int column = 0; column < table->columnCount(); ++column) {
        auto* item = new QTableWidgetItem(ToQt(texts[static_cast<std::size_t>(column)]));
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table->setItem(row, column, item);
      }
    }
  });
}

void Binding::Press(QAbstractButton* button, Command command) {
  QObject::connect(button, &QAbstractButton::clicked, [this, button, command] {
    Act({Kind::Press, button}, command);
  });
}

void Binding::OnReturn(QLineEdit* field, Command command) {
  SetReturnCommand(field, [this, field, command] {
    Act({Kind::Key, field, nullptr, "Return"}, command);
  });
}

void Binding::Menu(QAction* action, Command command) {
  QObject::connect(action, &QAction::triggered, [this, action, command] {
    Act({Kind::Menu, nullptr, action}, command);
  });
}

void Binding::Check(QAbstractButton* button, bool* checked, Command changed) {
  button->setCheckable(true);
  QObject::connect(button, &QAbstractButton::clicked, [this, button, checked, changed](bool now) {
    Act({Kind::Press, button}, [&] {
      *checked = now;
      if (changed) changed();
    });
  });
  Follow([button, checked] { button->setChecked(*checked); });
}

void Binding::Shown(QWidget* panel, const bool* shown, Command make) {
  Shown(
      panel, [shown] { return *shown; }, std::move(make));
}

void Binding::Shown(QWidget* panel, Condition shown, Command make) {
  if (make) ShowLate(panel, shown, std::move(make));
  Follow([this, panel, shown] { panels_.SetShown(panel, shown()); });
}

void Binding::ShowLate(QWidget* panel, const Condition& shown, Command make) {
  // Until then the panel keeps the place of what will stand in it in the order of the Tab key.
  panel->setFocusPolicy(Qt::TabFocus);
  late_.push_back(std::make_unique<LatePanel>(LatePanel{panel, std::move(make), {}}));
  Follow([this, shown, late = late_.back().get()] {
    if (late->make && shown()) Make(*late);
    for (const Command& refresh : late->refreshers) refresh();
  });
}

void Binding::Make(LatePanel& late) {
  std::vector<Command>* before = std::exchange(follows_, &late.refreshers);
  std::exchange(late.make, nullptr)();
  follows_ = before;
  TabThrough({late.panel});
  late.panel->setFocusPolicy(Qt::NoFocus);
  ++lateMade_;
  afterMaking_(late.panel);
}

void Binding::MakeAllPanels() {
  // What is made may hold further panels.
  for (std::size_t i = 0; i < late_.size(); ++i) {
    if (!late_[i]->make) continue;
    Make(*late_[i]);
    for (const Command& refresh : late_[i]->refreshers) refresh();
  }
}

void Binding::CloseOnEscape(QWidget* panel, Command close) {
  SetEscapeCommand(panel, [this, panel, close] {
    Act({Kind::Key, panel->window()->focusWidget(), nullptr, "Escape"}, close);
  });
}

void Binding::Enabled(QWidget* widget, Condition enabled) {
  Follow([widget, enabled] { widget->setEnabled(enabled()); });
}

void Binding::Enabled(QAction* action, Condition enabled) {
  Follow([action, enabled] { action->setEnabled(enabled()); });
}

void Binding::Show(Picture* picture, const Drawing* drawing) {
  Follow([picture, drawing] { picture->SetDrawing(*drawing); });
}

void Binding::Click(Picture* picture, PlaceCommand clicked) {
  picture->OnPress([this, picture, clicked](double x, double y) {
    Act({Kind::Click, picture, nullptr, PlaceText(x, y)}, [&] { clicked(x, y); });
  });
}

void Binding::Trace(Picture* picture, PlaceCommand clicked) {
  picture->OnPress([this, picture, clicked](double x, double y) {
    Act({Kind::Click, picture, nullptr, PlaceText(x, y), true}, [&] { clicked(x, y); });
  });
}

void Binding::Hover(Picture* picture, PlaceCommand moved) {
  picture->OnMove([this, picture, moved](double x, double y) {
    Act({Kind::Click, picture, nullptr, PlaceText(x, y), true}, [&] { moved(x, y); });
  });
}

void Binding::Scroll(QScrollBar* bar, const int* value, RowCommand moved) {
  // By itself a level bar that has the focus goes left at the right arrow key.
  if (bar->orientation() == Qt::Horizontal) bar->setInvertedControls(false);
  Follow([bar, value] {
    const QSignalBlocker silent(bar);
    bar->setValue(*value);
  });
  QObject::connect(bar, &QScrollBar::valueChanged, [this, bar, moved](int now) {
    Act({Kind::Scroll, bar, nullptr, QString::number(now), true}, [&] { moved(now); });
  });
}

void Binding::Follow(Command refresh) { follows_->push_back(std::move(refresh)); }

void Binding::Refresh() {
  for (const Command& refresh : refreshers_) refresh();
}

void Binding::Act(const UserAction& action, const Command& command) {
  if (released_) return;
  beforeCommand_(action);
  command();
  afterCommand_();
}

}  // namespace lignara
