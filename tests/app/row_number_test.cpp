// The numbers of rows, members and nodes in labels.

#include "app/row_number.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace lignara {
namespace {

TEST(NumberText, HasOneBlankBeforeANumberWithoutSign) {
  EXPECT_EQ(NumberText(1), " 1");
  EXPECT_EQ(NumberText(0), " 0");
  EXPECT_EQ(NumberText(12), " 12");
  EXPECT_EQ(NumberText(12345), " 12345");
  EXPECT_EQ(NumberText(-3), "-3");
  EXPECT_EQ(NumberText(std::numeric_limits<std::int32_t>::max()), " 2147483647");
  EXPECT_EQ(NumberText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

}  // namespace
}  // namespace lignara
