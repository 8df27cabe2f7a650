// Sessions: saved, opened, taken back.

#include "desktop/session/sessions.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStatusBar>
#include <QTemporaryDir>

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "tests/desktop/open_desktop.h"
#include "tests/desktop/screen_text.h"

namespace lignara {
namespace {

/// The program with a session, and a folder for its files.
class SessionProgram : public OpenDesktop {
 public:
  SessionProgram() { QApplication::processEvents(); }

  void LoadKingPost() {
    OpenKingPost();
    Play({"select \"Top Node Loads (lbs)\" 1", "enter \"Top Node Loads (lbs)\" 1000",
          "press \"Enter\"", "press \"Run\""});
  }

  void Save(const QString& path) {
    Play({"window main"});
    Line("answer file " + Quoted(path));
    Play({"menu \"Files\" \"Save Session...\""});
  }

  void Open(const QString& path) {
    Play({"window main"});
    if (sessions.CanUndo()) Play({"answer yes"});
    Line("answer file " + Quoted(path));
    Play({"menu \"Files\" \"Open Session...\""});
  }

  void Line(const QString& line) { Play({FromQt(line).c_str()}); }
  /// The note in the status line of a window, which is cleared: it covers the window's own text.
  std::string Note(const char* window) {
    auto* status = Window(window)->findChild<QStatusBar*>();
    const QString note = status->currentMessage();
    status->clearMessage();
    return FromQt(note);
  }

  std::string Screen() const { return FromQt(ScreenText(platform).join('\n')); }
  /// The last box's text.
  std::string Told() const {
    const QStringList boxes = printed.filter("message ");
    return boxes.isEmpty() ? "" : FromQt(boxes.last());
  }

  Sessions sessions{session, platform};
};

class SessionsTest : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder.filePath(name); }

  QString Write(const QByteArray& text) const {
    QFile file(Path("written.lig"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  }

  QByteArray Read(const char* name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  QTemporaryDir folder;
  SessionProgram program;
};

TEST_F(SessionsTest, WhatIsSavedOpensAsItWas) {
  program.LoadKingPost();
  program.Save(Path("a.lig"));
  SessionProgram other;
  other.Open(Path("a.lig"));
  // The launcher came to the front to save.
  other.Play({"window main"});
  EXPECT_EQ(other.Screen(), program.Screen());
  EXPECT_EQ(other.Told(),
            "message \"Open Session\" \"AREA OR MOD. PROP. NOT SELECTED, NO DEF. WILL BE "
            "CALCULATED\\nNO STRESS WILL BE CALCULATED, NEED WOOD TYPE & SIZE\"")
      << "what the boxes of the run said";
  EXPECT_EQ(FromQt(other.sessions.record().LinesOfFirst(5).join('\n')),
            FromQt(program.sessions.record().LinesOfFirst(5).join('\n')));
}

TEST_F(SessionsTest, AFileIsAScriptUnderAHeadOfComments) {
  program.LoadKingPost();
  program.Save(Path("roof.lig"));
  const QStringList lines = QString(Read("roof.lig")).split('\n');
  EXPECT_TRUE(lines[1].startsWith("# program: Lignara 6.1")) << FromQt(lines[1]);
  EXPECT_TRUE(lines[2].startsWith("# date: ")) << FromQt(lines[2]);
  EXPECT_EQ(FromQt(lines[3]), "# title: roof");
  EXPECT_EQ(FromQt(lines[4]), "press \"KINGPOST\"");
  OpenDesktop plain;
  for (const QString& line : lines) plain.Play({FromQt(line).c_str()});
  EXPECT_EQ(FromQt(ScreenText(plain.platform).join('\n')), program.Screen());
}

TEST_F(SessionsTest, WorkOnTheScreenIsAskedForFirst) {
  program.LoadKingPost();
  const std::string before = program.Screen();
  program.Play({"window main", "answer no", "menu \"Files\" \"Open Session...\""});
  EXPECT_EQ(program.Screen(), before);
  EXPECT_EQ(
      FromQt(program.printed.last()),
      "ask \"Open Session\" \"All windows are closed, and what is not saved is lost. Go on?\"");
}

TEST_F(SessionsTest, ALineThatCannotBeCarriedOutStopsThePlayThere) {
  const QString path = Write("# mine\npress \"KINGPOST\"\npress \"Nonsense\"\npress \"FINK\"\n");
  program.Open(path);
  EXPECT_EQ(program.Told(),
            "message \"Open Session\" \"" + FromQt(path) +
                ":3: no control is named \\\"Nonsense\\\"\\nWhat was built so far is "
                "on the screen.\"");
  EXPECT_EQ(program.session.TrussType, "KINGPOST");
}

TEST_F(SessionsTest, BoxesAreAListAtTheEnd) {
  program.Open(Write("enter \"Enter No. of Spans\" 1\npress \"Multi-Span Beam\"\n"));
  EXPECT_EQ(program.Told(), "message \"Open Session\" \"You must enter at least 2 spans\"");
}

TEST_F(SessionsTest, NothingIsPrintedWrittenOrPictured) {
  const QString saved = Path("report.txt");
  const QString picture = Path("a.png");
  program.LoadKingPost();
  QStringList lines = program.sessions.record().Lines();
  lines << "answer file " + Quoted(saved) << "menu \"Files\" \"Save Output to Text File...\""
        << "screenshot " + Quoted(picture) << "picture \"Truss\" " + Quoted(picture)
        << "read \"Left Side\""
        << "window main"
        << "press \"Ply Wood\""
        << "window ply"
        << "press \"Standard Live Loads\""
        << "press \"Print\"";
  program.printed.clear();
  program.Open(Write(lines.join('\n').toUtf8()));
  EXPECT_FALSE(QFile::exists(saved));
  EXPECT_FALSE(QFile::exists(picture));
  EXPECT_TRUE(program.printed.filter("printed").isEmpty());
  EXPECT_TRUE(program.printed.filter("value").isEmpty());
  const std::string told = program.Told();
  for (const QString& part : {"Left out: saving " + saved, QString("Left out: printing"),
                              QString("Left out: screenshot"), QString("Left out: picture")}) {
    EXPECT_NE(told.find(FromQt(part)), std::string::npos) << FromQt(part) << " in " << told;
  }
}

TEST_F(SessionsTest, DefaultsForLaterRunsAreNotKept) {
  program.Open(
      Write("press \"Glu-Lam Data Base\"\nwindow GL\n"
            "press \"Set user adjustment as default\"\n"));
  EXPECT_EQ(
      program.Told(),
      "message \"Open Session\" \"Left out: keeping defaults for later runs of the program\"");
}

TEST_F(SessionsTest, ASessionDoesNotEndTheProgram) {
  program.Open(Write("press \"KINGPOST\"\nwindow main\nclose\nmenu \"Files\" \"Exit\"\n"));
  EXPECT_EQ(program.platform.OpenWindows(), (QStringList{"main", "TR_INPUT"}));
}

TEST_F(SessionsTest, ASessionOpensNoOther) {
  const QString path = Path("written.lig");
  program.Open(Write("answer file " + Quoted(path).toUtf8() +
                     "\nmenu \"Files\" \"Open Session...\"\npress \"FINK\"\n"));
  EXPECT_EQ(program.session.TrussType, "FINK");
}

TEST_F(SessionsTest, AFileThatCannotBeReadIsTold) {
  program.Open(Path("missing.lig"));
  EXPECT_EQ(program.Told(),
            "message \"Lignara\" \"Cannot read " + FromQt(Path("missing.lig")) + "\"");
  program.Save("/no such folder/a.lig");
  EXPECT_EQ(program.Told(), "message \"Lignara\" \"Cannot write /no such folder/a.lig\"");
}

TEST_F(SessionsTest, UndoTakesTheLastActionBackAndRedoDoesItAgain) {
  program.LoadKingPost();
  program.Play({"window TRUSS", "press \"Deflections\""});
  const std::string before = program.Screen();
  program.Play({"enter \"Top Node Loads (lbs)\" 2000"});
  const std::string after = program.Screen();
  ASSERT_NE(before, after);
  program.Play({"window main", "menu \"Files\" \"Undo\""});
  EXPECT_EQ(program.Screen(), before);
  program.Play({"window main", "menu \"Files\" \"Redo\""});
  EXPECT_EQ(program.Screen(), after);
  EXPECT_FALSE(program.sessions.CanRedo());
}

TEST_F(SessionsTest, ANewActionEndsRedo) {
  program.LoadKingPost();
  program.sessions.Undo();
  QApplication::processEvents();
  EXPECT_TRUE(program.sessions.CanRedo());
  program.Play({"window TRUSS", "press \"Deflections\""});
  EXPECT_FALSE(program.sessions.CanRedo());
}

TEST_F(SessionsTest, UndoGoesBackToTheStart) {
  const std::string start = program.Screen();
  program.LoadKingPost();
  for (int i = 0; i < 100 && program.sessions.CanUndo(); ++i) {
    program.sessions.Undo();
    QApplication::processEvents();
  }
  EXPECT_EQ(program.Screen(), start);
}

TEST_F(SessionsTest, TheKeyTakesBackWhereAFieldHasNothingToTakeBack) {
  program.LoadKingPost();
  program.Play({"window TRUSS", "press \"Deflections\""});
  ASSERT_NE(program.Screen().find("TRUSS Deflections shown panel"), std::string::npos);
  program.PressKey("TRUSS", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Screen().find("TRUSS Deflections shown panel"), std::string::npos);
}

/// The user takes back by the key with the focus in some control of the truss window.
struct Focused {
  const char* control;
  UserAction::Kind action;
};
class UndoByKeyTest : public SessionsTest, public testing::WithParamInterface<Focused> {};

TEST_P(UndoByKeyTest, TakesBackAndLeavesTheUserWhereHeWas) {
  program.LoadKingPost();
  program.Play({"window TRUSS"});
  const std::string before = program.Screen();
  program.Play({"press \"Deflections\"", "window TRUSS"});
  const Kinds kinds = AllVisible(KindsOf(GetParam().action));
  FindControl(program.Window("TRUSS"), {GetParam().control}, {kinds})->setFocus();
  program.PressKey("TRUSS", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Note("TRUSS"), "Undone: press Deflections");
  EXPECT_EQ(program.Screen(), before);
  EXPECT_EQ(program.platform.Front(), program.Window("TRUSS"));
  EXPECT_EQ(program.Window("TRUSS")->focusWidget(),
            FindControl(program.Window("TRUSS"), {GetParam().control}, {kinds}));
  program.PressKey("TRUSS", Qt::Key_Y, Qt::ControlModifier);
  EXPECT_NE(program.Screen(), before);
  EXPECT_EQ(program.Note("TRUSS"), "Redone: press Deflections");
}

INSTANTIATE_TEST_SUITE_P(Focus, UndoByKeyTest,
                         testing::Values(Focused{"Top Node Loads (lbs)", UserAction::Kind::Enter},
                                         Focused{"Top Node Loads (lbs)", UserAction::Kind::Select},
                                         Focused{"Run", UserAction::Kind::Press},
                                         Focused{"Truss", UserAction::Kind::Click}));

TEST_F(SessionsTest, UndoInAFieldTakesTheTypingBackFirst) {
  program.LoadKingPost();
  program.Play({"window main", "enter \"Enter No. of Spans\" 2"});
  const std::size_t actions = program.sessions.record().actions().size();
  FindControl(program.Window("main"), {"Enter No. of Spans"}, {AllVisible({IsTypedInto})})
      ->setFocus();
  program.Type("main", "7");
  program.PressKey("main", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(FromQt(program.sessions.record().Lines().last()), "enter \"Enter No. of Spans\" 2");
  EXPECT_EQ(program.sessions.record().actions().size(), actions);
}

TEST_F(SessionsTest, UndoFromTheLauncherStaysThere) {
  program.LoadKingPost();
  program.Play({"window main", "menu \"Files\" \"Undo\""});
  EXPECT_EQ(program.platform.Front(), program.Window("main"));
  EXPECT_EQ(program.Note("main"), "Undone: press Run");
}

TEST_F(SessionsTest, UndoKeepsOutOfAFieldThatActsOnEntry) {
  program.Play({"press \"Single Span Beams\"", "window MLSP", "enter \"A(ft)\" 5",
                "enter \"P(lbs)\" 1000", "enter \"L(ft)\" 12"});
  program.PressKey("MLSP", Qt::Key_N, Qt::AltModifier);
  program.PressKey("MLSP", Qt::Key_F5);
  program.PressKey("MLSP", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Note("MLSP"), "Undone: key L(ft) F5");
  EXPECT_EQ(FromQt(program.FocusIn("MLSP")), "L(ft)") << "it was never left";
  EXPECT_EQ(FromQt(program.sessions.record().Lines().last()), "key \"L(ft)\" Alt+N");
}

TEST_F(SessionsTest, ComingIntoAnEmptyFieldIsNothingToTakeBack) {
  program.Play({"press \"Single Span Beams\"", "window MLSP", "enter \"A(ft)\" 5"});
  program.Play({"key \"P(lbs)\" F24"});
  program.sessions.Undo();
  QApplication::processEvents();
  EXPECT_EQ(program.Note("MLSP"), "Undone: enter A(ft) 5");
  program.Play({"enter \"A(ft)\" 5", "enter \"P(lbs)\" 3", "key \"A(ft)\" F24"});
  program.sessions.Undo();
  QApplication::processEvents();
  EXPECT_EQ(program.Note("MLSP"), "Undone: coming into A(ft)") << "which it emptied";
}

TEST_F(SessionsTest, AnUndoThatWouldTakeMoreThanASecondIsRefused) {
  program.Play({"press \"KINGPOST\"", "window TR_INPUT"});
  // An action counts half a millisecond or more: 2002 before the last one are over a second.
  for (int i = 0; i <= 1000; ++i) {
    program.Play({"enter \"H (ft)\" 5", "enter \"Total Length (ft)\" 24"});
  }
  const std::size_t actions = program.sessions.record().actions().size();
  ASSERT_GT(actions, 2002U);
  program.sessions.Undo();
  QApplication::processEvents();
  EXPECT_EQ(program.Note("TR_INPUT"),
            "No undo: to do all again but the last action takes more than a second");
  EXPECT_EQ(program.sessions.record().actions().size(), actions) << "nothing is lost";
}

TEST_F(SessionsTest, NothingToTakeBackIsSaid) {
  program.Play({"menu \"Files\" \"Undo\""});
  EXPECT_EQ(program.Note("main"), "There is nothing to undo");
  program.Play({"menu \"Files\" \"Redo\""});
  EXPECT_EQ(program.Note("main"), "There is nothing to redo");
}

}  // namespace
}  // namespace lignara
