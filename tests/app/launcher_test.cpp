#include "app/launcher.h"

#include <gtest/gtest.h>

#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

TEST(Launcher, TrussCommandClosesOpenTrussThenOpensInput) {
  SessionState session;
  RecordingPlatform platform;
  StartTruss("FINK", session, platform);
  EXPECT_EQ(platform.calls, (Texts{"close TRUSS", "close TR_INPUT", "open TR_INPUT"}));
  EXPECT_EQ(session.TrussType, "FINK");
  EXPECT_EQ(session.DesignMode, "TRUSS");
}

}  // namespace
}  // namespace lignara
