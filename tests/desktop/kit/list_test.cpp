// A list under the mouse: what it shows as chosen is what the window goes on with.

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class ListTest : public testing::Test {
 protected:
  void SetUp() override {
    desktop.Play({"press \"PRATT2\"", "window TR_INPUT", "enter \"Number of Spans\" 4",
                  "enter \"Total Length (ft)\" 32", "enter \"H (ft)\" 4", "press \"OK\"",
                  "window TRUSS", "enter \"Top Node Loads (lbs)\" 5", "press \"All\""});
    // PL 2 alone differs: its load tells which row the window took.
    desktop.Play({"select \"Top Node Loads (lbs)\" 2", "enter \"Top Node Loads (lbs)\" 222",
                  "press \"Enter\"", "select \"Top Node Loads (lbs)\" 1"});
    for (QListWidget* each : desktop.Window("TRUSS")->findChildren<QListWidget*>()) {
      if (each->accessibleName() == "Top Node Loads (lbs)") list = each;
    }
    ASSERT_NE(list, nullptr);
  }

  void Mouse(QEvent::Type type, int row, Qt::MouseButtons held) {
    const QPointF place = list->visualItemRect(list->item(row)).center();
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, list->viewport()->mapToGlobal(place), button, held,
                      Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &event);
  }

  std::string LoadInTheField() {
    desktop.printed.clear();
    desktop.Play({"read \"Top Node Loads (lbs)\""});
    return FromQt(desktop.printed.join(' '));
  }

  OpenDesktop desktop;
  QListWidget* list = nullptr;
};

TEST_F(ListTest, AClickChoosesItsRow) {
  Mouse(QEvent::MouseButtonPress, 2, Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, 2, Qt::NoButton);
  EXPECT_EQ(ChosenRow(list), 2);
  EXPECT_EQ(LoadInTheField(), "value \"222\"");
}

TEST_F(ListTest, AClickOnTheChosenRowCountsAgain) {
  desktop.Play({"enter \"Top Node Loads (lbs)\" 9"});
  Mouse(QEvent::MouseButtonPress, 1, Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, 1, Qt::NoButton);
  EXPECT_EQ(LoadInTheField(), "value \"5\"");
}

TEST_F(ListTest, ADragChoosesTheRowUnderTheMouseWhenReleased) {
  Mouse(QEvent::MouseButtonPress, 4, Qt::LeftButton);
  Mouse(QEvent::MouseMove, 3, Qt::LeftButton);
  Mouse(QEvent::MouseMove, 2, Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, 2, Qt::NoButton);
  EXPECT_EQ(ChosenRow(list), 2);
  EXPECT_EQ(LoadInTheField(), "value \"222\"");
}

/// A list of rows that are wider than it is.
class NarrowList : public testing::Test {
 protected:
  NarrowList() {
    list.resize(120, 120);
    binding.List(&list, &rows);
    list.show();
    binding.Refresh();
    QApplication::processEvents();
  }

  int WidthOf(const char* text) const { return list.fontMetrics().horizontalAdvance(text); }

  static constexpr const char* kWide =
      "Allowable axial stress = 994.75 psi with full lateral bracing";
  std::vector<std::string> rows = {"", kWide, "(TL 1)"};
  QListWidget list;
  Binding binding{[] {}};
};

TEST_F(NarrowList, ScrollsToTheEndOfItsWidestRowAndCutsNoneShort) {
  EXPECT_EQ(list.textElideMode(), Qt::ElideNone);
  EXPECT_GE(list.visualItemRect(list.item(1)).width(), WidthOf(kWide));
  EXPECT_TRUE(list.horizontalScrollBar()->isVisible());
}

TEST_F(NarrowList, FollowsItsRows) {
  rows = {"", "(TL 1)"};
  binding.Refresh();
  QApplication::processEvents();
  EXPECT_FALSE(list.horizontalScrollBar()->isVisible());
}

}  // namespace
}  // namespace lignara
