#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

#include "app/session_state.h"
#include "desktop/kit/session_commands.h"
#include "desktop/session/play_progress.h"
#include "desktop/session/session_player.h"
#include "desktop/session/session_record.h"
#include "desktop/session/undo_redo.h"

namespace lignara {

class DesktopPlatform;

/// The session of a running program: what was done in it is recorded, saved, opened, taken back.
class Sessions : public QObject, public SessionCommands {
 public:
  Sessions(SessionState& session, DesktopPlatform& platform);
  ~Sessions() override;

  void Save() override { Later(&Sessions::SaveNow); }
  void Open() override { Later(&Sessions::OpenNow); }
  void Undo() override { Later(&Sessions::UndoNow); }
  void Redo() override { Later(&Sessions::RedoNow); }
  void Repeat() override;
  bool CanUndo() const override { return undo_.CanTakeBack(); }
  bool CanRedo() const override { return undo_.CanDoAgain(); }
  /// Leaves the keys of undo and redo to the session where a field has nothing to take back.
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// Plays lines in the program as it stands after its start, and tells of what is to be told under
  /// a title. `name` is the file of the lines. False where they were not played whole.
  bool PlayAndTell(const QStringList& lines, const QString& name, const QString& title);

  SessionRecord& record() { return record_; }
  const SessionState& state() const { return session_; }
  /// Is told when the record is another one: lines were taken back, or a session was opened.
  void OnReplaced(std::function<void()> told) { replaced_ = std::move(told); }
  /// The milliseconds from which on a play shows a bar with "Cancel".
  void ShowProgressAfter(int milliseconds) { progressAfter_ = milliseconds; }
  /// Is handed the lines of each action that ends.
  void OnAppend(std::function<void(const QStringList&)> told) { appended_ = std::move(told); }

 private:
  void Later(void (Sessions::*command)());
  void SaveNow() { SaveToFile(); }
  /// False where it is not saved: the user cancels, or the file cannot be written.
  bool SaveToFile();
  void OpenNow();
  void UndoNow();
  void RedoNow();
  /// Asks whether the work on the screen may go; the user may save it first.
  bool MayCloseWork();
  bool UserLetsWorkGo();
  void Tell(const SessionPlay& play, const QString& name, const QString& title);
  /// The program as it stands after its start.
  void StartAgain();
  SessionPlay Replay(const QStringList& lines, const QString& name, PlayProgress* bar);
  SessionPlay PlayOn(const QStringList& lines, const QString& name);
  void Appended(const QStringList& lines);

  SessionState& session_;
  DesktopPlatform& platform_;
  SessionRecord record_;
  UndoRedo undo_;
  QStringList saved_;  ///< the lines that a file holds
  int progressAfter_ = kProgressAfter;
  bool playing_ = false;
  bool replaying_ = false;  ///< from the start of the program on
  std::function<void()> replaced_ = [] {};
  std::function<void(const QStringList&)> appended_ = [](const QStringList&) {};
};

}  // namespace lignara
