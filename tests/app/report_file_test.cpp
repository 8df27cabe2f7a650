#include "app/report_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "tests/support/file_size_limit.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

class ReportFileTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return testing::TempDir() + name; }

  static std::string Content(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  RecordingPlatform platform;
};

TEST_F(ReportFileTest, DialogOffersTextFiles) {
  platform.fileAnswers = {std::nullopt};
  EXPECT_FALSE(CreateReportFile(platform));
  EXPECT_EQ(platform.filters, std::vector<std::string>{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ReportFileTest, CreatedFileIsEmptyWhateverItHeld) {
  const std::string path = Path("report_file_truncates.txt");
  std::ofstream(path) << "an older report\n";
  platform.fileAnswers = {path};
  EXPECT_TRUE(CreateReportFile(platform));
  EXPECT_EQ(Content(path), "");
  std::filesystem::remove(path);
}

TEST_F(ReportFileTest, WritesTheLinesOfTheReport) {
  const std::string path = Path("report_file_lines.txt");
  platform.fileAnswers = {path};
  Report report;
  report.Line();
  report.Line("TITLE:   ");
  report.Columns({"MEMBER", "TYPE"});
  std::optional<ReportFile> file = CreateReportFile(platform);
  ASSERT_TRUE(file);
  WriteReportFile(*file, report, platform);
  EXPECT_EQ(Content(path), "\nTITLE:   \nMEMBER        TYPE\n");
  EXPECT_EQ(platform.notes, std::vector<std::string>{"Saved to " + path});
  std::filesystem::remove(path);
}

TEST_F(ReportFileTest, FileInMissingDirectoryShowsTheSystemsWords) {
  const std::string path = Path("no_such_directory/report.txt");
  platform.fileAnswers = {path};
  EXPECT_FALSE(CreateReportFile(platform));
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text, path + ": No such file or directory");
  EXPECT_EQ(platform.messages[0].title, "Lignara");
  EXPECT_EQ(platform.messages[0].icon, MessageIcon::None);
}

TEST_F(ReportFileTest, FullDiskShowsTheSystemsWords) {
  platform.fileAnswers = {"/dev/full"};
  Report report;
  report.Line("TITLE:   ");
  std::optional<ReportFile> file = CreateReportFile(platform);
  ASSERT_TRUE(file);
  WriteReportFile(*file, report, platform);
  EXPECT_EQ(platform.TakeTexts(), std::vector<std::string>{"/dev/full: No space left on device"});
}

TEST_F(ReportFileTest, AReportThatDoesNotFitIsToldAndLeavesNoHalfFile) {
  const std::string path = Path("report_file_half.txt");
  platform.fileAnswers = {path};
  Report report;
  for (int line = 0; line < 1000; ++line) report.Line("MEMBER(1) = 4829.91");
  std::optional<ReportFile> file = CreateReportFile(platform);
  ASSERT_TRUE(file);
  {
    const FileSizeLimit limit(10000);
    WriteReportFile(*file, report, platform);
  }
  EXPECT_EQ(platform.TakeTexts(), std::vector<std::string>{path + ": File too large"});
  EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace lignara
