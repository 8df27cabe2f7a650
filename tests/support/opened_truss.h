#pragma once

#include <string>

#include "tests/support/truss_fixture.h"

namespace lignara {

/// A truss window as "OK" of the input leaves it: opened and drawn, without loads, never run.
class OpenedTruss : public TestTruss {
 public:
  OpenedTruss(const std::string& type, double spans, double length, double height,
              double innerHeight = 0)
      : TestTruss(type, spans, length, height, innerHeight) {
    OpenTruss(window, session, platform);
  }
};

}  // namespace lignara
