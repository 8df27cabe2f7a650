#pragma once

#include <optional>
#include <string>

#include "app/platform.h"

namespace lignara {

/// Who reads the program's boxes, answers its dialogs and takes its prints in the user's place.
class Respondent {
 public:
  virtual ~Respondent() = default;
  virtual void ShowMessage(const Message& message) = 0;
  virtual bool AskYesNo(const std::string& title, const std::string& text) = 0;
  virtual std::optional<std::string> PromptText(const std::string& title, const std::string& text,
                                                const std::string& initial) = 0;
  virtual std::optional<std::string> ChooseSaveFile(const std::string& filter) = 0;
  virtual std::optional<std::string> ChooseOpenFile(const std::string& filter) = 0;
  virtual void PrintReport(const Report& report) = 0;
  /// Asked ahead of a file that the program writes without a dialog.
  virtual bool MayWriteFiles() { return true; }
};

}  // namespace lignara
