#pragma once

#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>
#include <vector>

#include "app/platform.h"
#include "app/session_state.h"
#include "desktop/kit/file_dialogs.h"
#include "desktop/kit/repeated_messages.h"
#include "desktop/kit/user_action.h"
#include "desktop/kit/window_places.h"

namespace lignara {

class Respondent;
class SessionCommands;
class ToolWindow;

/// The program's surroundings on a desktop: real windows, dialogs, printer and help.
class DesktopPlatform : public Platform {
 public:
  explicit DesktopPlatform(SessionState& session);
  ~DesktopPlatform() override;

  void ShowMessage(const Message& message) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> PromptText(const std::string& title, const std::string& text,
                                        const std::string& initial) override;
  std::optional<std::string> ChooseSaveFile(const std::string& filter) override;
  void OpenWindow(const std::string& name) override;
  void CloseWindow(const std::string& name) override;
  void HideWindow(const std::string& name) override;
  bool HasWindow(const std::string& name) const override;
  void PrintReport(const Report& report) override;
  void ShowHelp(const std::string& path, const std::string& section) override;
  void SetBusyPointer(bool busy) override;
  void ShowNote(const std::string& text) override;

  /// A command of the user begins in a window, or ends. Commands nest.
  void BeginCommand(ToolWindow* window, const UserAction& action);
  void EndCommand();
  /// Is told of each action of the user from now on; null for none.
  void SetListener(ActionListener* listener) { listener_ = listener; }
  /// Stands in the user's place for boxes, dialogs and prints from now on; null for the user.
  void SetRespondent(Respondent* respondent) { respondent_ = respondent; }
  Respondent* respondent() const { return respondent_; }
  /// The path of the file to open; nothing when the user cancels.
  std::optional<std::string> ChooseOpenFile(const std::string& filter);
  /// Asked ahead of a file that is written without a dialog.
  bool MayWriteFiles();
  /// What the user can do with the session; null where this program keeps none.
  void SetSessions(SessionCommands* sessions) { sessions_ = sessions; }
  SessionCommands* sessions() const { return sessions_; }
  /// While a session is played the desktop's own choice of the active window counts for nothing,
  /// and the program does not end.
  void SetPlayed(bool played) { played_ = played; }
  bool IsPlayed() const { return played_; }
  /// The name of what the command at hand writes or prints.
  QString DocumentName() const;

  /// The open window of a name, not hidden; null where there is none.
  ToolWindow* FindWindow(const QString& name) const;
  /// The open window that is in front: the one that the user came to last, the help not counted;
  /// null where none is open.
  ToolWindow* Front() const;
  /// Brings an open window to the front, as a click on it does.
  void Activate(ToolWindow* window);
  /// A window has become the active one. It is told when the user comes back to it from another
  /// window of the program; boxes and dialogs are none.
  void NoteActive(ToolWindow* window);
  /// The names of the open windows, the newest last; a hidden one is not open.
  QStringList OpenWindows() const;
  /// True while a modal window that was opened later keeps the user out of this one.
  bool IsBlocked(const ToolWindow* window) const;
  /// The room that a window may take on its screen, in the middle of it.
  virtual QRect Screen(const ToolWindow& window) const;
  /// A window that is not laid out, since nobody looks, is laid out from now on.
  virtual void LetBeLaidOut(ToolWindow* /*window*/) {}
  /// A window that is not painted is laid out and painted from now on.
  virtual void LetBeSeen(ToolWindow* /*window*/) {}
  /// All open windows show their records again.
  void RefreshWindows();

 protected:
  /// Lays a new window out and puts it where it shall stand.
  virtual void Place(ToolWindow* window);

 private:
  bool UserSaysYes(const std::string& title, const std::string& text);
  std::optional<std::string> UsersText(const std::string& title, const std::string& text,
                                       const std::string& initial);
  std::optional<std::string> UsersFile(const std::string& filter);
  void Answered(const QString& answer);
  /// The modal window that was opened last; null where there is none.
  ToolWindow* NewestModal() const;
  /// Windows that belong to one that closes live on with its own parent.
  void AdoptChildren(ToolWindow* closing);

  ToolWindow* MakeWindow(const std::string& name);

  SessionState& session_;
  ActionListener* listener_ = nullptr;
  Respondent* respondent_ = nullptr;
  SessionCommands* sessions_ = nullptr;
  bool played_ = false;
  FileDialogs fileDialogs_;
  RepeatedMessages repeated_;
  QPointer<ToolWindow> commandWindow_;
  WindowPlaces places_;
  std::vector<ToolWindow*> windows_;  // in the order of opening
  std::vector<ToolWindow*> hidden_;
  const ToolWindow* lastActive_ = nullptr;
};

}  // namespace lignara
