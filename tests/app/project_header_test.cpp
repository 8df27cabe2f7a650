#include "app/project_header.h"

#include <gtest/gtest.h>

#include "app/launcher.h"
#include "app/report_font.h"

namespace lignara {
namespace {

const std::string kBlankHeader = "\n\nENGINEER: \nDATE: \n\n";

class Header : public testing::Test {
 protected:
  Header() { StartSession(session, "/data"); }

  std::string Printed() {
    Report report;
    WriteHeader(report, session.Header);
    return ReportText(report);
  }

  SessionState session;
  HeaderPanel panel;
};

TEST_F(Header, IsBlankUntilSomethingIsEntered) { EXPECT_EQ(Printed(), kBlankHeader); }

TEST_F(Header, PanelIsClosedUntilAskedFor) {
  EXPECT_FALSE(panel.open);
  OpenHeaderPanel(panel, session);
  EXPECT_TRUE(panel.open);
}

TEST_F(Header, OkStoresTheFourTextsAndClosesThePanel) {
  OpenHeaderPanel(panel, session);
  panel.texts = {"Library roof", "North wing", "A. Baker", "3 May"};
  AcceptHeaderPanel(panel, session);
  EXPECT_FALSE(panel.open);
  EXPECT_EQ(Printed(), "Library roof\nNorth wing\nENGINEER: A. Baker\nDATE: 3 May\n\n");
}

TEST_F(Header, TypedTextsDoNotReachTheReportBeforeOk) {
  OpenHeaderPanel(panel, session);
  panel.texts.Title = "Library roof";
  EXPECT_EQ(Printed(), kBlankHeader);
}

TEST_F(Header, PanelOpensOnWhatAnotherWindowEntered) {
  session.Header.Title2 = "North wing";
  session.ReportFont.Name = "Arial";
  session.ReportFont.Size = 8;
  OpenHeaderPanel(panel, session);
  EXPECT_EQ(panel.texts.Title2, "North wing");
  EXPECT_FALSE(panel.fontTimes);
  EXPECT_FALSE(panel.fontTen);
}

TEST_F(Header, PanelOpensOnTimesAtTenPointsAtTheStart) {
  panel.fontTimes = panel.fontTen = false;
  OpenHeaderPanel(panel, session);
  EXPECT_TRUE(panel.fontTimes);
  EXPECT_TRUE(panel.fontTen);
}

TEST_F(Header, OkStoresTheFontOfReports) {
  OpenHeaderPanel(panel, session);
  panel.fontTimes = false;
  panel.fontTen = false;
  AcceptHeaderPanel(panel, session);
  const Report report = NewReport(session);
  EXPECT_EQ(report.fontName, "Arial");
  EXPECT_EQ(report.fontSize, 8);
}

}  // namespace
}  // namespace lignara
