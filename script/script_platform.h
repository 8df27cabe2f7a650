#pragma once

#include <QSize>
#include <QString>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/respondent.h"
#include "desktop/session/kept_answers.h"
#include "desktop/session/printed_shapes.h"

namespace lignara {

/// The desktop with a script in the user's place: windows are real, dialogs are printed and take
/// the kept answers, and a print job is printed as text.
class ScriptPlatform : public DesktopPlatform {
 public:
  ScriptPlatform(SessionState& session, ScriptOutput output);

  /// Windows that nobody looks at are not laid out until `LetBeLaidOut`, nor painted until
  /// `LetBeSeen`. Holds for windows opened from now on.
  void PaintNothing() { paints_ = false; }
  /// From now on all in a window stands where it would on a screen.
  void LetBeLaidOut(ToolWindow* window) override;
  /// And is painted.
  void LetBeSeen(ToolWindow* window) override;

  /// Without a display a script's windows stand on a screen of this size.
  QRect Screen(const ToolWindow& window) const override;
  void SetScreen(const QSize& size) { screen_ = size; }

  KeptAnswers& answers() { return user_.answers; }
  void KeepAnswer(ScriptAnswer answer) { user_.answers.Keep(std::move(answer)); }
  /// Why a dialog could not be answered since the last call; empty when all could.
  QString TakeFailure() { return user_.answers.TakeFailure(); }

 protected:
  void Place(ToolWindow* window) override;

 private:
  void LayOut(ToolWindow* window);

  /// Prints what a user would be shown, and answers with what the script keeps.
  struct PrintingUser : Respondent {
    explicit PrintingUser(ScriptOutput to) : output(std::move(to)) {}
    void ShowMessage(const Message& message) override;
    bool AskYesNo(const std::string& title, const std::string& text) override;
    std::optional<std::string> PromptText(const std::string& title, const std::string& text,
                                          const std::string& initial) override;
    std::optional<std::string> ChooseSaveFile(const std::string& filter) override;
    std::optional<std::string> ChooseOpenFile(const std::string& filter) override;
    void PrintReport(const Report& report) override;

    ScriptOutput output;
    KeptAnswers answers;
  };

  PrintingUser user_;
  QSize screen_{1366, 900};
  bool paints_ = true;
};

}  // namespace lignara
