#pragma once

#include <QTemporaryDir>
#include <random>
#include <string>

#include "app/fault.h"
#include "app/session_state.h"
#include "desktop/kit/tool_window.h"
#include "script/script_platform.h"

namespace lignara {

/// Presses and types at random in the windows of the program, which runs in a copy of its data
/// folder. The same seed does the same.
class Monkey {
 public:
  explicit Monkey(unsigned seed);

  /// From here on the window is the newest, which the monkey likes best.
  void Open(const char* window);
  void Play(int actions);

  ScriptPlatform& platform() { return platform_; }
  QString folder() const { return directory_.path(); }
  SessionState& session() { return session_; }
  int heard() const { return heard_; }

 private:
  int Pick(std::size_t count);
  void RunABeam();
  void PrepareAnswer();
  ToolWindow* AnyWindow();
  void Act();
  void UseMenu(ToolWindow* window);
  void UseKey(ToolWindow* window);
  void UseMnemonic(ToolWindow* window);
  void UseControl(ToolWindow* window);
  void Use(QWidget* widget);
  void Heard(const QString& line);
  void LookAround();

  std::mt19937 random_;
  QTemporaryDir directory_;
  SessionState session_;
  int heard_ = 0;
  ScriptPlatform platform_;
  FaultScope faults_;
};

}  // namespace lignara
