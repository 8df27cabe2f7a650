#pragma once

#include <QMainWindow>

#include "app/session_state.h"
#include "desktop/kit/binding.h"
#include "desktop/kit/return_and_escape.h"

class QLabel;
class QPushButton;

namespace lignara {

class DesktopPlatform;

/// What a window needs of the program around it.
struct WindowContext {
  SessionState& session;
  DesktopPlatform& platform;
};

/// A window of the program: its widgets are tied to its record by `binding()`.
class ToolWindow : public QMainWindow {
 public:
  ToolWindow(const char* name, WindowContext context);

  /// The name by which commands and scripts know the window.
  const QString& name() const { return name_; }

  /// Shows the record again.
  virtual void Refresh() { binding_.Refresh(); }
  /// Makes all controls of the window, also those of panels that have not been open yet.
  void MakeAllPanels() { binding_.MakeAllPanels(); }
  /// Grows whenever controls were made that were not there before.
  int panelsMade() const { return binding_.lateMade(); }
  /// Forgets what the user entered, where the window stays when a session begins anew.
  virtual void StartAgain() {}
  /// What the window's own close control does; plain closing unless a window says otherwise.
  virtual void CloseControl();
  /// Told after another window was closed.
  virtual void WindowClosed(const QString& /*name*/) {}

  /// Told when the user comes back to the window from another window of the program, not from a box
  /// or a dialog; opening the window is no coming back. A hidden one that is shown again is told.
  void CameBack() {
    binding_.Act({UserAction::Kind::Window}, [this] { Returned(); });
  }
  /// Shows a note in the status line, for a while.
  void ShowNote(const QString& note);

  /// The name that is proposed for a file of the window's report or picture, and the title of what
  /// it prints.
  virtual QString DocumentName() const { return windowTitle(); }

  /// The button that Return or Escape would press now; null where the key does something else.
  QPushButton* ButtonOfKey(Qt::Key key);

  /// Closes the window for good, without asking its close control.
  void CloseForGood();

  /// Gives the window what all windows have: scrolling where the screen is too small, the keys of
  /// common commands, the mark of the focus. Called once, when its widgets are there. `screen` is
  /// the room that a window may take.
  void Furnish(const QSize& screen);

 protected:
  SessionState& session() { return context_.session; }
  const SessionState& session() const { return context_.session; }
  DesktopPlatform& platform();
  Binding& binding() { return binding_; }

  /// The "&Help" menu with its item "Help", the same in all windows.
  QMenu* AddHelpMenu();

  /// What the window does when the user comes back to it.
  virtual void Returned() {}
  /// A text of the window's own in its status line, known by a name and tied to the record like any
  /// label. A window that saves or prints asks for one, or for `AddStatusLine`, so that a note
  /// finds room without moving anything.
  QLabel* AddStatusText(const char* name);
  void AddStatusLine();

  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// What Return does where the focus is.
  static bool Enter(QWidget* focus);

  QString name_;
  WindowContext context_;
  Binding binding_;
  bool closingForGood_ = false;
};

}  // namespace lignara
