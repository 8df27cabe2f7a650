#include "app/help.h"

#include <gtest/gtest.h>

#include "app/data_directory.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

TEST(Help, OpensTheDocumentOfTheDataDirectoryAtTheWindowsSection) {
  SessionState session;
  session.DataDirectory = "work\\";
  RecordingPlatform platform;
  ShowHelp("TR_INPUT", session, platform);
  ASSERT_EQ(platform.help.size(), 1u);
  EXPECT_EQ(platform.help[0].path, DataPath("work\\", "LIGNARA.HLP"));
  EXPECT_EQ(platform.help[0].section, "TR_INPUT");
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace lignara
