#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/session/session_player.h"
#include "desktop/session/session_record.h"

namespace lignara {

class DesktopPlatform;

/// Takes the last actions of a session back and does them again. Back goes by doing all before them
/// anew from the start of the program.
class UndoRedo {
 public:
  /// Plays lines under a name.
  using Play = std::function<SessionPlay(const QStringList& lines, const QString& name)>;

  /// `anew` plays in the program as it stands after its start, `on` as it stands now.
  UndoRedo(const SessionRecord& record, DesktopPlatform& platform, Play anew, Play on)
      : record_(record), platform_(platform), anew_(std::move(anew)), on_(std::move(on)) {}

  bool CanTakeBack() const { return record_.LastDone() > 0; }
  bool CanDoAgain() const { return !undone_.empty(); }

  /// Takes the last action back, and says in a note what it was, or why not: there is none, or it
  /// would take more than a second. Returns the play where it stopped at a line; what it did not
  /// reach waits for being done again.
  std::optional<SessionPlay> TakeBack();
  /// Does again what was taken back last. Returns the play where it stopped at a line.
  std::optional<SessionPlay> DoAgain();
  /// What was taken back is not to be done again.
  void Forget() { undone_.clear(); }

 private:
  const SessionRecord& record_;
  DesktopPlatform& platform_;
  Play anew_;
  Play on_;
  std::vector<QStringList> undone_;
};

}  // namespace lignara
