#pragma once

#include <string>

#include "tests/support/recording_platform.h"
#include "truss/truss_window.h"

namespace lignara {

/// A truss window as it stands after its dimensions were accepted, with a session and a platform of
/// its own.
class TestTruss {
 public:
  TestTruss(const std::string& type, double spans, double length, double height,
            double innerHeight = 0);

  TrussJob Job() { return TrussJob(window.model, session, platform); }
  ActiveModel& model() { return window.model; }

  /// The same load on every top node, the peak included.
  void LoadAllNodes(double load);

  /// Gives all four member groups this section.
  void ChooseMembers(double area, double modulus);

  void Run() { RunTruss(window, session, platform); }
  /// The chain of the type and the signs alone.
  void Analyse();

  SessionState session;
  RecordingPlatform platform;
  TrussWindow window;
};

/// A truss of the type with `spans` panels of 8 ft (where the type has panels) and a slope of 3 in
/// 4; King post: 32 ft long, 12 ft high; scissors: 40 ft, 15 ft and 5 ft inner height.
TestTruss StandardTruss(const std::string& type, int spans);

}  // namespace lignara
