#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "connections/bolt_window.h"
#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {

/// The window of bolts, opened on the shipped table, with a hand for its options.
class OpenedBolts : public testing::Test {
 protected:
  OpenedBolts() {
    session.DataDirectory = ShippedDataDirectory();
    OpenBoltWindow(window, session, platform);
  }

  void Choose(std::int16_t JointOptions::*option, int choice) {
    for (const JointOptionGroup& group : JointOptionGroups()) {
      if (group.chosen == option) ChooseJointOption(window, group, choice);
    }
  }

  /// Without factors: no side plates, ten years.
  void ChooseNoFactors() {
    Choose(&JointOptions::SidePlates, 1);
    Choose(&JointOptions::Duration, 1);
  }

  void Enter(const std::string& L1, const std::string& L2, const std::string& L3) {
    window.L1 = L1;
    window.L2 = L2;
    window.L3 = L3;
  }

  /// Double shear of three members of one thickness, so that it is the effective one.
  void Compute(const std::string& thickness, int bolt) {
    Enter(thickness, thickness, thickness);
    ChooseBolt(window, bolt);
    ComputeShear(window, platform);
  }

  /// Loads parallel and perpendicular to the grain, as shown.
  std::vector<std::string> Loads() const { return {window.parallel, window.perpendicular}; }

  SessionState session;
  RecordingPlatform platform;
  BoltWindow window;
};

}  // namespace lignara
