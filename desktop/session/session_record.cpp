#include "desktop/session/session_record.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenuBar>
#include <utility>

#include "desktop/kit/binding.h"
#include "desktop/session/played_keys.h"
#include "desktop/session/script_line.h"

namespace lignara {
namespace {

using Kind = UserAction::Kind;

/// What playing a line takes besides its command, in microseconds.
constexpr int kPlayCost = 500;

/// How a script calls an action, and what it leaves behind.
struct Verb {
  Kind kind;
  const char* verb;
  bool takesFocus;  ///< playing its line brings the focus to the control
};
constexpr Verb kVerbs[] = {{Kind::Press, "press", true},   {Kind::Enter, "enter", true},
                           {Kind::ComeInto, "key", true},  {Kind::Key, "key", true},
                           {Kind::Select, "select", true}, {Kind::Click, "click", false},
                           {Kind::Scroll, "scroll", false}};

const Verb* VerbOf(Kind kind) {
  for (const Verb& verb : kVerbs) {
    if (verb.kind == kind) return &verb;
  }
  return nullptr;
}

QString MenuLine(ToolWindow* window, const QAction* item) {
  const QStringList path = MenuPath(window->menuBar()->actions(), item);
  return path.isEmpty() ? QString() : "menu" + PathWords(path);
}

QString TextOf(const UserAction& action) {
  switch (action.kind) {
    case Kind::Press:
      return QString();
    case Kind::ComeInto:
      return QString(" ") + kIdleKey;
    case Kind::Enter:
      return " " + Word(action.text);
    default:
      return " " + action.text;
  }
}

QString TextIn(const QWidget* control) {
  const auto* field = qobject_cast<const QLineEdit*>(control);
  return field == nullptr ? QString() : field->text();
}

bool TakesClicks(const RecordedAction& action) {
  return action.kind == Kind::Click && (action.control->focusPolicy() & Qt::ClickFocus) != 0;
}

/// True when only the later of two actions in a row matters. What the earlier one was told comes
/// again only if it is done again; where the later one was told something, such as a number that is
/// too large, what the earlier one left may have stayed.
bool TakesThePlaceOf(const RecordedAction& later, const RecordedAction& earlier) {
  const bool same = !later.control.isNull() && later.control == earlier.control;
  if (!same || !later.lead.isEmpty() || earlier.boxShown || later.boxShown) return false;
  const bool entered =
      later.kind == Kind::Enter && (earlier.kind == Kind::Enter || earlier.kind == Kind::ComeInto);
  return entered || (later.kind == earlier.kind && later.lastCounts);
}

}  // namespace

void SessionRecord::Begin(ToolWindow* window, const UserAction& action) {
  if (paused_ || window == nullptr) return;
  focusBefore_ = window->focusWidget();
  pendingWindow_ = window;
  textBefore_ = TextIn(action.control);
  pending_ = Describe(window, action);
  began_.start();
}

void SessionRecord::Answered(const QString& answer) {
  if (!pending_) return;
  pending_->lead << "answer " + answer;
  ++pending_->answers;
}

void SessionRecord::BoxShown() {
  if (pending_) pending_->boxShown = true;
}

void SessionRecord::End() {
  if (!pending_) return;
  FollowFocus();
  pending_->look = OnlyLooked();
  // A user who reads a box or answers a dialog takes time that a play does not.
  const bool asked = pending_->boxShown || !pending_->lead.isEmpty();
  pending_->cost = kPlayCost + (asked ? 0 : static_cast<int>(began_.nsecsElapsed() / 1000));
  Append(*std::exchange(pending_, std::nullopt));
}

bool SessionRecord::OnlyLooked() const {
  if (pending_->kind == Kind::Window) return true;
  return pending_->kind == Kind::ComeInto && !pending_->boxShown && pending_->answers == 0 &&
         TextIn(pending_->control) == textBefore_;
}

void SessionRecord::Clear() {
  actions_.clear();
  pending_.reset();
  replays_.clear();
  toldWindow_ = window_name::kLauncher;
}

std::optional<RecordedAction> SessionRecord::Describe(ToolWindow* window,
                                                      const UserAction& action) {
  RecordedAction recorded{window->name(), {}, {}, action.kind, action.control, action.lastCounts};
  Replay& replay = ReplayOf(window);
  QWidget* control = action.control;
  switch (action.kind) {
    case Kind::None:
      return std::nullopt;
    case Kind::Menu:
      recorded.line = MenuLine(window, action.item);
      break;
    case Kind::Close:
      recorded.line = "close";
      break;
    case Kind::Window:
      recorded.line = "window " + window->name();
      break;
    case Kind::Press:
      recorded.line = KeyLine(replay, window, action);
      recorded.keepsFocus = !recorded.line.isEmpty();
      if (recorded.keepsFocus) break;
      [[fallthrough]];
    default:
      recorded.line = ControlLine(replay, action, control);
  }
  if (recorded.line.isEmpty()) return std::nullopt;
  if (action.kind == Kind::ComeInto && replay.focus == control) {
    if (QWidget* other = replay.names->AnyButtonBut(control)) {
      recorded.lead << ControlLine(replay, {Kind::ComeInto}, other);
    }
  }
  return recorded;
}

/// A press by key, where the focus stays in a field that acts when the user comes into it: a press
/// by mouse in its place would let the user come back there, who never went away. Empty for any
/// other press.
QString SessionRecord::KeyLine(Replay& replay, ToolWindow* window, const UserAction& action) {
  QWidget* focus = window->focusWidget();
  if (focus == action.control || focus != replay.focus || !ActsOnEntry(focus)) return {};
  const auto* button = qobject_cast<QAbstractButton*>(action.control);
  const QKeySequence key = button == nullptr ? QKeySequence() : KeyThatPresses(button, window);
  if (key.isEmpty()) return {};
  return ControlLine(replay, {Kind::Key, focus, nullptr, KeyName(key)}, focus);
}

QString SessionRecord::ControlLine(Replay& replay, const UserAction& action, QWidget* control) {
  const Verb* verb = VerbOf(action.kind);
  QStringList path;
  if (control != nullptr) path = replay.names->ShortestName(control, KindsOf(action.kind));
  if (path.isEmpty() && action.kind == Kind::Key) {
    // Such as Escape, which goes through to the window from anywhere in it.
    QWidget* any = replay.names->AnyButtonBut(nullptr);
    if (any != nullptr) path = replay.names->ShortestName(any, KindsOf(action.kind));
  }
  if (path.isEmpty()) return {};
  return verb->verb + PathWords(path) + TextOf(action);
}

SessionRecord::Replay& SessionRecord::ReplayOf(ToolWindow* window) {
  Replay& replay = replays_[window];
  // Another window may stand where one was that is gone.
  if (replay.window != window) {
    replay = {window, std::make_unique<ControlNames>(window), nullptr};
  }
  return replay;
}

/// Where the program leads the focus it does so at playing, too; else the line of an action brings
/// it to the control, though the user may have pressed a key for it from elsewhere.
void SessionRecord::FollowFocus() {
  if (pendingWindow_.isNull()) return;
  Replay& replay = ReplayOf(pendingWindow_);
  QWidget* now = pendingWindow_->focusWidget();
  const Verb* verb = pending_->keepsFocus ? nullptr : VerbOf(pending_->kind);
  if (now != focusBefore_ && now != pending_->control) {
    replay.focus = now;
  } else if (verb != nullptr && (verb->takesFocus || TakesClicks(*pending_))) {
    replay.focus = pending_->control;
  }
}

void SessionRecord::Append(RecordedAction action) {
  if (!actions_.empty() && action.window == actions_.back().window &&
      TakesThePlaceOf(action, actions_.back())) {
    Tell(action);
    action.lead = actions_.back().lead;
    actions_.back() = std::move(action);
  } else {
    Tell(action);
    actions_.push_back(std::move(action));
  }
}

void SessionRecord::Tell(const RecordedAction& action) {
  QStringList lines;
  if (action.window != toldWindow_ && action.kind != Kind::Window) {
    lines << "window " + action.window;
  }
  toldWindow_ = action.window;
  if (told_) told_(lines + action.lead + QStringList(action.line));
}

std::size_t SessionRecord::LastDone() const {
  std::size_t count = actions_.size();
  while (count > 0 && actions_[count - 1].look) --count;
  return count;
}

int SessionRecord::CostOfFirst(std::size_t count) const {
  int cost = 0;
  for (std::size_t i = 0; i < count && i < actions_.size(); ++i) cost += actions_[i].cost;
  return cost;
}

QStringList SessionRecord::LinesOf(std::size_t index) const {
  const RecordedAction& action = actions_[index];
  return QStringList("window " + action.window) + action.lead + QStringList(action.line);
}

void SessionRecord::AddLine(const QString& window, const QString& line) {
  Append({window, {}, line});
}

QStringList SessionRecord::LinesOfFirst(std::size_t count) const {
  QStringList lines;
  QString window = window_name::kLauncher;
  for (std::size_t i = 0; i < count && i < actions_.size(); ++i) {
    const RecordedAction& action = actions_[i];
    if (action.window != window && action.kind != Kind::Window) lines << "window " + action.window;
    window = action.window;
    lines += action.lead;
    lines << action.line;
  }
  return lines;
}

std::vector<qsizetype> SessionRecord::LineCounts() const {
  std::vector<qsizetype> counts;
  qsizetype count = 0;
  QString window = window_name::kLauncher;
  for (const RecordedAction& action : actions_) {
    const bool named = action.window != window && action.kind != Kind::Window;
    count += action.lead.size() + (named ? 2 : 1);
    window = action.window;
    counts.push_back(count);
  }
  return counts;
}

}  // namespace lignara
