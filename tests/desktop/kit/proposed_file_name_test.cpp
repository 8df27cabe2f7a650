// The name of a work as the name of its file.

#include "desktop/kit/proposed_file_name.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

TEST(FileNameOf, KeepsATitleAndLeavesOutWhatAFileNameCannotHave) {
  EXPECT_EQ(FileNameOf("Barn, north bay"), "Barn, north bay");
  EXPECT_EQ(FileNameOf("12/24 span: \"A\"?"), "12 24 span A");
  EXPECT_EQ(FileNameOf("..hidden"), "hidden");
  EXPECT_EQ(FileNameOf(QString(200, 'x')).size(), 80);
}

}  // namespace
}  // namespace lignara
