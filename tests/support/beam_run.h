#pragma once

#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {

/// "RUN" of a single-span beam.
class BeamRun : public testing::Test {
 protected:
  /// A beam with 1 in^4 replaced by 64, so that EI is 1e6 x 64 / 144 = 444,444.44 lb ft^2.
  void Stiff() { beam.Constants("1000000", "64"); }

  void ExpectOutput(const std::string& r1, const std::string& r2, const std::string& moment) {
    EXPECT_EQ(beam.window.reaction1, r1);
    EXPECT_EQ(beam.window.reaction2, r2);
    EXPECT_EQ(beam.window.maxMoment, moment);
  }

  TestBeam beam;
};

}  // namespace lignara
