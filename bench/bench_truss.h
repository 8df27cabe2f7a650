#pragma once

#include <string>

#include "bench/silent_platform.h"
#include "truss/truss_window.h"

namespace lignara {

/// An opened truss with panels of 8 ft, 1000 lbs on each node and members chosen.
struct BenchTruss {
  BenchTruss(const std::string& type, int spans) {
    session.TrussType = type;
    session.TrussSpans = spans;
    session.TrussLength = 8.0 * spans;
    session.TrussHeight = 8;
    session.TrussInnerHeight = 3;
    for (TrussMemberGroup& group : session.Member.Groups) {
      group.GroupArea = 8.25;
      group.GroupE = 1600000;
      group.GroupB = 1.5;
      group.GroupD = 5.5;
    }
    OpenTruss(window, session, platform);
    window.nodeLoad = "1000";
    EnterAllNodeLoads(window, session, platform);
  }

  SessionState session;
  SilentPlatform platform;
  TrussWindow window;
};

}  // namespace lignara
