// A program that is killed at any moment: the next one restores what was done.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <iostream>
#include <iterator>
#include <map>
#include <random>
#include <thread>

#include "desktop/kit/text.h"
#include "tests/desktop/session/other_program.h"
#include "tests/desktop/session/random_walk.h"

namespace lignara {
namespace {

constexpr const char* kFolder = "LIGNARA_KILLED_FOLDER";
constexpr const char* kSeed = "LIGNARA_KILLED_SEED";

QString Lines(const QStringList& lines) { return lines.join('\n'); }

/// The program that is killed. It says after each action that this one is done.
TEST(KilledProgram, DISABLED_ActsUntilItIsKilled) {
  DieWithTest();
  const QString folder = qEnvironmentVariable(kFolder);
  ASSERT_FALSE(folder.isEmpty());
  RandomWalk walk(static_cast<unsigned>(qEnvironmentVariableIntValue(kSeed)), folder);
  walk.OnActed([](int acted) { SayToTest(QString::number(acted)); });
  while (!HasFailure()) walk.Step();
}

/// A program on its way to be killed.
struct Victim {
  explicit Victim(unsigned its)
      : seed(its),
        program("KilledProgram.*", folder.path(),
                {{kFolder, Journals()}, {kSeed, QString::number(its)}}) {}
  QString Journals() const { return folder.filePath("state"); }
  int Acted() const { return program.said().isEmpty() ? 0 : program.said().last().toInt(); }

  const unsigned seed;
  const QTemporaryDir folder;
  OtherProgram program;
};

/// What the windows show after so many actions, and after the next one.
struct Screens {
  QString before;
  QString after;
};

Screens Undisturbed(unsigned seed, int acted) {
  const QTemporaryDir folder;
  RandomWalk walk(seed, folder.path());
  Screens screens;
  if (acted == 0) screens.before = Lines(walk.Shown());
  walk.OnActed([&](int now) {
    if (now == acted) screens.before = Lines(walk.Shown());
    if (now == acted + 1) screens.after = Lines(walk.Shown());
  });
  while (walk.acted() <= acted && !testing::Test::HasFailure()) walk.Step();
  return screens;
}

/// What is on the screen of the next program, whose user wants the session restored.
QString Restored(const Victim& victim, QStringList& lines) {
  RandomWalk next(victim.seed, victim.Journals());
  next.monkey().platform().KeepAnswer({ScriptAnswer::Kind::Yes, ""});
  next.keeper().OfferLeft();
  lines = next.sessions().record().Lines();
  EXPECT_EQ(QDir(victim.Journals()).entryList(QDir::Files).size(), 1)
      << "its own journal, which holds the old one's lines";
  return Lines(next.Shown());
}

/// The number of lines that came back.
qsizetype ExpectNothingLost(const Victim& victim) {
  QStringList lines;
  const QString restored = Restored(victim, lines);
  const int acted = victim.Acted();
  const Screens screens = Undisturbed(victim.seed, acted);
  // The action at hand may be in the journal already, though nobody was told of it any more.
  if (restored != screens.after) {
    EXPECT_EQ(FromQt(restored), FromQt(screens.before))
        << "(nor the next one)\nseed " << victim.seed << " after " << acted << " actions:\n"
        << FromQt(Lines(lines));
  }
  return lines.size();
}

/// More programs with LIGNARA_KILLS.
int Kills() {
  constexpr int kUsual = 12;
  const int kills = qEnvironmentVariableIntValue("LIGNARA_KILLS");
  return kills > 0 ? kills : kUsual;
}

TEST(KilledPrograms, LoseAtMostTheActionAtHand) {
  // Another moment each time: there is no seed that would bring one back.
  std::mt19937 random(std::random_device{}());
  std::uniform_int_distribution<int> actions(0, 40);
  std::uniform_int_distribution<int> later(0, 8000);
  qsizetype lines = 0;
  int acted = 0;
  int killed = 0;
  for (const int kills = Kills(); killed < kills && !HasFailure(); ++killed) {
    Victim victim(static_cast<unsigned>(killed + 1));
    victim.program.WaitFor(actions(random));
    std::this_thread::sleep_for(std::chrono::microseconds(later(random)));
    victim.program.Kill();
    ASSERT_TRUE(victim.program.WasKilled()) << victim.program.Output();
    acted += victim.Acted();
    lines += ExpectNothingLost(victim);
  }
  std::cout << killed << " programs killed after " << acted << " actions; " << lines
            << " lines came back" << std::endl;
  EXPECT_GT(lines, killed);
}

QByteArray ReadFile(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << FromQt(path);
  return file.readAll();
}

/// A journal, and what the windows showed when so many of its lines had been written.
struct WrittenJournal {
  QByteArray bytes;
  std::map<qsizetype, QString> screens;
};

WrittenJournal WriteJournal(unsigned seed, int actions) {
  const QTemporaryDir folder;
  WrittenJournal journal;
  RandomWalk walk(seed, folder.path());
  const QString path = folder.filePath(QDir(folder.path()).entryList(QDir::Files).value(0));
  journal.screens[0] = Lines(walk.Shown());
  walk.OnActed([&](int) {
    journal.bytes = ReadFile(path);
    journal.screens[journal.bytes.count('\n')] = Lines(walk.Shown());
  });
  while (walk.acted() < actions && !testing::Test::HasFailure()) walk.monkey().Play(1);
  return journal;
}

TEST(CutJournal, GivesItsWholeLinesWhereverItIsCut) {
  const QByteArray bytes = WriteJournal(3, 40).bytes;
  ASSERT_GT(bytes.size(), 500);
  const QTemporaryDir folder;
  const QString path = folder.filePath("1.journal");
  for (qsizetype length = 0; length <= bytes.size(); ++length) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.left(length));
    file.close();
    QStringList whole = QString::fromUtf8(bytes.left(length)).split('\n');
    whole.removeLast();
    const auto left = LeftJournals(folder.path());
    ASSERT_EQ(left.size(), whole.isEmpty() ? 0U : 1U) << length;
    if (left.empty()) continue;
    ASSERT_EQ(left[0].lines, whole) << length;
  }
}

TEST(CutJournal, RestoresTheStateBeforeTheActionThatIsCut) {
  const WrittenJournal journal = WriteJournal(3, 40);
  const QStringList lines = QString::fromUtf8(journal.bytes).split('\n', Qt::SkipEmptyParts);
  const QTemporaryDir folder;
  RandomWalk next(3, folder.path());
  for (qsizetype count = 0; count <= lines.size() && !HasFailure(); ++count) {
    EXPECT_TRUE(next.sessions().PlayAndTell(lines.mid(0, count), "cut", "Restore Session"));
    const auto at = std::prev(journal.screens.upper_bound(count));
    EXPECT_EQ(FromQt(Lines(next.Shown())), FromQt(at->second)) << count << " lines";
  }
}

}  // namespace
}  // namespace lignara
