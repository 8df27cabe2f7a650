#include "app/system_error.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace lignara {
namespace {

TEST(SystemError, IsToldInEnglishWhateverTheLocale) {
  EXPECT_EQ(SystemErrorText(ENOENT), "No such file or directory");
  EXPECT_EQ(SystemErrorText(ENOSPC), "No space left on device");
}

TEST(SystemError, UnknownCodeIsToldByItsNumber) {
  EXPECT_EQ(SystemErrorText(99999), "Unknown error 99999");
}

}  // namespace
}  // namespace lignara
