// Where a session begins, and what is left of it where it cannot be played again.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/data_directory.h"
#include "desktop/kit/text.h"
#include "desktop/session/journal_keeper.h"
#include "desktop/session/session_file.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"
#include "tests/desktop/screen_text.h"

namespace lignara {
namespace {

/// The program over a data folder of its own, in which it may replace files.
class OwnProgram : public OpenDesktop {
 public:
  explicit OwnProgram(const QString& folder) {
    session.DataDirectory = MakeDataDirectory(FromQt(folder));
    QApplication::processEvents();
  }
  void Undo() {
    sessions.Undo();
    QApplication::processEvents();
  }
  void Redo() {
    sessions.Redo();
    QApplication::processEvents();
  }
  std::string Screen() const { return FromQt(ScreenText(platform).join('\n')); }

  Sessions sessions{session, platform};
};

class GoingBack : public testing::Test {
 protected:
  GoingBack() {
    const OpenDesktop shipped;
    const QDir data(ToQt(FolderOf(shipped.session.DataDirectory)));
    for (const QString& name : data.entryList({"*.CSV"}, QDir::Files)) {
      QFile::copy(data.filePath(name), Path(name));
      QFile(Path(name)).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
  }
  QString Path(const QString& name) const { return folder.filePath(name); }

  /// A beam takes a member over, then another factor is kept as default and a window is opened.
  static void KeepAFactor(OwnProgram& program) {
    program.Play({"press \"Glu-Lam Data Base\"", "window GL",
                  "press \"Visually Graded Western Species\"",
                  "select \"Combination Symbol\" \"24F-V4\"", "enter \"L(ft)\" 4",
                  "enter \"d(in)\" 12", "enter \"b(in)\" 5.125", "press \"Done / Transfer\"",
                  "window main", "press \"Glu-Lam Data Base\"", "window GL",
                  "enter \"User Adjustment\" \"Fv, Horizontal Shear\" 0.5",
                  "press \"Set user adjustment as default\"", "window main", "press \"Ply Wood\""});
  }

  QTemporaryDir folder;
};

TEST_F(GoingBack, UndoStartsFromTheFactorsOfTheProgramsStart) {
  OwnProgram program(folder.path());
  KeepAFactor(program);
  const float shear = program.session.Member.AllowFv.value();
  ASSERT_GT(shear, 0);
  ASSERT_EQ(FileText(FromQt(Path("USERADJ.CSV"))).value_or("").find(" 0.5\n"), 12U)
      << "the fifth of fourteen lines";
  program.Undo();
  EXPECT_EQ(program.session.Member.AllowFv.value(), shear);
  EXPECT_EQ(program.platform.OpenWindows(), (QStringList{"main", "GL"}));
}

TEST_F(GoingBack, ASavedSessionTellsTheFactorsOfItsStart) {
  OwnProgram program(folder.path());
  KeepAFactor(program);
  const float shear = program.session.Member.AllowFv.value();
  ASSERT_TRUE(WriteSessionFile(Path("a.lig"), program.session, program.sessions.record().Lines()));
  QString refusal;
  const QStringList lines = ReadSessionFile(Path("a.lig"), refusal);
  EXPECT_EQ(FromQt(lines.filter("own glulam").join('\n')),
            "# own glulam factors at the start: 1 1 1 1 1 1 1 1 1 1 1 1 1 1");
  OwnProgram other(folder.path());
  other.sessions.PlayAndTell(lines, "a.lig", "Open Session");
  EXPECT_EQ(other.session.Member.AllowFv.value(), shear);
}

TEST_F(GoingBack, ARestoredJournalStartsFromItsOwnFactors) {
  OwnProgram program(folder.path());
  JournalKeeper keeper(program.sessions, program.platform, Path("state"));
  KeepAFactor(program);
  const QStringList journals = QDir(Path("state")).entryList({"*.journal"}, QDir::Files);
  ASSERT_EQ(journals.size(), 1);
  QString refusal;
  const QStringList lines = ReadSessionFile(Path("state/") + journals.first(), refusal);
  OwnProgram other(folder.path());
  other.sessions.PlayAndTell(lines, "j", "Restore Session");
  EXPECT_EQ(other.session.Member.AllowFv.value(), program.session.Member.AllowFv.value());
}

TEST_F(GoingBack, WhatAnUndoCannotDoAgainWaitsForRedo) {
  OwnProgram program(folder.path());
  program.Play({"press \"Pure Wood Data Base\"", "window QUESTION", "press \"BEAM\"",
                "window WTYPETR", "press \"Wood Type Data Base\"", "window wdb",
                "press \"Western Woods\"",
                "select \"Data Base File to Load\" \"Douglas Fir-Larch\"",
                "select \"Grades\" \"No.2\"", "press \"Stress Adjustment Factors\""});
  const std::string before = program.Screen();
  const std::size_t actions = program.sessions.record().actions().size();
  ASSERT_TRUE(QFile::rename(Path("WWTRK.CSV"), Path("away")));
  program.Undo();
  EXPECT_LT(program.sessions.record().actions().size(), actions - 1);
  EXPECT_TRUE(program.printed.filter("message \"Undo\"").last().contains("Undo:"));
  program.Redo();
  EXPECT_TRUE(program.sessions.CanRedo()) << "what cannot be done is not passed over";
  ASSERT_TRUE(QFile::rename(Path("away"), Path("WWTRK.CSV")));
  // The family was chosen while its list was away: once more, by hand.
  program.Play({"window wdb", "press \"Western Woods\""});
  EXPECT_FALSE(program.sessions.CanRedo()) << "a new action ends redo";
  EXPECT_NE(program.Screen(), before);
}

TEST_F(GoingBack, APipeIsNoSession) {
  ASSERT_EQ(mkfifo(Path("pipe.lig").toLocal8Bit().constData(), 0600), 0);
  QString refusal;
  EXPECT_TRUE(ReadSessionFile(Path("pipe.lig"), refusal).isEmpty());
  EXPECT_EQ(FromQt(refusal), FromQt("Cannot read " + Path("pipe.lig")));
}

TEST_F(GoingBack, AFileBeyondSixteenMegabytesIsNoSession) {
  QFile file(Path("large.lig"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(16 * 1024 * 1024 + 1));
  QString refusal;
  EXPECT_TRUE(ReadSessionFile(Path("large.lig"), refusal).isEmpty());
  EXPECT_EQ(FromQt(refusal), FromQt(Path("large.lig") + " is too large for a session"));
}

TEST_F(GoingBack, TheWindowRepeatIsNoPartOfASession) {
  OwnProgram program(folder.path());
  program.Play({"press \"KINGPOST\"", "window main", "menu \"Files\" \"Repeat With...\""});
  program.sessions.PlayAndTell({"window REPEAT", "press \"Run\""}, "a.lig", "Open Session");
  EXPECT_TRUE(program.printed.last().contains("a.lig:1: the window REPEAT is no part of a session"))
      << FromQt(program.printed.last());
}

}  // namespace
}  // namespace lignara
