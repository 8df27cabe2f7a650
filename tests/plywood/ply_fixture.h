#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "plywood/ply_report.h"
#include "plywood/ply_window.h"
#include "tests/support/recording_platform.h"

namespace lignara {

/// The window with one panel shown; keys and results are named by their captions.
class PlyFixture : public testing::Test {
 protected:
  explicit PlyFixture(PlyPanel shown) : panel(shown) {
    OpenPlyWindow(window);
    ShowPanel(window, panel);
  }

  const PlyPanelState& State() const { return window.Panel(panel); }

  const PlyKey& Key(const std::string& caption) const { return State().keys[KeyIndex(caption)]; }
  const Texts& Entries(const std::string& caption) const { return Key(caption).choice.rows; }

  void Choose(const std::string& caption, int row) {
    ChoosePlyRow(window, panel, KeyIndex(caption), row);
  }

  /// The first entry that reads so.
  void Choose(const std::string& caption, const std::string& entry) {
    const Texts& entries = Entries(caption);
    for (std::size_t row = 0; row < entries.size(); ++row) {
      if (entries[row] == entry) return Choose(caption, static_cast<int>(row));
    }
    throw std::runtime_error(caption + " has no entry " + entry);
  }

  std::string Value(const std::string& caption) const {
    for (const PlyResult& result : State().results) {
      if (result.caption == caption) return result.value;
    }
    throw std::runtime_error("there is no result " + caption);
  }

  Texts Values() const {
    Texts values;
    for (const PlyResult& result : State().results) values.push_back(result.value);
    return values;
  }

  Texts ResultCaptions() const {
    Texts captions;
    for (const PlyResult& result : State().results) captions.push_back(result.caption);
    return captions;
  }

  const Texts& Lines() const { return State().lines; }

  std::string ReportBytes() const { return ReportText(PlyReport(window, panel)); }

  const PlyPanel panel;
  PlyPanelWindow window;
  RecordingPlatform platform;

 private:
  std::size_t KeyIndex(const std::string& caption) const {
    for (std::size_t i = 0; i < State().keys.size(); ++i) {
      if (State().keys[i].caption == caption) return i;
    }
    throw std::runtime_error("there is no key " + caption);
  }
};

}  // namespace lignara
