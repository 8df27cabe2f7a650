#include "app/report_font.h"

#include <gtest/gtest.h>

#include "app/launcher.h"

namespace lignara {
namespace {

TEST(ReportFont, IsTimesAtTenPointsUntilChosenOtherwise) {
  SessionState session;
  StartSession(session, "/data");
  const Report report = NewReport(session);
  EXPECT_EQ(report.fontName, "Times New Roman");
  EXPECT_EQ(report.fontSize, 10);
  EXPECT_TRUE(report.items().empty());
}

}  // namespace
}  // namespace lignara
