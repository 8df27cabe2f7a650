// What a killed program leaves: its journal, which the next one restores.

#include "desktop/session/journal.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "desktop/kit/text.h"
#include "desktop/session/journal_keeper.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"
#include "tests/support/file_size_limit.h"

namespace lignara {
namespace {

class JournalTest : public testing::Test {
 protected:
  QString Folder() const { return directory.filePath("state/lignara"); }
  QStringList Files() const { return QDir(Folder()).entryList(QDir::Files); }

  /// A journal as a program that was ended leaves it.
  void Leave(const QByteArray& text, const char* name = "1-1.journal") {
    QDir().mkpath(Folder());
    QFile file(Folder() + "/" + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  QTemporaryDir directory;
};

TEST_F(JournalTest, AnEndOfTheProgramTakesItAway) {
  {
    Journal journal(Folder());
    journal.Append({"press \"KINGPOST\""});
    EXPECT_EQ(Files().size(), 1);
  }
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(JournalTest, OnlyTheUserCanReadIt) {
  const Journal journal(Folder());
  const QFileInfo file(Folder() + "/" + Files().value(0));
  EXPECT_EQ(file.permissions() &
                ~(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser),
            QFile::Permissions());
}

TEST_F(JournalTest, OnlyTheUserCanLookIntoItsFolder) {
  const Journal journal(Folder());
  struct stat folder;
  ASSERT_EQ(stat(FromQt(Folder()).c_str(), &folder), 0);
  EXPECT_EQ(folder.st_mode & 0777, 0700U);
}

TEST_F(JournalTest, ThatOfARunningProgramIsNotLeft) {
  Journal journal(Folder());
  journal.Append({"press \"KINGPOST\""});
  EXPECT_TRUE(LeftJournals(Folder()).empty());
}

TEST_F(JournalTest, AHalfLineIsPassedOver) {
  Leave("press \"KINGPOST\"\nwindow TR_IN");
  const auto left = LeftJournals(Folder());
  ASSERT_EQ(left.size(), 1U);
  EXPECT_EQ(left[0].lines, QStringList("press \"KINGPOST\""));
}

TEST_F(JournalTest, OneWithoutAWholeLineGoes) {
  Leave("press \"KING");
  EXPECT_TRUE(LeftJournals(Folder()).empty());
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(JournalTest, ALinkIsNoJournal) {
  Leave("press \"KINGPOST\"\n", "notes.txt");
  ASSERT_TRUE(QFile::link(Folder() + "/notes.txt", Folder() + "/1-1.journal"));
  EXPECT_TRUE(LeftJournals(Folder()).empty());
  EXPECT_EQ(Files(), (QStringList{"1-1.journal", "notes.txt"}));
}

TEST_F(JournalTest, WhatAnotherUserLeftIsNoJournal) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser can give a file away";
  Leave("press \"KINGPOST\"\n");
  constexpr uid_t kSomebody = 12345;
  ASSERT_EQ(chown(FromQt(Folder() + "/1-1.journal").c_str(), kSomebody, kSomebody), 0);
  EXPECT_TRUE(LeftJournals(Folder()).empty());
  EXPECT_EQ(Files(), QStringList("1-1.journal"));
}

TEST_F(JournalTest, AHalfReplacementGoesWithTheProgramThatWroteIt) {
  Leave("press \"KINGPOST\"\n", "1-1.journal");
  Leave("press \"KING", "1-1.journal.new");
  Leave("press \"FINK\"\n", "2-2.journal.new");
  EXPECT_EQ(LeftJournals(Folder()).size(), 1U);
  EXPECT_EQ(Files(), QStringList("1-1.journal")) << "the second had no journal any more";
}

TEST_F(JournalTest, AReplacementOfARunningProgramStays) {
  const Journal journal(Folder());
  const QString beside = Files().value(0) + ".new";
  Leave("press \"KING", FromQt(beside).c_str());
  EXPECT_TRUE(LeftJournals(Folder()).empty());
  EXPECT_TRUE(Files().contains(beside));
}

TEST_F(JournalTest, OtherFilesOfTheFolderStay) {
  const QStringList names = {"1-1.lig", "journal", "journal.new", "notes.new", "x.journal.bak"};
  for (const QString& name : names) Leave("", FromQt(name).c_str());
  ASSERT_TRUE(QDir(Folder()).mkdir("a.journal.new"));
  EXPECT_TRUE(LeftJournals(Folder()).empty());
  EXPECT_EQ(Files(), names);
  EXPECT_TRUE(QDir(Folder() + "/a.journal.new").exists());
}

TEST_F(JournalTest, OnAFullDiskItEndsAtTheLastWholeLineAndStaysWithItsProgram) {
  {
    Journal journal(Folder());
    journal.Append({"press \"KINGPOST\""});
    {
      const FileSizeLimit full(20);
      journal.Append({"window TR_INPUT"});
      EXPECT_FALSE(journal.IsWritten());
    }
    journal.Append({"press \"OK\""});
    EXPECT_FALSE(journal.IsWritten()) << "a line is missing before this one";
    EXPECT_TRUE(LeftJournals(Folder()).empty()) << "its program runs";
    QFile file(Folder() + "/" + Files().value(0));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), "press \"KINGPOST\"\nwin");
  }
  EXPECT_TRUE(Files().isEmpty());
}

TEST_F(JournalTest, AReplacementForWhichThereIsNoRoomLeavesTheLinesAsTheyWere) {
  Journal journal(Folder());
  journal.Append({"press \"KINGPOST\""});
  {
    const FileSizeLimit full(20);
    journal.Replace({"press \"FINK\"", "window TR_INPUT"});
  }
  EXPECT_FALSE(journal.IsWritten());
  ASSERT_EQ(Files().size(), 1) << "the half replacement is gone";
  journal.Append({"press \"OK\""});
  const QString path = Folder() + "/" + Files().value(0);
  EXPECT_EQ(QFileInfo(path).size(), 17) << "what follows belongs to the lines that are missing";
  journal.Replace({"press \"FINK\""});
  EXPECT_TRUE(journal.IsWritten());
  EXPECT_EQ(QFileInfo(path).size(), 13);
}

TEST_F(JournalTest, TwoProgramsDoNotTakeTheSame) {
  Leave("press \"KINGPOST\"\n");
  const auto first = LeftJournals(Folder());
  EXPECT_EQ(first.size(), 1U);
  EXPECT_TRUE(LeftJournals(Folder()).empty());
}

TEST_F(JournalTest, TwoProgramsKeepTwo) {
  Journal one(Folder());
  Journal other(Folder());
  EXPECT_EQ(Files().size(), 2);
  one.Append({"a"});
  other.Replace({"b"});
  QStringList texts;
  for (const QString& name : Files()) {
    QFile file(Folder() + "/" + name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    texts << QString(file.readAll());
  }
  texts.sort();
  EXPECT_EQ(texts, (QStringList{"a\n", "b\n"}));
}

TEST_F(JournalTest, AFolderThatCannotBeWrittenIsNotedOnce) {
  struct Noting : ScriptPlatform {
    using ScriptPlatform::ScriptPlatform;
    void ShowNote(const std::string& text) override { notes.push_back(text); }
    std::vector<std::string> notes;
  };
  SessionState session;
  Noting platform(session, [](const QString&) {});
  Sessions sessions(session, platform);
  JournalKeeper keeper(sessions, platform, "/proc/no such folder");
  sessions.record().AddLine("main", "read title");
  EXPECT_EQ(platform.notes, std::vector<std::string>(
                                {"No journal is kept: /proc/no such folder cannot be written"}));
}

TEST_F(JournalTest, YesRestoresAndTakesTheOldOneAway) {
  Leave("press \"KINGPOST\"\n");
  OpenDesktop desktop;
  Sessions sessions(desktop.session, desktop.platform);
  JournalKeeper keeper(sessions, desktop.platform, Folder());
  desktop.Play({"answer yes"});
  keeper.OfferLeft();
  EXPECT_TRUE(desktop.printed.last().startsWith("ask \"Lignara\" \"Restore the session of 20"));
  EXPECT_EQ(desktop.session.TrussType, "KINGPOST");
  EXPECT_EQ(Files().size(), 1) << "its own journal, with the same lines";
  QFile file(Folder() + "/" + Files().value(0));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().toStdString(), "press \"KINGPOST\"\n");
}

TEST_F(JournalTest, WhatTheOwnJournalCannotTakeOverStays) {
  Leave("press \"KINGPOST\"\n");
  OpenDesktop desktop;
  Sessions sessions(desktop.session, desktop.platform);
  JournalKeeper keeper(sessions, desktop.platform, Folder());
  desktop.Play({"answer yes"});
  {
    const FileSizeLimit full(5);
    keeper.OfferLeft();
  }
  EXPECT_EQ(desktop.session.TrussType, "KINGPOST");
  QFile kept(Folder() + "/1-1.lig");
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
  EXPECT_EQ(kept.readAll().toStdString(), "press \"KINGPOST\"\n");
  EXPECT_TRUE(desktop.printed.last().startsWith("message \"Lignara\" \"The session is kept as "));
}

TEST_F(JournalTest, NoKeepsItAsASessionAndSaysWhere) {
  Leave("press \"KINGPOST\"\n");
  OpenDesktop desktop;
  Sessions sessions(desktop.session, desktop.platform);
  JournalKeeper keeper(sessions, desktop.platform, Folder());
  desktop.Play({"answer no"});
  keeper.OfferLeft();
  EXPECT_EQ(desktop.session.TrussType, "");
  const QString kept = Folder() + "/1-1.lig";
  EXPECT_TRUE(QFile::exists(kept));
  EXPECT_EQ(FromQt(desktop.printed.last()),
            "message \"Lignara\" \"The session is kept as " + FromQt(kept) + "\"");
}

}  // namespace
}  // namespace lignara
