// What stands beside the rows of a list, in an empty list, and on results that are out of date.

#include "desktop/kit/list_notes.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "desktop/kit/binding.h"

namespace lignara {
namespace {

class ListNotesTest : public testing::Test {
 protected:
  ListNotesTest() {
    list.resize(200, 120);
    binding.List(&list, &rows);
    binding.Notes(&list, &notes);
    binding.WhyEmpty(&list, [this] { return reason; });
    list.show();
    binding.Refresh();
  }

  /// Pixels of a row's right end that are not of its ground.
  int InkAtTheRight(int row) {
    const QRect room = list.visualItemRect(list.item(row));
    const QImage image = list.viewport()->grab().toImage();
    const QColor ground = image.pixelColor(room.right() - 40, room.center().y());
    int ink = 0;
    for (int x = room.right() - 20; x < room.right(); ++x) {
      for (int y = room.top(); y <= room.bottom(); ++y) {
        if (image.pixelColor(x, y) != ground) ++ink;
      }
    }
    return ink;
  }

  std::vector<std::string> rows = {"TL 1 = 5.00", "CL 1 = 6.00"};
  std::vector<RowNote> notes = {{"C", "compression", false}};
  std::string reason = "needs a run";
  QListWidget list;
  Binding binding{[] {}};
};

TEST_F(ListNotesTest, StandAtTheRightEndOfTheirRow) {
  EXPECT_GT(InkAtTheRight(0), 0);
  EXPECT_EQ(InkAtTheRight(1), 0);
}

TEST_F(ListNotesTest, AreNoPartOfTheRowsText) { EXPECT_EQ(list.item(0)->text(), "TL 1 = 5.00"); }

TEST_F(ListNotesTest, AreToldInWords) { EXPECT_EQ(list.item(0)->toolTip(), "compression"); }

TEST_F(ListNotesTest, FollowTheRecord) {
  notes.clear();
  binding.Refresh();
  EXPECT_EQ(InkAtTheRight(0), 0);
}

TEST_F(ListNotesTest, TintARowThatIsBeyondWhatIsAllowed) {
  const QPoint place = list.visualItemRect(list.item(0)).center() + QPoint(30, 0);
  const QColor before = list.viewport()->grab().toImage().pixelColor(place);
  notes[0].warned = true;
  binding.Refresh();
  const QColor after = list.viewport()->grab().toImage().pixelColor(place);
  EXPECT_LT(after.blue(), before.blue() - 20);
}

TEST_F(ListNotesTest, AnEmptyListSaysWhyItIsEmpty) {
  auto* words = list.viewport()->findChild<QLabel*>();
  ASSERT_NE(words, nullptr);
  EXPECT_TRUE(words->isHidden());
  rows = {""};  // the blank first row of result lists
  binding.Refresh();
  EXPECT_FALSE(words->isHidden());
  EXPECT_EQ(words->text(), "needs a run");
  reason.clear();
  binding.Refresh();
  EXPECT_TRUE(words->isHidden());
}

TEST(OutOfDate, GreysAResultAndSaysWhyUntilItIsTakenBack) {
  QLineEdit result("12.00");
  Binding binding{[] {}};
  bool old = false;
  binding.OutOfDate(&result, [&old] { return old; });
  binding.Refresh();
  const QColor plain = result.palette().color(QPalette::Text);
  old = true;
  binding.Refresh();
  EXPECT_NE(result.palette().color(QPalette::Text), plain);
  EXPECT_EQ(result.toolTip(), "Out of date: the input has changed since");
  old = false;
  binding.Refresh();
  EXPECT_EQ(result.palette().color(QPalette::Text), plain);
  EXPECT_EQ(result.toolTip(), "");
}

}  // namespace
}  // namespace lignara
