// Session files that nobody wrote: whatever stands in them, the program goes on, and nothing is
// written. The seeds are fixed, so that a failure comes back.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <map>

#include "app/window_names.h"
#include "desktop/kit/text.h"
#include "desktop/session/journal_keeper.h"
#include "desktop/session/program_start.h"
#include "desktop/session/session_file.h"
#include "desktop/session/sessions.h"
#include "script/script_platform.h"
#include "tests/desktop/open_desktop.h"
#include "tests/desktop/session/spoilt_lines.h"

namespace lignara {
namespace {

int Setting(const char* name, int usual) {
  bool given = false;
  const int value = qEnvironmentVariableIntValue(name, &given);
  return given ? value : usual;
}

/// A user's machine that belongs to a test: home, folder for what is passing, data folder, in which
/// the program runs.
class OwnMachine {
 public:
  OwnMachine() {
    for (const char* name : {"home", "tmp", "run"}) QDir(root()).mkpath(name);
    std::filesystem::copy(LIGNARA_DATA_DIRECTORY, FromQt(data()));
    for (const auto& [name, folder] : kSettings) {
      before_[name] = qgetenv(name);
      qputenv(name, QFile::encodeName(folder_.filePath(folder)));
    }
    QDir::setCurrent(data());
  }
  ~OwnMachine() {
    QDir::setCurrent(current_);
    for (const auto& [name, value] : before_) qputenv(name, value);
  }
  OwnMachine(const OwnMachine&) = delete;
  OwnMachine& operator=(const OwnMachine&) = delete;

  QString root() const { return folder_.path(); }
  QString data() const { return folder_.filePath("data"); }

  /// All files and folders and what is in them, but those of the journals.
  std::map<std::string, QByteArray> Content() const {
    std::map<std::string, QByteArray> content;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(FromQt(root()))) {
      if (ToQt(entry.path().string()).startsWith(JournalFolder())) continue;
      QFile file(ToQt(entry.path().string()));
      content[entry.path().string()] =
          entry.is_regular_file() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    return content;
  }

 private:
  static constexpr std::pair<const char*, const char*> kSettings[] = {
      {"HOME", "home"},
      {"TMPDIR", "tmp"},
      {"XDG_RUNTIME_DIR", "run"},
      {"XDG_STATE_HOME", "home/state"},
      {"XDG_CONFIG_HOME", "home/config"},
      {"XDG_DATA_HOME", "home/data"},
      {"XDG_CACHE_HOME", "home/cache"}};

  QTemporaryDir folder_;
  QString current_ = QDir::currentPath();
  std::map<const char*, QByteArray> before_;
};

/// Ends the test, with the seed, when a line takes ten minutes: it does not come back.
class HangGuard {
 public:
  HangGuard() : before_(std::signal(SIGALRM, &HangGuard::Hung)) {}
  ~HangGuard() {
    alarm(0);
    std::signal(SIGALRM, before_);
  }
  HangGuard(const HangGuard&) = delete;
  HangGuard& operator=(const HangGuard&) = delete;
  static void Begin(unsigned seed) { seed_ = static_cast<int>(seed); }
  static void NextLine() { alarm(600); }

 private:
  static void Hung(int) {
    std::cerr << "a line of the session with seed " << seed_ << " does not end" << std::endl;
    _exit(1);
  }
  static inline volatile std::sig_atomic_t seed_ = 0;
  void (*before_)(int);
};

class HostileSession : public testing::Test {
 protected:
  HostileSession() {
    StartSession(session, FromQt(machine.data()));
    platform.PaintNothing();
    platform.OpenWindow("main");
  }

  /// Plays a session of its own. What stands behind a line that stops it is played on, in the
  /// window that was opened last. Gives the number of lines.
  int Play(unsigned seed) {
    HangGuard::Begin(seed);
    QStringList rest = SpoiltLines(seed).Session();
    StartProgramAgain(session, platform);
    sessions.record().Clear();
    int played = 0;
    while (!rest.isEmpty()) {
      const SessionPlay play = PlaySession(rest, "hostile", platform, [](int) {
        HangGuard::NextLine();
        return true;
      });
      const int done = play.stop.isEmpty() ? static_cast<int>(rest.size())
                                           : play.stop.section(':', 1, 1).toInt();
      stops += play.stop.isEmpty() ? 0 : 1;
      played += done;
      rest = rest.mid(done);
      if (!rest.isEmpty() && !rest.first().startsWith("window ")) {
        // The window of variants is no part of a session: to name it would stop each time anew.
        QStringList open = platform.OpenWindows();
        open.removeAll(window_name::kRepeat);
        rest.prepend("window " + open.last());
        --played;
      }
    }
    EXPECT_TRUE(platform.OpenWindows().contains("main")) << "seed " << seed;
    return played;
  }

  OwnMachine machine;
  const HangGuard guard;
  SessionState session;
  ScriptPlatform platform{session, [](const QString&) {}};
  const FaultScope faults{platform};
  Sessions sessions{session, platform};
  JournalKeeper keeper{sessions, platform, JournalFolder()};
  int stops = 0;
};

/// More lines with LIGNARA_HOSTILE_LINES, from the session LIGNARA_HOSTILE_SEED on.
TEST_F(HostileSession, PlaysOnAndWritesNothing) {
  const int lines = Setting("LIGNARA_HOSTILE_LINES", 2000);
  unsigned seed = static_cast<unsigned>(Setting("LIGNARA_HOSTILE_SEED", 1));
  const auto before = machine.Content();
  for (int played = 0, sessionsPlayed = 0; played < lines && !HasFailure(); ++seed) {
    played += Play(seed);
    constexpr int kTell = 500;
    if (++sessionsPlayed % kTell == 0) {
      std::cout << "hostile lines: " << played << ", next seed " << seed + 1 << std::endl;
      EXPECT_EQ(machine.Content(), before) << "until seed " << seed;
    }
  }
  EXPECT_GT(stops, lines / 100);
  EXPECT_EQ(machine.Content(), before);
  EXPECT_EQ(QDir(JournalFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(HostileSession, AFileThatIsNoTextIsPlayedToItsEnd) {
  SpoiltLines random(1);
  for (int i = 0; i < 20; ++i) {
    QByteArray bytes;
    for (int at = random.Pick(20000); at >= 0; --at) bytes += static_cast<char>(random.Pick(256));
    QFile file(machine.root() + "/bytes");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    QString refusal;
    const QStringList lines = ReadSessionFile(file.fileName(), refusal);
    EXPECT_EQ(lines.size(), bytes.count('\n') + 1);
    PlaySession(lines, "bytes", platform, [](int) { return true; });
    EXPECT_EQ(platform.OpenWindows(), QStringList("main"));
  }
}

TEST(HostileFile, AFileWithoutAnEndIsRefused) {
  QString refusal;
  EXPECT_TRUE(ReadSessionFile("/dev/zero", refusal).isEmpty());
  EXPECT_EQ(FromQt(refusal), "Cannot read /dev/zero");
}

}  // namespace
}  // namespace lignara
