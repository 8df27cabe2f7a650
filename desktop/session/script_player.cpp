#include "desktop/session/script_player.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>

#include "desktop/kit/binding.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/lead_focus.h"
#include "desktop/kit/picture_button.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/control_reading.h"
#include "desktop/session/kept_answers.h"
#include "desktop/session/played_keys.h"
#include "desktop/session/row_finder.h"
#include "desktop/session/script_error.h"

namespace lignara {
namespace {

using Verb = UserAction::Kind;

bool IsPicture(const QWidget* widget) { return IsAny<Picture, PictureButton>(widget); }
bool IsPanel(const QWidget* widget) { return IsAny<QGroupBox>(widget); }
bool IsLabel(const QWidget* widget) { return IsAny<QLabel>(widget); }

QStringList PathOf(const std::vector<ScriptWord>& words, std::size_t count) {
  QStringList path;
  for (std::size_t i = 0; i < count; ++i) path << words[i].text;
  return path;
}

/// Sends what a keyboard says to a control; true where it is taken.
bool Send(QEvent::Type type, QKeyCombination key, const QString& text,
          const QPointer<QWidget>& to) {
  if (to.isNull()) return false;  // the key going down closed it
  QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
  event.ignore();
  QApplication::sendEvent(to, &event);
  return event.isAccepted();
}

QString StateOf(const QWidget* widget) {
  QString state = widget->isVisible() ? "state visible" : "state hidden";
  state += widget->isEnabled() ? " enabled" : " disabled";
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget);
      button != nullptr && button->isCheckable()) {
    state += button->isChecked() ? " checked" : " unchecked";
  }
  if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
    state += QString(" selected %1").arg(ChosenRow(list));
  }
  return state;
}

}  // namespace

const std::vector<ScriptPlayer::Action>& ScriptPlayer::Actions() {
  constexpr std::size_t kMany = 16;
  static const std::vector<Action> actions = {
      {"window", 1, 1, &ScriptPlayer::Window},
      {"press", 1, kMany, &ScriptPlayer::Press},
      {"menu", 1, kMany, &ScriptPlayer::Menu},
      {"enter", 2, kMany, &ScriptPlayer::Enter},
      {"key", 2, kMany, &ScriptPlayer::Key},
      {"select", 2, kMany, &ScriptPlayer::Select},
      {"click", 3, kMany, &ScriptPlayer::Click},
      {"scroll", 2, kMany, &ScriptPlayer::Scroll},
      {"close", 0, 0, &ScriptPlayer::Close},
      {"answer", 1, 2, &ScriptPlayer::Answer},
      {"read", 1, kMany, &ScriptPlayer::Read},
      {"rows", 1, kMany, &ScriptPlayer::Rows},
      {"state", 1, kMany, &ScriptPlayer::State},
      {"shapes", 1, kMany, &ScriptPlayer::Shapes},
      {"windows", 0, 0, &ScriptPlayer::Windows},
      {"picture", 2, kMany, &ScriptPlayer::SavePicture},
      {"screenshot", 1, 1, &ScriptPlayer::Screenshot},
  };
  return actions;
}

void ScriptPlayer::Play(const QString& line) {
  Words words = SplitScriptLine(line);
  if (words.empty()) return;
  const QString verb = words.front().text;
  words.erase(words.begin());
  const auto action = std::find_if(Actions().begin(), Actions().end(),
                                   [&](const Action& a) { return verb == a.verb; });
  if (action == Actions().end()) throw ScriptError{"there is no action " + Quoted(verb)};
  if (words.size() < action->leastWords || words.size() > action->mostWords) {
    throw ScriptError{"wrong number of words for " + Quoted(verb)};
  }
  (this->*action->carryOut)(words);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  // A hand on the mouse would not do what the lines of a session mean.
  QApplication::processEvents(platform_.IsPlayed() ? QEventLoop::ExcludeUserInputEvents
                                                   : QEventLoop::AllEvents);
  if (const QString failure = answers_.TakeFailure(); !failure.isEmpty()) {
    throw ScriptError{failure};
  }
}

ToolWindow* ScriptPlayer::Current() const {
  ToolWindow* window = platform_.FindWindow(window_);
  if (window == nullptr) throw ScriptError{"the window " + window_ + " is not open"};
  if (platform_.IsBlocked(window)) {
    throw ScriptError{"the window " + window_ + " waits for a modal one"};
  }
  return window;
}

QWidget* ScriptPlayer::Control(const Words& words, std::size_t count, const Kinds& kinds) const {
  return FindControl(Current(), PathOf(words, count), {AllVisible(kinds)});
}

QWidget* ScriptPlayer::ActiveControl(const Words& words, std::size_t count,
                                     const Kinds& kinds) const {
  QWidget* control = Control(words, count, kinds);
  if (!control->isEnabled()) {
    throw ScriptError{"the control " + Quoted(words[count - 1].text) + " is disabled"};
  }
  return control;
}

void ScriptPlayer::Window(const Words& words) {
  const QString before = window_;
  window_ = words[0].text;
  try {
    platform_.Activate(Current());
  } catch (const ScriptError&) {
    window_ = before;
    throw;
  }
}

void ScriptPlayer::Press(const Words& words) {
  auto* button =
      static_cast<QAbstractButton*>(ActiveControl(words, words.size(), KindsOf(Verb::Press)));
  LeadFocus(button);
  button->click();
}

void ScriptPlayer::Menu(const Words& words) {
  QAction* item = FindMenuItem(Current(), PathOf(words, words.size()));
  if (item == nullptr || item->menu() != nullptr) throw ScriptError{"there is no such menu item"};
  if (!item->isEnabled()) throw ScriptError{"the menu item is disabled"};
  item->trigger();
}

void ScriptPlayer::Enter(const Words& words) {
  const std::size_t count = words.size() - 1;
  auto* field = static_cast<QLineEdit*>(ActiveControl(words, count, KindsOf(Verb::Enter)));
  LeadFocus(field);
  if (field->window()->focusWidget() != field) return;  // the window leads the user elsewhere
  field->setText(words.back().text);
  emit field->textEdited(words.back().text);
}

void ScriptPlayer::Key(const Words& words) {
  const QPointer<QWidget> control = ActiveControl(words, words.size() - 1, KindsOf(Verb::Key));
  const QKeySequence sequence = QKeySequence::fromString(words.back().text);
  if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown) {
    throw ScriptError{"there is no key " + Quoted(words.back().text)};
  }
  platform_.LetBeLaidOut(Current());  // where a key leads depends on what stands where
  LeadFocus(control);
  const QString text = words.back().text.size() == 1 ? words.back().text : QString();
  // As at a keyboard: a control that has a use for the key goes ahead of the window's own keys.
  if (!Send(QEvent::ShortcutOverride, sequence[0], text, control) &&
      PressWindowKey(Current(), sequence)) {
    return;
  }
  Send(QEvent::KeyPress, sequence[0], text, control);
  Send(QEvent::KeyRelease, sequence[0], text, control);
}

void ScriptPlayer::Select(const Words& words) {
  auto* list =
      static_cast<QListWidget*>(ActiveControl(words, words.size() - 1, KindsOf(Verb::Select)));
  const int row = RowOf(list, words.back());
  LeadFocus(list);
  // A row is chosen by each click, also where it was chosen before.
  list->setCurrentRow(-1);
  list->setCurrentRow(row);
}

void ScriptPlayer::Click(const Words& words) {
  const std::size_t count = words.size() - 2;
  auto* picture = static_cast<Picture*>(ActiveControl(words, count, KindsOf(Verb::Click)));
  if ((picture->focusPolicy() & Qt::ClickFocus) != 0) LeadFocus(picture);
  picture->PressAt(ToFigure(words[count]), ToFigure(words[count + 1]));
}

void ScriptPlayer::Scroll(const Words& words) {
  auto* bar =
      static_cast<QScrollBar*>(ActiveControl(words, words.size() - 1, KindsOf(Verb::Scroll)));
  const int value = ToWhole(words.back());
  if (value < bar->minimum() || value > bar->maximum()) {
    throw ScriptError{"the scroll bar has no value " + words.back().text};
  }
  if (value != bar->value()) {
    bar->setValue(value);
  } else {
    emit bar->valueChanged(value);
  }
}

void ScriptPlayer::Close(const Words&) { Current()->close(); }

void ScriptPlayer::Answer(const Words& words) {
  using Kind = ScriptAnswer::Kind;
  static const std::vector<std::pair<QString, Kind>> kinds = {
      {"ok", Kind::Ok},         {"yes", Kind::Yes},   {"no", Kind::No},
      {"cancel", Kind::Cancel}, {"text", Kind::Text}, {"file", Kind::File}};
  const auto found = std::find_if(kinds.begin(), kinds.end(),
                                  [&](const auto& kind) { return kind.first == words[0].text; });
  if (found == kinds.end()) throw ScriptError{"there is no answer " + Quoted(words[0].text)};
  const bool needsText = found->second == Kind::Text || found->second == Kind::File;
  if (needsText != (words.size() == 2)) throw ScriptError{"wrong number of words for \"answer\""};
  answers_.Keep({found->second, needsText ? words[1].text : QString()});
}

void ScriptPlayer::Read(const Words& words) {
  output_("value " + Quoted(ReadText(Current(), PathOf(words, words.size()))));
}

void ScriptPlayer::Rows(const Words& words) {
  int row = 0;
  for (const QStringList& texts : ReadRows(Current(), PathOf(words, words.size()))) {
    QString line = QString("row %1").arg(row++);
    for (const QString& text : texts) line += " " + Quoted(text);
    output_(line);
  }
}

void ScriptPlayer::State(const Words& words) {
  const QStringList path = PathOf(words, words.size());
  if (const QAction* item = FindMenuItem(Current(), path)) {
    output_(QString("state visible %1").arg(item->isEnabled() ? "enabled" : "disabled"));
    return;
  }
  Current()->MakeAllPanels();
  // Where a list and a field bear the same name, the chosen row is what one asks for.
  const Kinds controls = {IsList, IsControl};
  output_(StateOf(FindControl(Current(), path,
                              {AllVisible(controls),
                               {Visible(IsPanel)},
                               {Visible(IsLabel)},
                               controls,
                               {IsPanel},
                               {IsLabel}})));
}

void ScriptPlayer::Shapes(const Words& words) {
  const QWidget* control = Control(words, words.size(), {IsPicture});
  const auto* button = dynamic_cast<const PictureButton*>(control);
  PrintShapes(
      button != nullptr ? button->drawing() : static_cast<const Picture*>(control)->drawing(),
      output_);
}

void ScriptPlayer::Windows(const Words&) {
  for (const QString& name : platform_.OpenWindows()) output_("window " + name);
}

void ScriptPlayer::SavePicture(const Words& words) {
  QWidget* control = Control(words, words.size() - 1, {IsPicture});
  auto* picture = dynamic_cast<Picture*>(control);
  platform_.LetBeSeen(Current());
  const QString path = words.back().text;
  const bool saved =
      picture != nullptr ? SavePng(*picture, path) : control->grab().save(path, "PNG");
  if (!saved) throw ScriptError{"cannot write " + path};
}

void ScriptPlayer::Screenshot(const Words& words) {
  platform_.LetBeSeen(Current());
  if (!Current()->grab().save(words[0].text, "PNG")) {
    throw ScriptError{"cannot write " + words[0].text};
  }
}

}  // namespace lignara
