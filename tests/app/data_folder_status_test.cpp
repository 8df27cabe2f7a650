#include "app/data_folder_status.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/data_directory.h"
#include "tests/support/data_folder.h"

namespace lignara {
namespace {

std::string StatusOf(const DataFolder& folder, bool writable = true) {
  return DataFolderStatus(folder.DataDirectory(), writable);
}

TEST(DataFolderStatus, IsEmptyForTheShippedFiles) {
  EXPECT_EQ(DataFolderStatus(ShippedDataDirectory(), true), "");
}

TEST(DataFolderStatus, NamesAFolderWithoutDataFiles) {
  const DataFolder folder;
  folder.Write("NOTES.TXT", "of something else\n");
  EXPECT_EQ(StatusOf(folder),
            "No data files in " + folder.Folder() + ": design values and help are missing");
}

TEST(DataFolderStatus, NamesAFolderThatIsNot) {
  EXPECT_EQ(DataFolderStatus(MakeDataDirectory("/no/such"), true),
            "No data files in /no/such: design values and help are missing");
}

TEST(DataFolderStatus, OneFileOfAnyToolIsEnough) {
  for (const char* name :
       {"WWTRK.CSV", "SPTRK.CSV", "MSRTRK.CSV", "GL1.CSV", "BV.CSV", "LIGNARA.HLP"}) {
    const DataFolder folder;
    folder.Write(name, "");
    EXPECT_EQ(StatusOf(folder), "") << name;
    EXPECT_TRUE(std::filesystem::exists(DataPath(ShippedDataDirectory(), name))) << name;
  }
}

TEST(DataFolderStatus, NamesAFolderThatCannotBeWritten) {
  const DataFolder folder;
  folder.Write("BV.CSV", "");
  EXPECT_EQ(StatusOf(folder, false),
            folder.Folder() + " cannot be written: your own defaults will not be kept");
}

TEST(DataFolderStatus, NamesTheNewVersionBesideAFileOfTheUser) {
  const DataFolder folder;
  folder.Write("BV.CSV", "");
  folder.Write("USERADJ.CSV", "own");
  folder.Write("USERADJ.CSV.new", "shipped");
  EXPECT_EQ(StatusOf(folder),
            "New versions of files that you changed lie beside them: USERADJ.CSV.new");
}

TEST(DataFolderStatus, CountsFurtherNewVersions) {
  const DataFolder folder;
  for (const char* name : {"WWOODS.CSV", "BV.CSV", "GL1.CSV"}) {
    folder.Write(name, "own");
    folder.Write(std::string(name) + ".new", "shipped");
  }
  EXPECT_EQ(StatusOf(folder),
            "New versions of files that you changed lie beside them: BV.CSV.new and 2 more");
}

TEST(DataFolderStatus, ANewVersionOfNothingIsNone) {
  const DataFolder folder;
  folder.Write("BV.CSV", "");
  folder.Write("OAK.CSV.new", "shipped");
  folder.Write(".new", "");
  EXPECT_EQ(StatusOf(folder), "");
}

// What ends the work sooner is told first.
TEST(DataFolderStatus, TellsOfOneThingAtATime) {
  const DataFolder folder;
  folder.Write("A", "own");
  folder.Write("A.new", "shipped");
  EXPECT_NE(StatusOf(folder, false).find("No data files"), std::string::npos);
  folder.Write("BV.CSV", "");
  EXPECT_NE(StatusOf(folder, false).find("cannot be written"), std::string::npos);
  EXPECT_NE(StatusOf(folder).find("A.new"), std::string::npos);
}

}  // namespace
}  // namespace lignara
