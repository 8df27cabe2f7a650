#include "truss/headings_and_fonts.h"

#include <gtest/gtest.h>

#include "tests/support/opened_truss.h"

namespace lignara {
namespace {

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
