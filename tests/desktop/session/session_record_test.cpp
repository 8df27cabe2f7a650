// What a user does with mouse and keyboard, as the lines of a script.

#include "desktop/session/session_record.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class SessionRecordTest : public testing::Test {
 protected:
  SessionRecordTest() { desktop.platform.SetListener(&record); }
  ~SessionRecordTest() override { desktop.platform.SetListener(nullptr); }

  void OpenKingPost() {
    desktop.OpenKingPost();
    record.Clear();
  }

  std::string Recorded() const { return FromQt(record.Lines().join('\n')); }

  template <typename Widget>
  Widget* Find(const char* window, const char* caption, UserAction::Kind action) {
    return static_cast<Widget*>(
        FindControl(desktop.Window(window), {caption}, {AllVisible(KindsOf(action))}));
  }

  OpenDesktop desktop;
  SessionRecord record;
};

TEST_F(SessionRecordTest, AFieldIsOneLineWithItsLastText) {
  Find<QLineEdit>("main", "Enter No. of Spans", UserAction::Kind::Enter)->setFocus();
  desktop.Type("main", "25");
  desktop.PressKey("main", Qt::Key_Backspace);
  EXPECT_EQ(Recorded(), "enter \"Enter No. of Spans\" 2");
}

TEST_F(SessionRecordTest, ReturnIsThePressThatItMeans) {
  Find<QLineEdit>("main", "Enter No. of Spans", UserAction::Kind::Enter)->setFocus();
  desktop.Type("main", "1");
  desktop.PressKey("main", Qt::Key_Return);
  EXPECT_EQ(Recorded(), "enter \"Enter No. of Spans\" 1\npress \"Multi-Span Beam\"");
}

TEST_F(SessionRecordTest, ATextThatWouldBeReadOtherwiseIsQuoted) {
  desktop.Play({"enter \"Enter No. of Spans\" \"a \\\"b\\\" \\\\\""});
  EXPECT_EQ(Recorded(), "enter \"Enter No. of Spans\" \"a \\\"b\\\" \\\\\"");
}

TEST_F(SessionRecordTest, APanelStandsAheadOnlyWhereTheCaptionStandsTwice) {
  OpenKingPost();
  desktop.Play({"window TRUSS", "press \"Deflections\"", "press \"Deflections\" \"Cancel\"",
                "press \"Deflections\"", "press \"Unif. Load (lb/ft)\"",
                "press \"Deflections\" \"Cancel\""});
  EXPECT_EQ(Recorded(),
            "window TRUSS\npress \"Deflections\"\npress \"Cancel\"\npress \"Deflections\"\n"
            "press \"Unif. Load (lb/ft)\"\npress \"Deflections\" \"Cancel\"");
}

TEST_F(SessionRecordTest, AnAnswerStandsAheadOfWhatAsksForIt) {
  OpenKingPost();
  desktop.Play({"answer cancel", "menu \"Files\" \"Save Output to Text File...\""});
  EXPECT_EQ(Recorded(),
            "window TRUSS\nanswer cancel\nmenu \"Files\" \"Save Output to Text File...\"");
}

TEST_F(SessionRecordTest, APlaceOnAPictureIsNotRounded) {
  OpenKingPost();
  Find<Picture>("TRUSS", "Truss", UserAction::Kind::Click)->PressAt(1234.5678901234567, 0.1);
  EXPECT_EQ(Recorded(), "window TRUSS\nclick \"Truss\" 1234.5678901234567 0.1");
}

TEST_F(SessionRecordTest, WhatTheProgramDoesByItselfIsNotRecorded) {
  OpenKingPost();
  desktop.Play({"window TRUSS", "press \"Run\""});
  desktop.platform.RefreshWindows();
  EXPECT_EQ(Recorded(), "window TRUSS\npress \"Run\"");
}

TEST_F(SessionRecordTest, EscapeInAPanelIsAKey) {
  OpenKingPost();
  desktop.Play({"menu \"Files\" \"Headings...\""});
  desktop.PressKey("TRUSS", Qt::Key_Escape);
  ASSERT_EQ(record.actions().size(), 2U);
  EXPECT_TRUE(record.actions()[1].line.startsWith("key ")) << Recorded();
  EXPECT_TRUE(record.actions()[1].line.endsWith(" Escape")) << Recorded();
}

TEST_F(SessionRecordTest, ComingIntoAFieldThatActsOnItIsAKeyThatTypesNothing) {
  desktop.Play({"press \"Single Span Beams\"", "window MLSP", "press \"Level Uniform\""});
  record.Clear();
  desktop.Play({"key \"L(ft)\" Home"});
  EXPECT_EQ(Recorded(), "window MLSP\nkey \"L(ft)\" F24");
  desktop.Play({"enter \"L(ft)\" 12"});
  EXPECT_EQ(Recorded(), "window MLSP\nenter \"L(ft)\" 12") << "which brings the focus itself";
}

TEST_F(SessionRecordTest, AClickIntoASizeOfAGlulamMemberEmptiesIt) {
  desktop.Play({"press \"Glu-Lam Data Base\"", "window GL"});
  record.Clear();
  auto* field = Find<QLineEdit>("GL", "d(in)", UserAction::Kind::Enter);
  QTest::mouseClick(field, Qt::LeftButton);
  EXPECT_EQ(Recorded(), "window GL\nenter \"d(in)\" \"\"");
}

TEST_F(SessionRecordTest, SeveralLinesAreEnteredAsOne) {
  auto* field = Find<QLineEdit>("main", "Enter No. of Spans", UserAction::Kind::Enter);
  field->setFocus();
  QGuiApplication::clipboard()->setText("2\n3\r\n\t4");
  desktop.PressKey("main", Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(FromQt(field->text()), "2 3  \t4");
  EXPECT_EQ(Recorded(), "enter \"Enter No. of Spans\" \"2 3  \t4\"");
}

TEST_F(SessionRecordTest, ATextThatIsRefusedLeavesWhatWasEnteredBefore) {
  desktop.Play({"press \"Single Span Beams\"", "window MLSP"});
  record.Clear();
  desktop.Play({"enter \"L(ft)\" 12", "enter \"L(ft)\" 14", "enter \"L(ft)\" 1e39"});
  EXPECT_EQ(Recorded(), "window MLSP\nenter \"L(ft)\" 14\nenter \"L(ft)\" 1e39")
      << "the length is 14 still";
}

TEST_F(SessionRecordTest, APausedRecordIsSilent) {
  record.Pause(true);
  desktop.Play({"press \"KINGPOST\""});
  EXPECT_EQ(Recorded(), "");
}

}  // namespace
}  // namespace lignara
