// What a killed program leaves: its journal, which the next one restores.

#include "desktop/session/journal.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "desktop/kit/text.h"
#include "desktop/session/journal_keeper.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"

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
