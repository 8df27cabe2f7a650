#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/support/recording_platform.h"

namespace lignara {

/// Exactly one message box was shown: this text under this title, without an icon.
inline void ExpectSingleBox(const RecordingPlatform& platform, const std::string& text,
                            const std::string& title = "Lignara") {
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, text);
  EXPECT_EQ(platform.messages[0].title, title);
  EXPECT_EQ(platform.messages[0].icon, MessageIcon::None);
}

}  // namespace lignara
