#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "app/window_names.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/control_names.h"

namespace lignara {

/// A key that does nothing but bring the focus along.
inline constexpr const char* kIdleKey = "F24";

/// One action of the user as script lines.
struct RecordedAction {
  QString window;
  QStringList lead;  ///< lines ahead of it: answers that it asks for
  QString line;
  UserAction::Kind kind = UserAction::Kind::None;
  QPointer<QWidget> control;
  bool lastCounts = false;
  bool boxShown = false;
  bool keepsFocus = false;  ///< a press by a key that does not lead the focus to the button
  int answers = 0;          ///< that its dialogs got
  bool look = false;        ///< the user came to a window, or into a field that stays as it is
  int cost = 0;             ///< microseconds that it takes to play
};

/// Writes down what the user does, as the script lines that would do it again.
///
/// What a program does of itself is not written: only the outermost command counts, and only one
/// that a user's action calls. An action is written when it has ended.
class SessionRecord : public ActionListener {
 public:
  void Begin(ToolWindow* window, const UserAction& action) override;
  void Answered(const QString& answer) override;
  void BoxShown() override;
  void End() override;

  /// Stops or goes on recording.
  void Pause(bool paused) { paused_ = paused; }
  /// Forgets all; the next lines are those of a program that has just started.
  void Clear();

  const std::vector<RecordedAction>& actions() const { return actions_; }
  /// The script.
  QStringList Lines() const { return LinesOfFirst(actions_.size()); }
  /// The script of the first actions.
  QStringList LinesOfFirst(std::size_t count) const;
  /// How many lines the script of the first 1, 2, ... actions has.
  std::vector<qsizetype> LineCounts() const;
  /// The number of actions up to the last that is more than a look; 0 where none is.
  std::size_t LastDone() const;
  /// What it takes to play the first actions, in microseconds.
  int CostOfFirst(std::size_t count) const;
  /// One action by itself, with the window that it acts in.
  QStringList LinesOf(std::size_t index) const;
  /// Is handed the lines of each action as it ends; also of one that takes the place of the last.
  void OnAppend(std::function<void(const QStringList& lines)> told) { told_ = std::move(told); }

  /// Puts a line that is no action of the user, such as `read`, into the record.
  void AddLine(const QString& window, const QString& line);

 private:
  /// What the next player will find in a window.
  struct Replay {
    QPointer<ToolWindow> window;
    std::unique_ptr<ControlNames> names;
    QPointer<QWidget> focus;  ///< where playing the lines so far leaves the focus
  };

  std::optional<RecordedAction> Describe(ToolWindow* window, const UserAction& action);
  QString KeyLine(Replay& replay, ToolWindow* window, const UserAction& action);
  QString ControlLine(Replay& replay, const UserAction& action, QWidget* control);
  Replay& ReplayOf(ToolWindow* window);
  void Append(RecordedAction action);
  void Tell(const RecordedAction& action);
  void FollowFocus();
  bool OnlyLooked() const;

  bool paused_ = false;
  std::vector<RecordedAction> actions_;
  std::optional<RecordedAction> pending_;
  QPointer<ToolWindow> pendingWindow_;
  QPointer<QWidget> focusBefore_;
  QString textBefore_;  ///< of the field that the user comes into
  QElapsedTimer began_;
  QString toldWindow_ = window_name::kLauncher;
  std::function<void(const QStringList&)> told_;
  std::unordered_map<const ToolWindow*, Replay> replays_;
};

}  // namespace lignara
