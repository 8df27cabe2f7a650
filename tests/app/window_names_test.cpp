#include "app/window_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace lignara {
namespace {

TEST(WindowNames, AreDistinct) {
  const std::set<std::string> distinct(kWindowNames.begin(), kWindowNames.end());
  EXPECT_EQ(distinct.size(), kWindowNames.size());
}

TEST(WindowNames, ASlipOfThePenIsNone) {
  EXPECT_TRUE(IsWindowName("MLSP"));
  EXPECT_FALSE(IsWindowName("mlsp"));
  EXPECT_FALSE(IsWindowName(""));
}

TEST(WindowNames, TheExitClosesAllButThoseThatTheirParentsClose) {
  std::set<std::string> left(kWindowNames.begin(), kWindowNames.end());
  for (const char* name : kExitOrder) EXPECT_EQ(left.erase(name), 1u) << name;
  EXPECT_EQ(left, std::set<std::string>({"main", "HELP", "bolts", "INTGR", "REPEAT"}));
}

}  // namespace
}  // namespace lignara
