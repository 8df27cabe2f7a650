#pragma once

#include <optional>
#include <string>

#include "app/program.h"

namespace lignara {

class Report;

enum class MessageIcon { None, Stop };

/// A box with one "OK". A box that has no title of its own bears the program's name.
struct Message {
  std::string text;
  std::string title = kProgramName;
  MessageIcon icon = MessageIcon::None;
};

/// All that the calculation code asks of its surroundings. The desktop gives the real one, tests a
/// recording one.
class Platform {
 public:
  virtual ~Platform() = default;

  /// Returns when the user has closed the box.
  virtual void ShowMessage(const Message& message) = 0;
  /// True for "Yes".
  virtual bool AskYesNo(const std::string& title, const std::string& text) = 0;
  /// Nothing when the user cancels.
  virtual std::optional<std::string> PromptText(const std::string& title, const std::string& text,
                                                const std::string& initial) = 0;
  /// The path of the file to write; nothing when the user cancels. `filter` is a list such as
  /// "Text(*.txt)|*.txt|All(*.*)|*.*|".
  virtual std::optional<std::string> ChooseSaveFile(const std::string& filter) = 0;

  /// Opens the window of this name, or brings it to the front where it is open already. Returns at
  /// once, also for a modal window.
  virtual void OpenWindow(const std::string& name) = 0;
  /// Closes the window of this name; nothing where it is not open.
  virtual void CloseWindow(const std::string& name) = 0;
  /// Takes the window of this name off the screen as it stands; OpenWindow shows it again. Nothing
  /// where it is not open.
  virtual void HideWindow(const std::string& name) = 0;
  /// False for a window that this version of the program does not have yet.
  virtual bool HasWindow(const std::string& name) const = 0;

  virtual void PrintReport(const Report& report) = 0;
  /// Shows the help document at the section of a window. A failure is not reported.
  virtual void ShowHelp(const std::string& path, const std::string& section) = 0;
  virtual void SetBusyPointer(bool busy) = 0;
  /// A short word in the window at work of what was done, such as where a file went. It asks for
  /// nothing, and goes by itself.
  virtual void ShowNote(const std::string& /*text*/) {}
};

/// The hourglass for the length of one command.
class BusyPointer {
 public:
  explicit BusyPointer(Platform& platform) : platform_(platform) { platform_.SetBusyPointer(true); }
  ~BusyPointer() { platform_.SetBusyPointer(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  Platform& platform_;
};

}  // namespace lignara
