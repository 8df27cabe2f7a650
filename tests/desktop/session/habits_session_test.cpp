// What hands and keys do besides plain clicks and typing: what acts is recorded so that its play
// ends the same, what only looks is not recorded.

#include <QAbstractButton>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "desktop/kit/picture_widget.h"
#include "tests/desktop/session/recorded_user.h"

namespace lignara {
namespace {

using Kind = UserAction::Kind;

class HabitsSessionTest : public RecordedUser {
 protected:
  void OpenKingPost() {
    user.OpenKingPost();
    user.Play({"window TRUSS"});
  }
};

QPoint MiddleOf(const QListWidget* list, int row) {
  return list->visualItemRect(list->item(row)).center();
}

TEST_F(HabitsSessionTest, ADoubleClickOnARowChoosesItAndPressesTheButton) {
  user.Play({"press \"Pure Wood Data Base\"", "window QUESTION", "press \"BEAM\"", "window WTYPETR",
             "press \"Width\" \"4\"", "press \"Depth\" \"12\"", "press \"Accept\"",
             "press \"Wood Type Data Base\"", "window wdb", "press \"Western Woods\"",
             "select \"Data Base File to Load\" \"Spruce-Pine-Fir\""});
  auto* grades = Find<QListWidget>("wdb", {"Grades"}, Kind::Select);
  const QPoint place = grades->viewport()->mapTo(grades->window(), MiddleOf(grades, 1));
  QTest::mouseClick(grades->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseDClick(grades->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_TRUE(Recorded().ends_with("select \"Grades\" 1\npress \"OK\"")) << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, ADraggedBarIsOneLine) {
  OpenKingPost();
  auto* bar = Find<QScrollBar>("TRUSS", {"Pan"}, Kind::Scroll);
  for (const int value : {3, 9, 17, 12}) bar->setSliderPosition(value);
  EXPECT_TRUE(Recorded().ends_with("window TRUSS\nscroll \"Pan\" 12")) << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, LookingNearerAtAPictureIsNoAction) {
  OpenKingPost();
  const std::string before = Recorded();
  auto* picture = Find<Picture>("TRUSS", {"Truss"}, Kind::Click);
  const QPointF place = picture->rect().center();
  QWheelEvent wheel(place, picture->mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(picture, &wheel);
  picture->setFocus();
  user.PressKey("TRUSS", Qt::Key_Plus);
  user.PressKey("TRUSS", Qt::Key_Left);
  user.PressKey("TRUSS", Qt::Key_Home);
  EXPECT_EQ(Recorded(), before);
}

TEST_F(HabitsSessionTest, TheWheelOverAListOrAFieldIsNoAction) {
  OpenKingPost();
  const std::string before = Recorded();
  for (QWidget* widget :
       {static_cast<QWidget*>(Find<QListWidget>("TRUSS", {"Top Node Loads (lbs)"}, Kind::Select)),
        static_cast<QWidget*>(Find<QLineEdit>("TRUSS", {"Top Node Loads (lbs)"}, Kind::Enter))}) {
    const QPointF place = widget->rect().center();
    QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
  }
  EXPECT_EQ(Recorded(), before);
}

TEST_F(HabitsSessionTest, CopyingIsNoAction) {
  OpenKingPost();
  auto* list = Find<QListWidget>("TRUSS", {"Top Node Loads (lbs)"}, Kind::Select);
  list->setFocus();
  const std::string before = Recorded();
  user.PressKey("TRUSS", Qt::Key_C, Qt::ControlModifier);
  for (QAction* action : list->actions()) action->trigger();
  EXPECT_EQ(Recorded(), before);
}

TEST_F(HabitsSessionTest, TextThatAnInputMethodComposesIsEntered) {
  auto* field = Find<QLineEdit>("main", {"Enter No. of Spans"}, Kind::Enter);
  field->setFocus();
  QInputMethodEvent composing("1", {});
  QApplication::sendEvent(field, &composing);
  EXPECT_EQ(Recorded(), "");
  QInputMethodEvent done;
  done.setCommitString("12");
  QApplication::sendEvent(field, &done);
  EXPECT_EQ(Recorded(), "enter \"Enter No. of Spans\" 12");
}

TEST_F(HabitsSessionTest, ArrowKeysChooseInAGroup) {
  user.Play({"press \"Single Span Beams\"", "window MLSP"});
  Find<QAbstractButton>("MLSP", {"Left Support", "Pinned"}, Kind::Press)->setFocus();
  user.PressKey("MLSP", Qt::Key_Up);
  EXPECT_TRUE(Recorded().ends_with("window MLSP\npress \"Left Support\" \"Fixed\"")) << Recorded();
  user.PressKey("MLSP", Qt::Key_Down);
  user.PressKey("MLSP", Qt::Key_Down);
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, SpacePressesWhatHasTheFocus) {
  OpenKingPost();
  Find<QAbstractButton>("TRUSS", {"Deflections"}, Kind::Press)->setFocus();
  user.PressKey("TRUSS", Qt::Key_Space);
  EXPECT_TRUE(Recorded().ends_with("press \"Deflections\"")) << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, AClickIntoNothingIsNoAction) {
  user.Play({"press \"Single Span Beams\"", "window MLSP", "enter \"L(ft)\" 12"});
  const std::string before = Recorded();
  QTest::mouseClick(user.Window("MLSP")->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(4, 200));
  EXPECT_EQ(Recorded(), before);
  user.Type("MLSP", "5");
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, AWindowClosedByKeyOrFrameIsClosed) {
  user.Play({"press \"Glu-Lam Data Base\"", "press \"Ply Wood\"", "window GL"});
  user.PressKey("GL", Qt::Key_W, Qt::ControlModifier);
  user.Window("ply")->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(user.platform.OpenWindows(), QStringList{"main"});
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, HelpIsOpenedReadAndClosed) {
  user.PressKey("main", Qt::Key_F1);
  user.PressKey("HELP", Qt::Key_PageDown);
  user.PressKey("HELP", Qt::Key_F, Qt::ControlModifier);
  user.Type("HELP", "truss");
  user.PressKey("HELP", Qt::Key_Return);
  EXPECT_EQ(Recorded(),
            "menu \"Help\" \"Help\"\nwindow HELP\nenter \"Find\" truss\npress \"Next\"");
  ExpectPlayedTheSame();
}

TEST_F(HabitsSessionTest, TheWordsAboutTheProgramAreOpenedAndLeft) {
  user.Play({"menu \"Help\" \"About...\""});
  user.PressKey("ABOUT", Qt::Key_Escape);
  EXPECT_EQ(Recorded(), "menu \"Help\" \"About...\"\nwindow ABOUT\npress \"OK\"");
  ExpectPlayedTheSame();
}

}  // namespace
}  // namespace lignara
