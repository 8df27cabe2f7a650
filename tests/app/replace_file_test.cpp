#include "app/replace_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/data_folder.h"
#include "tests/support/file_size_limit.h"

namespace lignara {
namespace {

std::size_t FilesIn(const DataFolder& folder) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path("."))) {
    count += entry.exists() ? 1 : 0;
  }
  return count;
}

TEST(ReplaceFile, MakesAFile) {
  const DataFolder folder;
  EXPECT_TRUE(ReplaceFile(folder.Path("A"), "new\n"));
  EXPECT_EQ(FileBytes(folder.Path("A")), "new\n");
}

TEST(ReplaceFile, ReplacesAFileAndLeavesNothingBeside) {
  const DataFolder folder;
  folder.Write("A", "old and longer\n");
  EXPECT_TRUE(ReplaceFile(folder.Path("A"), "new\n"));
  EXPECT_EQ(FileBytes(folder.Path("A")), "new\n");
  EXPECT_EQ(FilesIn(folder), 1U);
}

// Such a file lies there after a new version of the program came: the user has still to look at it.
TEST(ReplaceFile, ANewVersionThatLiesBesideStays) {
  const DataFolder folder;
  folder.Write("A", "own\n");
  folder.Write("A.new", "shipped\n");
  EXPECT_TRUE(ReplaceFile(folder.Path("A"), "own again\n"));
  EXPECT_EQ(FileBytes(folder.Path("A.new")), "shipped\n");
}

TEST(ReplaceFile, FailsWithoutItsFolder) {
  const DataFolder folder;
  EXPECT_FALSE(ReplaceFile(folder.Path("none/A"), "new\n"));
}

TEST(ReplaceFile, ADirectoryOfThatNameStays) {
  const DataFolder folder;
  std::filesystem::create_directories(folder.Path("A/inside"));
  EXPECT_FALSE(ReplaceFile(folder.Path("A"), "new\n"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path("A/inside")));
  EXPECT_EQ(FilesIn(folder), 1U);
}

// What stands in the way of the file beside it leaves the old one whole.
TEST(ReplaceFile, AFileThatCannotBeWrittenBesideLeavesTheOldOne) {
  const DataFolder folder;
  folder.Write("A", "old\n");
  std::filesystem::create_directories(folder.Path("A.part/inside"));
  EXPECT_FALSE(ReplaceFile(folder.Path("A"), "new\n"));
  EXPECT_EQ(FileBytes(folder.Path("A")), "old\n");
}

TEST(ReplaceFile, AWriteThatBreaksOffLeavesTheOldOne) {
  const DataFolder folder;
  folder.Write("A", "old\n");
  bool replaced = true;
  {
    const FileSizeLimit limit(2);
    replaced = ReplaceFile(folder.Path("A"), "new\n");
  }
  EXPECT_FALSE(replaced);
  EXPECT_EQ(FileBytes(folder.Path("A")), "old\n");
  EXPECT_EQ(FilesIn(folder), 1U);
}

// A link to a directory cannot be opened for writing, by no user, but a rename would replace it.
TEST(ReplaceFile, WhatMustNotBeWrittenStays) {
  const DataFolder folder;
  std::filesystem::create_directory(folder.Path("inside"));
  std::filesystem::create_directory_symlink("inside", folder.Path("A"));
  EXPECT_FALSE(ReplaceFile(folder.Path("A"), "new\n"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("A")));
  EXPECT_EQ(FilesIn(folder), 2U);
}

}  // namespace
}  // namespace lignara
