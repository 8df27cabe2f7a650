// While a session is played: a bar above all, Cancel, and no hand in the windows. And at the end a
// list of what would have been said.

#include "desktop/session/play_progress.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "desktop/kit/text.h"
#include "desktop/session/play_report.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

template <typename Widget>
Widget* TopLevel() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* found = dynamic_cast<Widget*>(widget);
    if (found != nullptr && widget->isVisible()) return found;
  }
  return nullptr;
}

/// The program with a user at the screen: dialogs come up.
class PlayedForAUserTest : public testing::Test {
 protected:
  PlayedForAUserTest() {
    program.platform.SetRespondent(nullptr);
    sessions.ShowProgressAfter(0);
  }

  /// Plays lines; `during` is called ahead of each, `after` when the list of the end is up.
  bool Play(const QStringList& lines, std::function<void()> during) {
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [during] {
      if (TopLevel<PlayProgress>() != nullptr) during();
    });
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, [this] { ReadList(); });
    look.start(1);
    close.start(20);
    return sessions.PlayAndTell(lines, "/home/me/roof.lig", "Open Session");
  }

  /// Reads the dialog at the end and leaves it by Return.
  void ReadList() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog->windowTitle() != "Open Session") return;
    head = dialog->findChildren<QLabel*>().last()->text();
    if (auto* list = dialog->findChild<QListWidget*>()) {
      QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
      copied = QGuiApplication::clipboard()->text();
    }
    QTest::keyClick(dialog, leave);
  }

  OpenDesktop program;
  Sessions sessions{program.session, program.platform};
  QString head;
  QString copied;
  Qt::Key leave = Qt::Key_Return;
};

/// Lines that take a while and open a modal window.
QStringList LongSession() {
  QStringList lines = {"press \"KINGPOST\""};
  for (int i = 0; i < 4000; ++i) {
    lines << "window TR_INPUT" << QString("enter \"Total Length (ft)\" %1").arg(20 + i % 10);
  }
  return lines;
}

TEST_F(PlayedForAUserTest, CancelIsReachedAboveAModalWindow) {
  ASSERT_FALSE(Play(LongSession(), [this] {
    if (program.platform.FindWindow("TR_INPUT") == nullptr) return;
    auto* bar = TopLevel<PlayProgress>();
    if (QApplication::activeModalWidget() != bar) return;  // it comes up with one of the next lines
    auto* cancel = bar->findChild<QPushButton*>();
    QTest::mouseClick(bar->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      cancel->mapTo(bar, cancel->rect().center()));
  }));
  EXPECT_TRUE(head.startsWith("Cancelled after ")) << FromQt(head);
  EXPECT_TRUE(head.contains("of roof.lig.\nWhat was built so far is on the screen."));
  EXPECT_NE(program.platform.FindWindow("TR_INPUT"), nullptr) << "what was built stays";
  EXPECT_EQ(TopLevel<PlayProgress>(), nullptr) << "the bar goes";
}

TEST_F(PlayedForAUserTest, EscapeCancelsWhereverTheFocusIs) {
  leave = Qt::Key_Escape;
  ASSERT_FALSE(Play(LongSession(), [this] {
    if (program.platform.FindWindow("TR_INPUT") == nullptr) return;
    // It comes up with one of the next lines.
    if (QGuiApplication::focusWindow() != TopLevel<PlayProgress>()->windowHandle()) return;
    QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Escape);
  }));
  EXPECT_TRUE(head.startsWith("Cancelled after ")) << FromQt(head);
  EXPECT_NE(program.platform.FindWindow("TR_INPUT"), nullptr) << "Escape did not go to the window";
}

TEST_F(PlayedForAUserTest, AHandInTheWindowsDoesNothing) {
  QStringList lines = LongSession();
  lines.resize(601);
  int meddled = 0;
  ASSERT_TRUE(Play(lines, [&] {
    ToolWindow* window = program.platform.FindWindow("TR_INPUT");
    if (window == nullptr || ++meddled > 5) return;
    QTest::keyClick(window->windowHandle(), Qt::Key_7);
    QTest::keyClick(window->windowHandle(), Qt::Key_W, Qt::ControlModifier);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
  }));
  EXPECT_GT(meddled, 0);
  EXPECT_EQ(FromQt(sessions.record().Lines().join('\n')),
            "press \"KINGPOST\"\nwindow TR_INPUT\nenter \"Total Length (ft)\" 29");
  EXPECT_EQ(head, "") << "nothing is told";
}

TEST_F(PlayedForAUserTest, TheBarComesOnlyWhenAPlayTakesLong) {
  sessions.ShowProgressAfter(60'000);
  bool seen = false;
  ASSERT_TRUE(Play(LongSession().mid(0, 201), [&seen] { seen = true; }));
  EXPECT_FALSE(seen);
}

TEST_F(PlayedForAUserTest, TheWindowOfTheLastLineIsInFront) {
  ASSERT_TRUE(Play({"press \"Ply Wood\"", "press \"Glu-Lam Data Base\"", "window ply"}, [] {}));
  QApplication::processEvents();
  EXPECT_EQ(QApplication::activeWindow(), program.Window("ply"));
}

TEST_F(PlayedForAUserTest, TheListTellsAllLines) {
  QStringList lines = {"# mine", ""};
  for (int i = 0; i < 30; ++i) lines << "press \"Multi-Span Beam\"";
  lines << "screenshot a.png"
        << "press \"Nonsense\"";
  ASSERT_FALSE(Play(lines, [] {}));
  EXPECT_EQ(FromQt(head),
            "Stopped at roof.lig:34: no control is named \"Nonsense\".\n"
            "What was built so far is on the screen.");
  EXPECT_EQ(FromQt(copied),
            "Said\n    You must enter at least 2 spans (30 times)\nLeft out\n"
            "    screenshot a.png");
}

TEST_F(PlayedForAUserTest, WhereThereIsNothingToTellTheStatusLineSaysSo) {
  ASSERT_TRUE(Play({"# mine", "press \"KINGPOST\"", "window TR_INPUT"}, [] {}));
  EXPECT_EQ(head, "");
  EXPECT_EQ(FromQt(program.Window("TR_INPUT")->findChild<QStatusBar*>()->currentMessage()),
            "Played 2 lines of roof.lig");
}

TEST(PlayReportTest, EqualLinesAreOneWithTheirNumber) {
  EXPECT_EQ(Folded({"a", "b", "a", "a"}), (QStringList{"a (3 times)", "b"}));
  EXPECT_EQ(Folded({}), QStringList());
}

TEST(PlayReportTest, TellsHowAPlayEnded) {
  SessionPlay play;
  play.done = 1;
  EXPECT_EQ(FromQt(HowItEnded(play, "/a/roof.lig")), "Played 1 line of roof.lig");
  play.done = 143;
  EXPECT_EQ(FromQt(HowItEnded(play, "/a/roof.lig")), "Played 143 lines of roof.lig");
  EXPECT_EQ(FromQt(HowItEnded(play, "/a/1-2.journal")), "Played 143 lines of the session");
  play.stop = "/a/roof.lig:57: the list has no row 9";
  EXPECT_EQ(FromQt(HowItEnded(play, "/a/roof.lig")),
            "Stopped at roof.lig:57: the list has no row 9.\n"
            "What was built so far is on the screen.");
}

}  // namespace
}  // namespace lignara
