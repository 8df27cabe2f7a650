// Session files that nobody wrote: whatever stands in them, the program goes on, and nothing is
// written. The seeds are fixed, so that a failure comes back.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <random>

#include "desktop/kit/text.h"
#include "desktop/session/sessions.h"
#include "script/script_platform.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

/// Lines to play; more of them with LIGNARA_HOSTILE_LINES.
int LineCount() {
  bool given = false;
  const int count = qEnvironmentVariableIntValue("LIGNARA_HOSTILE_LINES", &given);
  return given ? count : 2000;
}

QStringList KeptLines() {
  QStringList lines;
  const QDir folder(LIGNARA_SCRIPTS_DIRECTORY);
  for (const QString& name : folder.entryList({"*.lig"})) {
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::ReadOnly)) lines += QString::fromUtf8(file.readAll()).split('\n');
  }
  lines.removeAll(QString());
  return lines;
}

class Mutator {
 public:
  Mutator(unsigned seed, QStringList lines) : random_(seed), lines_(std::move(lines)) {}

  /// One of the lines, as it is or spoilt.
  QString Next() {
    QString line = Any();
    switch (Pick(6)) {
      case 0:
        return line.left(Pick(line.size() + 1));
      case 1:
        return line.insert(Pick(line.size() + 1), QChar(Pick(0x3000)));
      case 2:
        return line.section(' ', 0, 0) + " " + Any().section(' ', 1);
      case 3:
        return line.section('"', 0, -2) + "\" " + Value();
      default:
        return line;
    }
  }

 private:
  int Pick(qsizetype count) {
    return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
  }
  QString Any() { return lines_[Pick(lines_.size())]; }
  QString Value() {
    static const QStringList values = {
        "1e308", "-1",  "\"\"",   "nan",  "99999999999", "0", "\\", "\"", QString(5000, 'x'),
        "F1",    "Tab", "-32768", "1e-45"};
    return values[Pick(values.size())];
  }

  std::mt19937 random_;
  QStringList lines_;
};

/// The files of a folder and what is in them.
std::map<std::string, QByteArray> FilesIn(const QString& folder) {
  std::map<std::string, QByteArray> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(FromQt(folder))) {
    QFile file(ToQt(entry.path().string()));
    files[entry.path().string()] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  return files;
}

TEST(HostileSession, PlaysOnAndWritesNothing) {
  QTemporaryDir folder;
  std::filesystem::copy(LIGNARA_DATA_DIRECTORY, FromQt(folder.path()));
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());
  const auto files = FilesIn(folder.path());
  SessionState session;
  ScriptPlatform platform(session, [](const QString&) {});
  const FaultScope faults(platform);
  Sessions sessions(session, platform);
  StartSession(session, FromQt(folder.path()));
  platform.PaintNothing();
  platform.OpenWindow("main");
  Mutator mutator(1, KeptLines());
  QStringList rest;
  int stops = 0;
  for (int played = 0; played < LineCount();) {
    if (rest.isEmpty()) {
      for (int i = 0; i < 50; ++i) rest << mutator.Next();
    }
    const SessionPlay play = PlaySession(rest, "hostile", platform, [](int) { return true; });
    const int done =
        play.stop.isEmpty() ? static_cast<int>(rest.size()) : play.stop.section(':', 1, 1).toInt();
    stops += play.stop.isEmpty() ? 0 : 1;
    ASSERT_GT(done, 0);
    played += done;
    // The next lines act in the window that was opened last, as a rule.
    rest = rest.mid(done);
    if (!rest.isEmpty()) rest.prepend("window " + platform.OpenWindows().last());
    ASSERT_TRUE(platform.OpenWindows().contains("main"));
  }
  EXPECT_GT(stops, 0);
  EXPECT_EQ(FilesIn(folder.path()), files);
  QDir::setCurrent(before);
}

TEST(HostileSession, AFileWithoutAnEndIsRefused) {
  QString refusal;
  EXPECT_TRUE(ReadSessionFile("/dev/zero", refusal).isEmpty());
  EXPECT_EQ(FromQt(refusal), "/dev/zero is too large for a session");
}

}  // namespace
}  // namespace lignara
