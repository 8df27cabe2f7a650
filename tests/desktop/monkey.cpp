#include "tests/desktop/monkey.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "multispan/multi_span_solution.h"

namespace lignara {
namespace {

/// What a hand without a plan types. Counts stay small enough for a run to end soon.
const std::vector<QString> kTexts = {
    "",   "0",    "1",   "2",     "3",     "4",     "6",      "8",      "12",    "20",
    "30", "7.5",  "100", "-5",    "1e38",  "-1e39", "1e-40",  "abc",    "1,000", " 16 ",
    ".5", "0.01", "3.5", "99.99", "1e400", "5 ft",  "000",    "-0.001", "2.5e1", "+7",
    "24", "1.15", "--3", "1e",    ".",     "250",   "1600000"};

/// A button under a mnemonic is seen going down before it acts, for so many milliseconds.
constexpr int kButtonDown = 130;

/// An item, which may stand in the menu bar itself, or all items of a menu. A monkey keeps away
/// from the end of the program, and from sessions, which have tests of their own.
void AddItem(QAction* item, std::vector<QAction*>& items) {
  static const QStringList away = {"E&xit", "Open Session...", "Save Session...", "Undo",
                                   "Redo",  "Repeat With..."};
  if (item->menu() != nullptr) {
    for (QAction* inner : item->menu()->actions()) AddItem(inner, items);
  } else if (item->isEnabled() && !item->isSeparator() && !away.contains(item->text()) &&
             !away.contains(PlainCaption(item->text()))) {
    items.push_back(item);
  }
}

/// What a menu bar without room shows in the place of its items: it opens a menu that waits.
bool IsPartOfAMenuBar(const QWidget* widget) {
  return qobject_cast<const QMenuBar*>(widget->parentWidget()) != nullptr;
}

void CheckText(const QString& text) {
  static const QRegularExpression internal(
      "\\b(nan|inf|null|nullptr|std|exception|assert|lignara::)\\b",
      QRegularExpression::CaseInsensitiveOption);
  EXPECT_FALSE(internal.match(text).hasMatch()) << FromQt(text);
}

}  // namespace

Monkey::Monkey(unsigned seed)
    : random_(seed),
      platform_(session_, [this](const QString& line) { Heard(line); }),
      faults_(platform_) {
  EXPECT_TRUE(directory_.isValid());
  // It pastes, too: what an earlier test copied is not to come into its fields.
  QGuiApplication::clipboard()->clear();
  // A copy, since the monkey saves the user's defaults as well.
  std::filesystem::copy(LIGNARA_DATA_DIRECTORY, FromQt(directory_.path()));
  StartSession(session_, FromQt(directory_.path()));
  platform_.OpenWindow(window_name::kLauncher);
}

void Monkey::Play(int actions) {
  for (int i = 0; i < actions && !testing::Test::HasFailure(); ++i) {
    if (platform_.OpenWindows().isEmpty()) platform_.OpenWindow("main");
    Act();
    platform_.TakeFailure();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    LookAround();
  }
}

void Monkey::Open(const char* window) {
  RunABeam();
  platform_.OpenWindow(window);
}

/// A beam of three spans and its run, for the windows that show them.
void Monkey::RunABeam() {
  session_.SpanCount = 3;
  MultiSpanModel& beam = session_.MultiSpan;
  beam.spanCount = 3;
  for (int j = 1; j <= 3; ++j) {
    beam.spanLength[j] = 10 + j;
    beam.spanE[j] = 1600000;
    beam.spanI[j] = 100;
    beam.spanUniform[j] = 120;
  }
  session_.MultiSpanRun = std::make_shared<const MultiSpanSolution>(solveMultiSpan(beam));
}

int Monkey::Pick(std::size_t count) {
  return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
}

/// A dialog may come up or not: an answer for each kind that the next action can meet.
void Monkey::PrepareAnswer() {
  using Kind = ScriptAnswer::Kind;
  const ScriptAnswer answers[] = {
      {Kind::File, directory_.filePath("saved")},
      {Kind::Cancel, ""},
      {Kind::Yes, ""},
      {Kind::No, ""},
      {Kind::Text, kTexts[static_cast<std::size_t>(Pick(kTexts.size()))]}};
  platform_.KeepAnswer(answers[Pick(std::size(answers))]);
}

ToolWindow* Monkey::AnyWindow() {
  std::vector<ToolWindow*> free;
  for (const QString& name : platform_.OpenWindows()) {
    ToolWindow* window = platform_.FindWindow(name);
    if (!platform_.IsBlocked(window)) free.push_back(window);
  }
  // The newest window is the one that a user looks at.
  return Pick(4) == 0 ? free[static_cast<std::size_t>(Pick(free.size()))] : free.back();
}

void Monkey::Act() {
  ToolWindow* window = AnyWindow();
  platform_.Activate(window);  // as each click into a window does
  QApplication::processEvents();
  const int kind = Pick(40);
  if (kind == 0) {
    if (window->name() != "main") window->close();
  } else if (kind < 3) {
    UseMenu(window);
  } else if (kind < 8) {
    UseKey(window);
  } else {
    UseControl(window);
  }
}

void Monkey::UseMenu(ToolWindow* window) {
  std::vector<QAction*> items;
  for (QAction* top : window->menuBar()->actions()) AddItem(top, items);
  if (items.empty()) return;
  PrepareAnswer();
  items[static_cast<std::size_t>(Pick(items.size()))]->trigger();
}

/// A key goes the way of the keyboard's, to whatever has the focus.
void Monkey::UseKey(ToolWindow* window) {
  static const std::vector<QKeyCombination> keys = {
      Qt::Key_Tab,  Qt::Key_Tab,   Qt::Key_Backtab,      Qt::Key_Return,       Qt::Key_Escape,
      Qt::Key_Down, Qt::Key_Up,    Qt::Key_Left,         Qt::Key_Right,        Qt::Key_Space,
      Qt::Key_F5,   Qt::Key_F5,    Qt::CTRL | Qt::Key_P, Qt::CTRL | Qt::Key_S, Qt::Key_1,
      Qt::Key_4,    Qt::Key_Minus, Qt::Key_Backspace,    Qt::CTRL | Qt::Key_A, Qt::Key_F1,
      Qt::Key_Home, Qt::Key_End,   Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_V, Qt::Key_Delete};
  PrepareAnswer();
  if (Pick(10) == 0) return UseMnemonic(window);
  const QKeyCombination key = keys[static_cast<std::size_t>(Pick(keys.size()))];
  QTest::keyClick(window->windowHandle(), key.key(), key.keyboardModifiers());
}

/// Presses a button by the letter that is underlined in its caption.
void Monkey::UseMnemonic(ToolWindow* window) {
  std::vector<QKeyCombination> keys;
  for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    const bool able = button->isVisible() && button->isEnabled() && button->window() == window;
    if (able && !button->shortcut().isEmpty()) keys.push_back(button->shortcut()[0]);
  }
  if (keys.empty()) return;
  const QKeyCombination key = keys[static_cast<std::size_t>(Pick(keys.size()))];
  QTest::keyClick(window->windowHandle(), key.key(), key.keyboardModifiers());
  QTest::qWait(kButtonDown);
}

void Monkey::UseControl(ToolWindow* window) {
  std::vector<QWidget*> controls;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    const bool used =
        widget->isVisible() && widget->isEnabled() && !widget->accessibleName().isEmpty();
    const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
    if ((used || (button && widget->isEnabled() && widget->isVisible())) &&
        widget->window() == window && !IsPartOfAMenuBar(widget)) {
      controls.push_back(widget);
    }
  }
  if (controls.empty()) return;
  PrepareAnswer();
  Use(controls[static_cast<std::size_t>(Pick(controls.size()))]);
}

void Monkey::Use(QWidget* widget) {
  const QWidget* window = widget->window();
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->setFocus();
    button->click();
  } else if (auto* field = qobject_cast<QLineEdit*>(widget); field && !field->isReadOnly()) {
    const QString text = kTexts[static_cast<std::size_t>(Pick(kTexts.size()))];
    field->setFocus();
    if (window->focusWidget() != field) return;  // it leads the user elsewhere
    field->setText(text);
    emit field->textEdited(text);
  } else if (auto* list = qobject_cast<QListWidget*>(widget); list && list->count() > 0) {
    list->setFocus();
    list->setCurrentRow(Pick(static_cast<std::size_t>(list->count())));
  } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
    bar->setValue(bar->minimum() +
                  Pick(static_cast<std::size_t>(bar->maximum() - bar->minimum() + 1)));
  } else if (auto* picture = dynamic_cast<Picture*>(widget)) {
    if ((picture->focusPolicy() & Qt::ClickFocus) != 0) picture->setFocus();
    picture->PressAt(Pick(5000), Pick(3200));
  }
}

void Monkey::Heard(const QString& line) {
  ++heard_;
  CheckText(line);
}

/// Nothing on the screen may show what is no number, or a name from inside the program.
void Monkey::LookAround() {
  for (const QString& name : platform_.OpenWindows()) {
    for (const QLineEdit* field : platform_.FindWindow(name)->findChildren<QLineEdit*>()) {
      if (field->isReadOnly()) CheckText(field->text());
    }
    for (const QListWidget* list : platform_.FindWindow(name)->findChildren<QListWidget*>()) {
      for (int row = 0; row < list->count(); ++row) CheckText(list->item(row)->text());
    }
  }
}

}  // namespace lignara
