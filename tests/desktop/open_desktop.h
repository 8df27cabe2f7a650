#pragma once

#include <QStringList>
#include <QWindow>
#include <initializer_list>
#include <string>

#include "app/fault.h"
#include "app/launcher.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/control_captions.h"
#include "desktop/session/control_finder.h"
#include "desktop/session/script_player.h"
#include "script/script_platform.h"

namespace lignara {

/// The program with its launcher open, driven by script lines; what it prints is kept.
class OpenDesktop {
 public:
  OpenDesktop();
  /// The same on a screen of this size.
  explicit OpenDesktop(const QSize& screen);

  /// Plays lines of a script. Throws ScriptError as the script tool does.
  void Play(std::initializer_list<const char*> lines);

  /// Opens the truss window of a king post truss of 24 ft by 5 ft.
  void OpenKingPost();

  /// The open window of a name; fails the test and throws where there is none.
  ToolWindow* Window(const char* name);

  /// The control of a window that has the focus, by its caption.
  QString FocusIn(const char* window);

  /// Presses a key in a window as the keyboard does: the event goes the way of the display's, past
  /// shortcuts and mnemonics to the widget that has the focus.
  void PressKey(const char* window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  /// The captions at which `stops` presses of Tab in a window stop.
  QStringList Walk(const char* window, int stops);

  /// Types a text where the focus of a window is.
  void Type(const char* window, const QString& text);

  SessionState session;
  QStringList printed;
  ScriptPlatform platform;

 private:
  QWindow* ActiveHandle(const char* window);

  FaultScope faults_;
  ScriptPlayer player_;
};

/// The controls of a window that a user can see and use: buttons, fields, lists, pictures, bars.
std::vector<QWidget*> VisibleControls(ToolWindow* window);

/// Fails the test for each label and button of a window that has less room than its caption needs.
void ExpectNoCaptionCutOff(const ToolWindow* window);

/// Lines that open a truss window with all its panels.
extern const std::initializer_list<const char*> kOpenAllTrussPanels;
/// Lines that open all panels of a single-span beam that was run.
extern const std::initializer_list<const char*> kOpenAllSingleSpanPanels;

/// Lines that enter a beam of two spans of 10 ft under 120 lbs/ft in the launcher and run it.
extern const std::initializer_list<const char*> kRunTwoSpans;
/// Lines that then open all panels of its results.
extern const std::initializer_list<const char*> kOpenAllBeamResults;

}  // namespace lignara
