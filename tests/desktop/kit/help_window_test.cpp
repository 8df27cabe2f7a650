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

TEST_F(HelpWindowTest, GoesBackToTheSectionBeforeAndToTheContents) {
  desktop.Play({"menu \"Help\" \"Help\"", "window HELP", "state \"Back\""});
  EXPECT_EQ(desktop.printed.last(), "state visible disabled");
  desktop.OpenKingPost();
  desktop.Play({"menu \"Help\" \"Help\"", "window HELP", "press \"Back\""});
  EXPECT_EQ(TopLine(), "The launcher");
  desktop.Play({"press \"Contents\""});
  EXPECT_EQ(TopLine(), "Lignara Help");
}

TEST_F(HelpWindowTest, FindsAWordAndGoesOnFromTheTop) {
  desktop.Play({"menu \"Help\" \"Help\"", "window HELP"});
  desktop.PressKey("HELP", Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(desktop.FocusIn("HELP"), "Find");
  desktop.Type("HELP", "slope calculator");
  desktop.PressKey("HELP", Qt::Key_Return);
  const auto* browser = desktop.Window("HELP")->findChild<QTextBrowser*>();
  EXPECT_EQ(browser->textCursor().selectedText().toLower(), "slope calculator");
  const int first = browser->textCursor().position();
  int place = first;
  int steps = 0;
  do {
    desktop.PressKey("HELP", Qt::Key_F3);
    place = browser->textCursor().position();
  } while (place != first && ++steps < 50);
  EXPECT_EQ(place, first);
}

TEST_F(HelpWindowTest, ClosesWithEscape) {
  desktop.Play({"menu \"Help\" \"Help\""});
  desktop.PressKey("HELP", Qt::Key_Escape);
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main"}));
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
