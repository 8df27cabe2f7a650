#include "app/data_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace lignara {
namespace {

TEST(DataDirectory, BearsATrailingBackslash) {
  EXPECT_EQ(MakeDataDirectory("work"), "work\\");
  EXPECT_EQ(MakeDataDirectory("/some/where"), "/some/where\\");
}

TEST(DataDirectory, AFileNameIsJoinedTheWayOfThePlatform) {
  const std::filesystem::path expected = std::filesystem::path("some") / "where" / "BV.CSV";
  EXPECT_EQ(DataPath(MakeDataDirectory(expected.parent_path().string()), "BV.CSV"),
            expected.string());
}

TEST(DataDirectory, OnlyTheTrailingBackslashIsTaken) {
  // A backslash is a letter like any other in the names of some platforms.
  const std::string directory = "odd\\name";
  EXPECT_EQ(DataPath(MakeDataDirectory(directory), "BV.CSV"),
            (std::filesystem::path(directory) / "BV.CSV").string());
}

TEST(DataDirectory, WithoutADirectoryTheNameStandsAlone) {
  EXPECT_EQ(DataPath("", "BV.CSV"), "BV.CSV");
}

TEST(DataDirectory, FindsTheShippedFiles) {
  const std::string directory = MakeDataDirectory(LIGNARA_DATA_DIRECTORY);
  for (const char* name : {"WWTRK.CSV", "SPTRK.CSV", "MSRTRK.CSV", "GL1.CSV", "BV.CSV"}) {
    EXPECT_TRUE(std::ifstream(DataPath(directory, name)).good()) << name;
  }
}

}  // namespace
}  // namespace lignara
