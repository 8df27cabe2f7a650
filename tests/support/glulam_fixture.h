#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "glulam/glulam_window.h"
#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {

/// A combination of a test's own, with the values of 24F-V4 DF/DF until they are changed.
struct OwnCombination {
  std::string symbol = "24F-V4";
  std::string species = "DF/DF";
  std::string useCode = "1";
  std::array<std::string, kGlulamValues> values = {"2400",    "1850", "650",  "650",    "265",
                                                   "1800000", "1450", "560",  "230",    "92",
                                                   "1600000", "1100", "1650", "1600000"};

  OwnCombination& With(GlulamValue value, const std::string& text);
  /// As a line of a file.
  std::string Line() const;
};

/// An opened glulam window over a data folder of its own.
class GlulamTest : public testing::Test {
 protected:
  GlulamTest();

  /// Writes the combinations as GL4.CSV, the last one repeated to the count of that file, and loads
  /// it.
  void Load(const std::vector<OwnCombination>& combinations);
  /// Loads 24F-V4 DF/DF.
  void LoadDouglasFir() { Load({OwnCombination()}); }

  /// Types unbraced length, depth and width.
  void Enter(const std::string& feet, const std::string& depth, const std::string& width);
  /// Presses the button of a duration, or of a main load type.
  void Press(const std::string& caption);
  void ChooseWetUse() { ChooseMoisture(window, session, platform, false); }
  void TypeFactor(GlulamValue value, const std::string& text);

  const std::string& Shown(GlulamValue value) const { return window.Value(value); }
  std::vector<std::string> ShownValues() const {
    return {window.values.begin(), window.values.end()};
  }

  DataFolder folder;
  RecordingPlatform platform;
  SessionState session;
  GlulamWindow window;
};

}  // namespace lignara
