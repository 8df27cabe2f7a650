#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "app/window_names.h"
#include "desktop/session/control_finder.h"
#include "desktop/session/printed_shapes.h"
#include "desktop/session/script_line.h"

namespace lignara {

class DesktopPlatform;
class KeptAnswers;
class ToolWindow;

/// Carries out script lines on the windows of the program, as a user's hand would.
class ScriptPlayer {
 public:
  /// `answers` takes what the lines keep for the platform's dialogs.
  ScriptPlayer(DesktopPlatform& platform, KeptAnswers& answers, ScriptOutput output)
      : platform_(platform), answers_(answers), output_(std::move(output)) {}

  /// Carries out one line. Throws ScriptError when that cannot be done.
  void Play(const QString& line);
  /// The window that the lines act in.
  const QString& window() const { return window_; }

 private:
  using Words = std::vector<ScriptWord>;
  struct Action {
    const char* verb;
    std::size_t leastWords;  ///< behind the verb
    std::size_t mostWords;
    void (ScriptPlayer::*carryOut)(const Words& words);
  };
  static const std::vector<Action>& Actions();

  void Window(const Words& words);
  void Press(const Words& words);
  void Menu(const Words& words);
  void Enter(const Words& words);
  void Key(const Words& words);
  void Select(const Words& words);
  void Click(const Words& words);
  void Scroll(const Words& words);
  void Close(const Words& words);
  void Answer(const Words& words);
  void Read(const Words& words);
  void Rows(const Words& words);
  void State(const Words& words);
  void Shapes(const Words& words);
  void Windows(const Words& words);
  void SavePicture(const Words& words);
  void Screenshot(const Words& words);

  /// The window that the lines act in. Throws when it is closed, or kept by a modal one.
  ToolWindow* Current() const;
  /// The control of the first `count` words: visible, and of the first of the kinds of which there
  /// is one.
  QWidget* Control(const Words& words, std::size_t count, const Kinds& kinds) const;
  /// The same, and enabled.
  QWidget* ActiveControl(const Words& words, std::size_t count, const Kinds& kinds) const;

  DesktopPlatform& platform_;
  KeptAnswers& answers_;
  ScriptOutput output_;
  QString window_ = window_name::kLauncher;
};

}  // namespace lignara
