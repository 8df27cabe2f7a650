#pragma once

#include <QSize>
#include <QString>
#include <deque>
#include <optional>

#include "desktop/kit/desktop_platform.h"
#include "script/script_output.h"

namespace lignara {

/// An answer that a script keeps for a dialog.
struct ScriptAnswer {
  enum class Kind { Ok, Yes, No, Cancel, Text, File };
  Kind kind = Kind::Ok;
  QString text;  ///< of Text and File
};

/// The desktop with a script in the user's place: windows are real, dialogs are printed and take
/// the kept answers, and a print job is printed as text.
class ScriptPlatform : public DesktopPlatform {
 public:
  ScriptPlatform(SessionState& session, ScriptOutput output)
      : DesktopPlatform(session), output_(std::move(output)) {}

  /// Windows that nobody looks at are neither laid out nor painted until `LetBeSeen`. Holds for
  /// windows opened from now on.
  void PaintNothing() { paints_ = false; }
  /// From now on a window stands as on a screen.
  void LetBeSeen(ToolWindow* window);

  void ShowMessage(const Message& message) override;
  bool AskYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> PromptText(const std::string& title, const std::string& text,
                                        const std::string& initial) override;
  std::optional<std::string> ChooseSaveFile(const std::string& filter) override;
  void PrintReport(const Report& report) override;

  /// Without a display a script's windows stand on a screen of this size.
  QRect Screen(const ToolWindow& window) const override;
  void SetScreen(const QSize& size) { screen_ = size; }

  void KeepAnswer(ScriptAnswer answer) { answers_.push_back(std::move(answer)); }

  /// Why a dialog could not be answered since the last call; empty when all could.
  QString TakeFailure();

 protected:
  void Place(ToolWindow* window) override;

 private:
  /// The next kept answer, if it is one that the dialog can take; notes a failure otherwise.
  std::optional<ScriptAnswer> TakeAnswer(const QString& dialog,
                                         std::initializer_list<ScriptAnswer::Kind> fitting);

  ScriptOutput output_;
  QSize screen_{1366, 900};
  std::deque<ScriptAnswer> answers_;
  QString failure_;
  bool paints_ = true;
};

}  // namespace lignara
