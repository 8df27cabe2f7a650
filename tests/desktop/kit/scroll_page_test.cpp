// Columns of a page that is too narrow for them.

#include "desktop/kit/scroll_page.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollBar>

namespace lignara {
namespace {

/// Two parts, 300 and 200 pixels wide and 200 high, 10 apart: 510 by 200 side by side, 300 by 410
/// below each other.
class ScrollPageTest : public testing::Test {
 protected:
  ScrollPageTest() {
    auto* content = new QWidget;
    auto* columns = new QHBoxLayout(content);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(10);
    left->setMinimumSize(300, 200);
    right->setMinimumSize(200, 200);
    columns->addWidget(left);
    columns->addWidget(right);
    page.Hold(content);
    page.TakeIn();
    page.show();
  }

  void Resize(int width, int height) {
    page.resize(width, height);
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }

  ScrollPage page;
  QWidget* left = new QWidget;
  QWidget* right = new QWidget;
};

TEST_F(ScrollPageTest, StandSideBySideWhereThereIsRoom) {
  Resize(520, 220);
  EXPECT_EQ(left->y(), right->y());
  EXPECT_GE(right->x(), left->x() + left->width());
  EXPECT_FALSE(page.horizontalScrollBar()->isVisible());
  EXPECT_FALSE(page.verticalScrollBar()->isVisible());
}

TEST_F(ScrollPageTest, StandBelowEachOtherWhereThePageIsTooNarrow) {
  Resize(400, 220);
  EXPECT_EQ(left->x(), right->x());
  EXPECT_GE(right->y(), left->y() + left->height());
  EXPECT_FALSE(page.horizontalScrollBar()->isVisible());
  EXPECT_TRUE(page.verticalScrollBar()->isVisible());
}

TEST_F(ScrollPageTest, MakeRoomForTheBarThatALowPageNeeds) {
  Resize(515, 150);
  EXPECT_FALSE(page.horizontalScrollBar()->isVisible()) << "510 and a bar are more than 515";
  EXPECT_TRUE(page.verticalScrollBar()->isVisible());
}

TEST_F(ScrollPageTest, GoBackSideBySideWhenThePageGrowsOrAPartCloses) {
  Resize(400, 220);
  Resize(520, 220);
  EXPECT_EQ(left->y(), right->y());
  Resize(400, 220);
  right->hide();
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  EXPECT_FALSE(page.verticalScrollBar()->isVisible());
}

}  // namespace
}  // namespace lignara
