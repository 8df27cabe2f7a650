#include "app/report_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

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
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP();
  platform.fileAnswers = {"/dev/full"};
  Report report;
  report.Line("TITLE:   ");
  std::optional<ReportFile> file = CreateReportFile(platform);
  ASSERT_TRUE(file);
  WriteReportFile(*file, report, platform);
  EXPECT_EQ(platform.TakeTexts(), std::vector<std::string>{"/dev/full: No space left on device"});
}

}  // namespace
}  // namespace lignara
