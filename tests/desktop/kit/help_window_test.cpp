// Help opens at the section of the window that asks, in one window beside the others.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>

#include "app/data_directory.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class HelpWindowTest : public testing::Test {
 protected:
  /// The line at the top of the help window.
  QString TopLine() {
    QApplication::processEvents();
    const auto* browser = desktop.Window("HELP")->findChild<QTextBrowser*>();
    return browser->cursorForPosition({12, 12}).block().text();
  }

  OpenDesktop desktop;
};

TEST_F(HelpWindowTest, OpensAtTheSectionOfTheLauncher) {
  desktop.Play({"menu \"Help\" \"Help\""});
  EXPECT_EQ(TopLine(), "The launcher");
}

TEST_F(HelpWindowTest, MovesToTheSectionOfTheWindowThatAsksNext) {
  desktop.Play({"menu \"Help\" \"Help\""});
  desktop.OpenKingPost();
  desktop.Play({"menu \"Help\" \"Help\""});
  EXPECT_TRUE(TopLine().startsWith("The truss window")) << FromQt(TopLine());
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "HELP", "TRUSS"}));
}

TEST_F(HelpWindowTest, SaysNothingWhereTheDocumentIsMissing) {
  QTemporaryDir empty;
  desktop.session.DataDirectory = MakeDataDirectory(FromQt(empty.path()));
  desktop.Play({"menu \"Help\" \"Help\""});
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main"}));
  EXPECT_TRUE(desktop.printed.isEmpty());
}

}  // namespace
}  // namespace lignara
