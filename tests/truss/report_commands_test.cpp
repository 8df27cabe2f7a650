#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/reported_truss.h"
#include "truss/report.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class SaveTrussReportTest : public testing::Test {
 protected:
  SaveTrussReportTest() : path(testing::TempDir() + "truss_report.txt") {
    std::filesystem::remove(path);
  }
  ~SaveTrussReportTest() override { std::filesystem::remove(path); }

  std::string Content() const {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::string path;
};

TEST_F(SaveTrussReportTest, WritesTheReportAndLeavesTheViewAlone) {
  OpenedTruss truss = Example("HOWE");
  EnlargeTruss(truss.window, truss.session, truss.platform);
  truss.platform.fileAnswers = {path};
  SaveTrussReport(truss.window, truss.session, truss.platform);
  EXPECT_EQ(Content(), ReportText(TRUSS_FILE(truss.window, truss.session)));
  EXPECT_EQ(truss.platform.filters, Texts{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_NEAR(truss.window.view.ZoomFactor.value(), 1.1, 1e-6);
}

TEST_F(SaveTrussReportTest, WithoutARunTheFileStaysEmpty) {
  std::ofstream(path) << "an older report";
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  truss.platform.fileAnswers = {path};
  SaveTrussReport(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"You need to run the model prior to saving!"});
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(Content(), "");
}

TEST_F(SaveTrussReportTest, CancelWritesNothing) {
  OpenedTruss truss = Example("PRATT1");
  truss.platform.fileAnswers = {std::nullopt};
  SaveTrussReport(truss.window, truss.session, truss.platform);
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(SaveTrussReportTest, FileThatCannotBeOpenedEndsTheCommandBeforeTheRunTest) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  truss.platform.fileAnswers = {testing::TempDir() + "no_such_directory/report.txt"};
  SaveTrussReport(truss.window, truss.session, truss.platform);
  ASSERT_EQ(truss.platform.messages.size(), 1u) << "one box, and not that of the run";
  EXPECT_NE(truss.platform.messages[0].text, "You need to run the model prior to saving!");
}

}  // namespace
}  // namespace lignara
