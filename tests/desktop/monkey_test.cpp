// Presses and types at random in every window: no crash, no hang, no message or text that names an
// internal. The seeds are fixed, so that a failure comes back.

#include "tests/desktop/monkey.h"

#include <gtest/gtest.h>

#include "app/window_names.h"

namespace lignara {
namespace {

class MonkeyTest : public testing::TestWithParam<unsigned> {};

TEST_P(MonkeyTest, FindsNoCrashAndNoInternal) {
  Monkey monkey(GetParam());
  monkey.Play(1500);
  EXPECT_GT(monkey.heard(), 0);
}

/// Windows that a walk from the launcher reaches too seldom.
class MonkeyInAWindowTest : public testing::TestWithParam<const char*> {};

TEST_P(MonkeyInAWindowTest, FindsNoCrashAndNoInternal) {
  for (const unsigned seed : {21U, 22U}) {
    Monkey monkey(seed);
    monkey.Open(GetParam());
    monkey.Play(600);
    EXPECT_GT(monkey.heard(), 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, MonkeyInAWindowTest,
                         testing::Values(window_name::kBeam, window_name::kPlywood,
                                         window_name::kGlulam, window_name::kFasteners,
                                         window_name::kBolts, window_name::kMultiSpan,
                                         window_name::kMultiSpanResults));

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, testing::Range(1u, 9u));

}  // namespace
}  // namespace lignara
