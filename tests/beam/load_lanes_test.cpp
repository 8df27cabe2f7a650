#include "beam/load_lanes.h"

#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

TEST(LoadLanes, StackWhatLiesOverEachOtherOnItsSideOfTheBeam) {
  TestBeam beam;
  beam.Uniform("0", "6", "100");
  beam.Uniform("5", "2", "50");   // over the first
  beam.Uniform("6", "3", "50");   // behind the first
  beam.Uniform("0", "9", "-10");  // from below
  beam.Point("3", "1");
  const LoadLanes lanes = FindLanes(beam.window.beam);
  EXPECT_EQ(lanes.laneOf, std::vector<int>({0, 0, 1, 0, 0, 0}));
  EXPECT_EQ(lanes.above, 2);
  EXPECT_EQ(lanes.below, 1);
}

TEST(LoadLanes, AreNoneWithoutDistributedLoads) {
  TestBeam beam;
  beam.Point("3", "1");
  const LoadLanes lanes = FindLanes(beam.window.beam);
  EXPECT_EQ(lanes.above, 0);
  EXPECT_EQ(lanes.below, 0);
}

}  // namespace
}  // namespace lignara
