// Windows come back where the user left them, in this run of the program.

#include <gtest/gtest.h>

#include <QApplication>

#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class WindowPlacesTest : public testing::Test {
 protected:
  ToolWindow* OpenChooser() {
    desktop.Play({"window main", "press \"Pure Wood Data Base\""});
    return desktop.Window("QUESTION");
  }
  void CloseChooser() { desktop.Play({"window QUESTION", "close"}); }

  OpenDesktop desktop;
};

TEST_F(WindowPlacesTest, AWindowThatWasMovedAndResizedComesBackSo) {
  ToolWindow* window = OpenChooser();
  const QSize size = window->size() + QSize(40, 30);
  window->resize(size);
  window->move(111, 77);
  QApplication::processEvents();
  CloseChooser();
  window = OpenChooser();
  EXPECT_EQ(window->pos(), QPoint(111, 77));
  EXPECT_EQ(window->size(), size);
}

TEST_F(WindowPlacesTest, AWindowThatWasLeftAloneOpensInTheMiddleAgain) {
  const QPoint middle = OpenChooser()->pos();
  CloseChooser();
  EXPECT_EQ(OpenChooser()->pos(), middle);
}

TEST_F(WindowPlacesTest, AWindowThatWasLeftOffTheScreenComesBackOnIt) {
  OpenChooser()->move(5000, 4000);
  QApplication::processEvents();
  CloseChooser();
  ToolWindow* window = OpenChooser();
  const QRect screen = desktop.platform.Screen(*window);
  EXPECT_LE(window->x() + window->width(), screen.width());
  EXPECT_LE(window->y() + window->height(), screen.height());
}

TEST_F(WindowPlacesTest, EveryWindowHasTheIconOfTheProgram) {
  const QIcon icon = OpenChooser()->windowIcon();
  ASSERT_FALSE(icon.isNull());
  EXPECT_GT(icon.pixmap(64).toImage().pixelColor(32, 25).alpha(), 0);
}

}  // namespace
}  // namespace lignara
