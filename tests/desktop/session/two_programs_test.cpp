// Several programs of one user at once: each keeps its own journal, and what one leaves that was
// killed is offered by one other, once.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <fstream>

#include "desktop/kit/text.h"
#include "desktop/session/journal_keeper.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"
#include "tests/desktop/session/other_program.h"

namespace lignara {
namespace {

constexpr const char* kFolder = "LIGNARA_JOURNAL_FOLDER";

/// A program that does what the test says, line by line, until there is nothing more: then it ends.
/// "offer" is its question at the start, "yes" the answer to come.
TEST(ToldProgram, DISABLED_DoesWhatItIsTold) {
  DieWithTest();
  OpenDesktop desktop;
  Sessions sessions(desktop.session, desktop.platform);
  JournalKeeper keeper(sessions, desktop.platform, qEnvironmentVariable(kFolder));
  SayToTest("started");
  for (QString line = HearTest(); !line.isEmpty(); line = HearTest()) {
    desktop.printed.clear();
    if (line == "offer") {
      keeper.OfferLeft();
    } else {
      desktop.Play({FromQt(line).c_str()});
    }
    SayToTest(line + ": " + desktop.printed.filter("ask ").join(" ") +
              desktop.session.TrussType.c_str());
  }
}

class TwoProgramsTest : public testing::Test {
 protected:
  QString Folder() const { return directory.filePath("lignara"); }
  QStringList Journals() const { return QDir(Folder()).entryList({"*.journal*"}, QDir::Files); }

  QString Leave(const QByteArray& text) {
    QDir().mkpath(Folder());
    const QString path = Folder() + "/20200101-120000-000-1-0.journal";
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return path;
  }

  QTemporaryDir directory;
};

/// A program of its own that is told what to do.
class Told {
 public:
  explicit Told(const QTemporaryDir& directory)
      : program_("ToldProgram.*", directory.path(), {{kFolder, directory.filePath("lignara")}}) {
    program_.WaitFor(++said_);
  }
  /// Says a line without waiting.
  void Say(const char* line) { program_.Say(line); }
  /// What it answers to the line before.
  std::string Answer() {
    program_.WaitFor(++said_);
    return FromQt(program_.said().value(said_ - 1));
  }
  std::string Do(const char* line) {
    Say(line);
    return Answer();
  }
  void Kill() { program_.Kill(); }
  bool EndsWell() {
    program_.Say("");
    return program_.EndsWell();
  }

 private:
  OtherProgram program_;
  qsizetype said_ = 0;
};

TEST_F(TwoProgramsTest, EachKeepsItsOwnAndTheKilledOneIsOffered) {
  Told ends(directory), killed(directory), runs(directory);
  EXPECT_EQ(ends.Do("press \"FINK\""), "press \"FINK\": FINK");
  EXPECT_EQ(killed.Do("press \"HOWE\""), "press \"HOWE\": HOWE");
  EXPECT_EQ(runs.Do("press \"WARREN\""), "press \"WARREN\": WARREN");
  EXPECT_EQ(Journals().size(), 3);
  EXPECT_TRUE(ends.EndsWell());
  EXPECT_EQ(Journals().size(), 2);
  killed.Kill();
  EXPECT_EQ(Journals().size(), 2);

  Told next(directory);
  next.Do("answer yes");
  const std::string offered = next.Do("offer");
  EXPECT_NE(offered.find("Restore the session of 20"), std::string::npos) << offered;
  EXPECT_EQ(offered.substr(offered.size() - 4), "HOWE");
  EXPECT_EQ(next.Do("offer"), "offer: HOWE") << "that of the running one is not asked for";
  EXPECT_EQ(Journals().size(), 2) << "of the two that run";
  EXPECT_TRUE(next.EndsWell());
  EXPECT_TRUE(runs.EndsWell());
  EXPECT_TRUE(Journals().isEmpty());
}

TEST_F(TwoProgramsTest, OfTwoThatStartAtOnceOneOffersWhatWasLeft) {
  Told one(directory), other(directory);
  for (int round = 0; round < 15; ++round) {
    one.Do("answer yes");
    other.Do("answer yes");
    Leave("press \"KINGPOST\"\n");
    one.Say("offer");
    other.Say("offer");
    const std::string answers = one.Answer() + other.Answer();
    const std::size_t first = answers.find("Restore the session");
    ASSERT_NE(first, std::string::npos) << "round " << round;
    ASSERT_EQ(answers.find("Restore the session", first + 1), std::string::npos) << answers;
    ASSERT_EQ(Journals().size(), 2) << "round " << round;
    // Only one took an answer; a question of the launcher takes the other's.
    for (Told* program : {&one, &other}) program->Do("menu \"Files\" \"Undo\"");
  }
  EXPECT_TRUE(one.EndsWell());
  EXPECT_TRUE(other.EndsWell());
}

/// The program itself. Nobody answers its questions: it stands there with the box.
class Program {
 public:
  explicit Program(const QTemporaryDir& state) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_STATE_HOME", state.path());
    process_.setProcessEnvironment(environment);
    process_.setWorkingDirectory(LIGNARA_DATA_DIRECTORY);
    process_.start(LIGNARA_PROGRAM, QStringList());
    process_.waitForStarted();
  }
  ~Program() { Kill(); }
  qint64 pid() const { return process_.processId(); }
  void Kill() {
    process_.kill();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

/// The programs that hold a file locked.
std::vector<qint64> HoldersOf(const QString& path) {
  struct stat file;
  if (stat(QFile::encodeName(path).constData(), &file) != 0) return {};
  const std::string inode = ":" + std::to_string(file.st_ino);
  std::vector<qint64> holders;
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);) {
    const QStringList words = ToQt(line).split(' ', Qt::SkipEmptyParts);
    if (FromQt(words.value(5)).ends_with(inode)) holders.push_back(words.value(4).toLongLong());
  }
  return holders;
}

bool WaitUntil(const std::function<bool()>& condition) {
  constexpr int kTries = 6000;
  for (int i = 0; i < kTries && !condition(); ++i) QThread::msleep(20);
  return condition();
}

TEST_F(TwoProgramsTest, TheProgramItselfOffersWhatWasLeftUntilItIsTaken) {
  const QString left = Leave("press \"KINGPOST\"\nwindow TR_IN");
  Program first(directory);
  ASSERT_TRUE(WaitUntil([&] { return HoldersOf(left) == std::vector<qint64>{first.pid()}; }));
  Program second(directory);
  ASSERT_TRUE(WaitUntil([&] { return Journals().size() == 3; }));
  first.Kill();
  Program third(directory);
  ASSERT_TRUE(WaitUntil([&] { return HoldersOf(left).size() == 1; })) << "in the next one's hands";
  const qint64 holder = HoldersOf(left).front();
  // The second may not have looked yet when the first was killed.
  EXPECT_TRUE(holder == second.pid() || holder == third.pid());
  second.Kill();
  third.Kill();
  const auto journals = LeftJournals(Folder());
  ASSERT_EQ(journals.size(), 1U);
  EXPECT_EQ(journals[0].lines, QStringList("press \"KINGPOST\""));
  EXPECT_EQ(Journals().size(), 1) << "those of the three held no line";
}

}  // namespace
}  // namespace lignara
