// The rim that shows where the focus is.

#include "desktop/kit/focus_mark.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/tool_window.h"

namespace lignara {
namespace {

class FocusMarkTest : public testing::Test {
 protected:
  FocusMarkTest() {
    auto* rows = new QVBoxLayout(&window);
    rows->setContentsMargins(20, 20, 20, 20);
    rows->addWidget(first);
    rows->addWidget(second);
    rows->addWidget(field);
    new FocusMark(&window);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }

  /// How many pixels just around a widget have the colour of chosen things.
  int RimAround(const QWidget* widget) {
    QApplication::processEvents();
    const QImage image = window.grab().toImage();
    const QColor rim = window.palette().color(QPalette::Highlight);
    const QRect around = widget->geometry().adjusted(-2, -2, 2, 2);
    int found = 0;
    for (int x = around.left(); x <= around.right(); ++x) {
      for (const int y : {around.top() + 1, around.bottom() - 1}) {
        if (image.pixelColor(x, y) == rim) ++found;
      }
    }
    return found;
  }

  QWidget window;
  QPushButton* first = new QPushButton("First");
  QPushButton* second = new QPushButton("Second");
  QLineEdit* field = new QLineEdit;
};

TEST_F(FocusMarkTest, StandsAroundTheWidgetThatHasTheFocus) {
  first->setFocus();
  EXPECT_GT(RimAround(first), first->width());
  EXPECT_EQ(RimAround(second), 0);
}

TEST_F(FocusMarkTest, GoesWithTheFocus) {
  first->setFocus();
  second->setFocus();
  EXPECT_EQ(RimAround(first), 0);
  EXPECT_GT(RimAround(second), second->width());
}

TEST_F(FocusMarkTest, LeavesFieldsTheirOwn) {
  first->setFocus();
  field->setFocus();
  EXPECT_EQ(RimAround(first), 0);
  for (const QObject* child : window.children()) {
    const auto* widget = qobject_cast<const QWidget*>(child);
    const bool known = widget == first || widget == second || widget == field;
    EXPECT_TRUE(widget == nullptr || known || widget->isHidden()) << "a rim over the field";
  }
}

TEST_F(FocusMarkTest, GoesWhereItsWidgetGoes) {
  first->setFocus();
  window.resize(window.width() + 200, window.height() + 100);
  EXPECT_GT(RimAround(first), first->width());
}

TEST_F(FocusMarkTest, LetsTheMouseThrough) {
  first->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(window.childAt(first->geometry().center()), first);
}

}  // namespace
}  // namespace lignara
