#pragma once

#include <deque>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/platform.h"
#include "app/report.h"

namespace lignara {

/// A platform for tests: writes down what the core asked for, and answers from queues.
class RecordingPlatform : public Platform {
 public:
  struct HelpCall {
    std::string path;
    std::string section;
  };

  void ShowMessage(const Message& message) override { messages.push_back(message); }
  bool AskYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> PromptText(const std::string& title, const std::string& text,
                                        const std::string& initial) override;
  std::optional<std::string> ChooseSaveFile(const std::string& filter) override;
  void OpenWindow(const std::string& name) override { calls.push_back("open " + name); }
  void CloseWindow(const std::string& name) override { calls.push_back("close " + name); }
  void HideWindow(const std::string& name) override { calls.push_back("hide " + name); }
  bool HasWindow(const std::string&) const override { return true; }
  void PrintReport(const Report& report) override { printed.push_back(report); }
  void ShowHelp(const std::string& path, const std::string& section) override {
    help.push_back({path, section});
  }
  void SetBusyPointer(bool busy) override { calls.push_back(busy ? "busy on" : "busy off"); }

  void ShowNote(const std::string& text) override { notes.push_back(text); }

  /// The texts of the message boxes so far, and forgets them.
  std::vector<std::string> TakeTexts();

  std::vector<Message> messages;
  std::vector<std::string>
      calls;  ///< "open NAME", "close NAME", "hide NAME", "busy on", "busy off"
  std::vector<std::string> notes;
  std::vector<std::string> asked;
  std::vector<std::string> filters;
  std::vector<Report> printed;
  std::vector<HelpCall> help;

  std::deque<bool> yesNoAnswers;
  std::deque<std::optional<std::string>> textAnswers;
  std::deque<std::optional<std::string>> fileAnswers;
};

}  // namespace lignara
