#pragma once

namespace lignara {

/// What a user can do with the session as a whole. A command is carried out when the one that calls
/// it has ended, since it closes windows.
class SessionCommands {
 public:
  virtual ~SessionCommands() = default;
  virtual void Save() = 0;
  virtual void Open() = 0;
  virtual void Undo() = 0;
  virtual void Redo() = 0;
  /// Opens the window in which the session is played with other values. Closes none.
  virtual void Repeat() = 0;
  virtual bool CanUndo() const = 0;
  virtual bool CanRedo() const = 0;
};

}  // namespace lignara
