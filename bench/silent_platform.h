#pragma once

#include "app/platform.h"

namespace lignara {

/// A platform that shows nothing and cancels every dialog, so that a benchmark measures the core.
class SilentPlatform : public Platform {
 public:
  void ShowMessage(const Message&) override {}
  bool AskYesNo(const std::string&, const std::string&) override { return false; }
  std::optional<std::string> PromptText(const std::string&, const std::string&,
                                        const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> ChooseSaveFile(const std::string&) override { return std::nullopt; }
  void OpenWindow(const std::string&) override {}
  void CloseWindow(const std::string&) override {}
  void HideWindow(const std::string&) override {}
  bool HasWindow(const std::string&) const override { return true; }
  void PrintReport(const Report&) override {}
  void ShowHelp(const std::string&, const std::string&) override {}
  void SetBusyPointer(bool) override {}
};

}  // namespace lignara
