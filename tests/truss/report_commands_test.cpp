#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/reported_truss.h"

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

TEST(ReportPanels, HeadingsGoIntoTheSession) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  OpenHeadings(truss.window);
  EXPECT_TRUE(truss.window.headingsOpen);
  truss.window.titleText = "Barn";
  truss.window.descriptionText = "North wing";
  AcceptHeadings(truss.window, truss.session);
  EXPECT_EQ(truss.session.ReportTitle, "Barn");
  EXPECT_EQ(truss.session.ReportDescription, "North wing");
  EXPECT_FALSE(truss.window.headingsOpen);
}

TEST(ReportPanels, FontChoiceGoesIntoTheSession) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  struct Choice {
    bool times, ten;
    const char* name;
    int size;
  };
  const Choice choices[] = {{true, true, "Times New Roman", 10},
                            {true, false, "Times New Roman", 8},
                            {false, true, "Arial", 10},
                            {false, false, "Arial", 8}};
  for (const Choice& choice : choices) {
    OpenFonts(truss.window);
    EXPECT_TRUE(truss.window.fontsOpen);
    truss.window.fontTimes = choice.times;
    truss.window.fontTen = choice.ten;
    AcceptFonts(truss.window, truss.session);
    EXPECT_FALSE(truss.window.fontsOpen);
    EXPECT_EQ(truss.session.ReportFont.Name, choice.name);
    EXPECT_EQ(truss.session.ReportFont.Size.value(), choice.size);
  }
}

TEST(ReportPanels, LeftWithoutOkChangeNothingInTheSession) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  OpenHeadings(truss.window);
  truss.window.titleText = "Barn";
  CloseHeadings(truss.window);
  EXPECT_FALSE(truss.window.headingsOpen);
  EXPECT_EQ(truss.session.ReportTitle, "");
  truss.session.ReportFont.Name = "Times New Roman";
  OpenFonts(truss.window);
  truss.window.fontTimes = false;
  CloseFonts(truss.window);
  EXPECT_FALSE(truss.window.fontsOpen);
  EXPECT_EQ(truss.session.ReportFont.Name, "Times New Roman");
}

}  // namespace
}  // namespace lignara
