// "Repeat With...": the session once more for each value, out of sight.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QListWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/kit/text.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"
#include "tests/desktop/screen_text.h"

namespace lignara {
namespace {

/// A load of 1000 lbs on a simple beam of 10 ft, 2 ft from its left end: R1 = 1000 (10 - A) / 10.
class RepeatTest : public testing::Test {
 protected:
  RepeatTest() {
    desktop.Play({"press \"Single Span Beams\"", "window MLSP", "enter \"L(ft)\" 10",
                  "press \"Point Load\"", "enter \"A(ft)\" 2", "enter \"P(lbs)\" 1000",
                  "press \"Add New\"", "press \"RUN\"", "window main"});
  }

  void Open() { desktop.Play({"menu \"Files\" \"Repeat With...\"", "window REPEAT"}); }

  void Ask(const char* values) {
    desktop.Play({"select \"Entered in the Session\" \"MLSP: A(ft) = 2\"",
                  ("enter \"Values\" " + FromQt(Quoted(values))).c_str(),
                  "select \"Read at the End\" \"MLSP: R1 (lbs)\"",
                  "key \"Read at the End\" Space"});
  }

  /// From now on nobody stands in the user's place: a run goes on by the event loop.
  void LookOn() { desktop.platform.SetRespondent(nullptr); }

  /// The rows of the table, `|` between the cells.
  QStringList Table() {
    const auto* table = desktop.Window("REPEAT")->findChild<QTableWidget*>();
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < table->columnCount(); ++column) {
        cells << table->item(row, column)->text();
      }
      rows << cells.join('|');
    }
    return rows;
  }

  std::string Read(const char* control) {
    desktop.Play({("read \"" + std::string(control) + "\"").c_str()});
    return FromQt(desktop.printed.last());
  }

  bool CanCancel() {
    desktop.Play({"state \"Cancel\""});
    return desktop.printed.last().contains(" enabled");
  }

  void WaitForRows(int rows) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return Table().size() >= rows; }, 30000));
  }

  OpenDesktop desktop;
  Sessions sessions{desktop.session, desktop.platform};
};

TEST_F(RepeatTest, GivesTheReactionForEachPlaceOfTheLoad) {
  Open();
  Ask("1, 2.5, 5, 7.5");
  desktop.Play({"press \"Run\""});
  EXPECT_EQ(Table(), QStringList({"1|900.00", "2.5|750.00", "5|500.00", "7.5|250.00"}));
  EXPECT_EQ(Read("Status"), "value \"4 of 4 values played\"");
}

TEST_F(RepeatTest, LeavesWindowsAndSessionAsTheyAre) {
  const QStringList screen = ScreenText(desktop.platform);
  const QStringList lines = sessions.record().Lines();
  Open();
  Ask("1..9");
  desktop.Play({"press \"Run\"", "press \"Copy\"", "close"});
  EXPECT_EQ(ScreenText(desktop.platform), screen);
  EXPECT_EQ(FromQt(sessions.record().Lines().join('\n')), FromQt(lines.join('\n')));
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "MLSP"}));
}

/// A window may do something when the user comes back to it. From here he comes back as from a box.
TEST_F(RepeatTest, ComingBackFromItIsNoComingBack) {
  desktop.Play({"window MLSP"});
  const QStringList lines = sessions.record().Lines();
  sessions.Repeat();
  desktop.Play({"window REPEAT", "window MLSP", "window REPEAT", "close", "window MLSP"});
  EXPECT_EQ(FromQt(sessions.record().Lines().join('\n')), FromQt(lines.join('\n')));
}

TEST_F(RepeatTest, AValueThatIsRefusedSaysSoInItsRow) {
  Open();
  Ask("4, 12");
  desktop.Play({"press \"Run\""});
  EXPECT_EQ(Table(), QStringList({"4|600.00|", "12|0.00|YOUR LOAD IS OFF OF THE SPAN !"}));
}

TEST_F(RepeatTest, CancelKeepsTheRowsSoFar) {
  Open();
  Ask("0..9 step 0.001");
  LookOn();
  desktop.Play({"press \"Run\""});
  EXPECT_TRUE(CanCancel());
  EXPECT_EQ(desktop.FocusIn("REPEAT"), "Cancel");
  WaitForRows(3);
  desktop.PressKey("REPEAT", Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !CanCancel(); }, 30000));
  EXPECT_EQ(desktop.FocusIn("REPEAT"), "Run");
  const qsizetype rows = Table().size();
  EXPECT_GE(rows, 3);
  EXPECT_LT(rows, 9001);
  EXPECT_EQ(Read("Status"),
            "value \"" + FromQt(QString::number(rows)) + " of 9001 values played; cancelled\"");
  EXPECT_EQ(FromQt(Table()[2]), "0.002|999.80|");
}

TEST_F(RepeatTest, OtherWindowsCanBeWorkedInWhileItRuns) {
  Open();
  Ask("1..9 step 0.01");
  LookOn();
  desktop.Play({"press \"Run\"", "window MLSP", "enter \"A(ft)\" 7", "read \"A(ft)\""});
  EXPECT_EQ(FromQt(desktop.printed.last()), "value \"7\"");
  WaitForRows(1);
  EXPECT_EQ(desktop.FocusIn("MLSP"), "A(ft)");
  desktop.Play({"read \"A(ft)\""});
  EXPECT_EQ(FromQt(desktop.printed.last()), "value \"7\"");
  EXPECT_EQ(FromQt(Table()[0]), "1.00|900.00") << "as the session stood";
}

TEST_F(RepeatTest, CanBeClosedWhileItRuns) {
  Open();
  Ask("0..9 step 0.001");
  LookOn();
  desktop.Play({"press \"Run\""});
  WaitForRows(1);
  desktop.Play({"close"});
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "MLSP"}));
  desktop.Play({"window main"});
  Open();
  EXPECT_TRUE(Table().isEmpty());
  EXPECT_FALSE(CanCancel());
}

TEST_F(RepeatTest, ClosesWithTheProgram) {
  Open();
  Ask("0..9 step 0.001");
  LookOn();
  desktop.Play({"press \"Run\"", "window main", "menu \"Files\" \"Exit\""});
  EXPECT_TRUE(desktop.platform.OpenWindows().isEmpty());
}

TEST_F(RepeatTest, WorksByTheKeyboardAlone) {
  Open();
  LookOn();
  EXPECT_EQ(desktop.FocusIn("REPEAT"), "Entered in the Session");
  desktop.PressKey("REPEAT", Qt::Key_End);  // P(lbs)
  desktop.PressKey("REPEAT", Qt::Key_Tab);
  EXPECT_EQ(desktop.FocusIn("REPEAT"), "Read at the End");
  for (int row = 0; row < 2; ++row) desktop.PressKey("REPEAT", Qt::Key_Down);
  desktop.PressKey("REPEAT", Qt::Key_Space);  // R1 (lbs)
  desktop.PressKey("REPEAT", Qt::Key_V, Qt::AltModifier);
  EXPECT_EQ(desktop.FocusIn("REPEAT"), "Values");
  desktop.Type("REPEAT", "1000,2000");
  desktop.PressKey("REPEAT", Qt::Key_Return);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !CanCancel(); }, 30000));
  // 1000 (10 - 2) / 10.
  EXPECT_EQ(Table(), QStringList({"1000|800.00", "2000|1600.00"}));
  EXPECT_EQ(desktop.Walk("REPEAT", 4), QStringList({"Run", "Results", "Copy", "Save as CSV..."}));
  desktop.PressKey("REPEAT", Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(FromQt(QGuiApplication::clipboard()->text()),
            "P(lbs)\tR1 (lbs)\n1000\t800.00\n2000\t1600.00");
}

TEST_F(RepeatTest, ATableIsSavedAsCsvOrTheFailureTold) {
  QTemporaryDir folder;
  const QString path = folder.filePath("table.csv");
  Open();
  Ask("1, 12");
  desktop.Play({"press \"Run\"", FromQt("answer file " + Quoted(path)).c_str()});
  desktop.PressKey("REPEAT", Qt::Key_S, Qt::ControlModifier);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().toStdString(),
            "A(ft),R1 (lbs),Said\n1,900.00,\n12,0.00,YOUR LOAD IS OFF OF THE SPAN !\n");
  EXPECT_EQ(Read("Status"), "value \"Saved to " + FromQt(path) + "\"");
  desktop.Play({"answer file \"/no such folder/a.csv\"", "press \"Save as CSV...\""});
  EXPECT_EQ(FromQt(desktop.printed.last()),
            "message \"Lignara\" \"Cannot write /no such folder/a.csv\"");
  EXPECT_EQ(Table().size(), 2);
}

TEST_F(RepeatTest, ATableStaysWhenAnActionIsTakenBack) {
  Open();
  Ask("1");
  desktop.Play({"press \"Run\"", "window main", "menu \"Files\" \"Undo\"", "window REPEAT"});
  EXPECT_EQ(Table(), QStringList("1|900.00"));
}

TEST_F(RepeatTest, ChosenAgainItTakesInWhatWasDoneSince) {
  Open();
  Ask("1");
  desktop.Play({"press \"Run\"", "window MLSP", "enter \"P(lbs)\" 500", "press \"Add New\"",
                "press \"RUN\"", "window main"});
  const auto* table = desktop.Window("REPEAT")->findChild<QTableWidget*>();
  EXPECT_FALSE(table->property("outOfDate").toBool());
  Open();
  EXPECT_TRUE(table->property("outOfDate").toBool());
  desktop.Play({"press \"Run\""});
  // The load that is moved, and 500 lbs at 2 ft, where the field stood.
  EXPECT_EQ(Table(), QStringList("1|1350.00"));
  EXPECT_FALSE(table->property("outOfDate").toBool());
}

TEST_F(RepeatTest, FieldsEnteredSeveralTimesAreToldApart) {
  desktop.Play({"window MLSP", "press \"RUN\"", "enter \"P(lbs)\" 500", "window main"});
  Open();
  const auto* list = desktop.Window("REPEAT")->findChild<QListWidget*>();
  constexpr int kNoteRole = Qt::UserRole + 1;
  EXPECT_EQ(FromQt(list->item(2)->text()), "MLSP: P(lbs) = 1000");
  EXPECT_EQ(FromQt(list->item(2)->data(kNoteRole).toString()), "1 of 2");
  EXPECT_EQ(FromQt(list->item(3)->data(kNoteRole).toString()), "2 of 2");
  EXPECT_EQ(FromQt(list->item(1)->data(kNoteRole).toString()), "");
}

}  // namespace
}  // namespace lignara
