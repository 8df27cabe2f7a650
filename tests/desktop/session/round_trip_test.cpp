// What is recorded while a script is played is a script that does the same.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <filesystem>
#include <memory>

#include "app/fault.h"
#include "app/launcher.h"
#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_line.h"
#include "desktop/session/script_player.h"
#include "desktop/session/session_record.h"
#include "script/script_platform.h"

namespace lignara {
namespace {

const QStringList kOnlyRead = {"read",    "rows",    "state",     "shapes",
                               "windows", "picture", "screenshot"};

/// The program in a copy of its data folder, with a record of what is done in it.
class RecordedProgram {
 public:
  explicit RecordedProgram(const QString& replacements) {
    namespace fs = std::filesystem;
    const fs::path folder = FromQt(directory_.path());
    fs::copy(LIGNARA_DATA_DIRECTORY, folder);
    if (QDir(replacements).exists()) {
      fs::copy(FromQt(replacements), folder, fs::copy_options::overwrite_existing);
    }
    QFile removed(directory_.filePath("REMOVED"));
    if (removed.open(QIODevice::ReadOnly)) {
      for (const QByteArray& name : removed.readAll().split('\n')) {
        if (!name.isEmpty()) QFile::remove(directory_.filePath(QString(name)));
      }
    }
    QDir::setCurrent(directory_.path());
    StartSession(session_, FromQt(directory_.path()));
    platform_.PaintNothing();
    platform_.OpenWindow("main");
    platform_.SetListener(&record_);
    QCoreApplication::processEvents();
  }

  /// Plays lines up to one that cannot be carried out. Lines that only read are put into the
  /// record.
  void Play(const QStringList& lines) {
    for (const QString& line : lines) {
      const auto words = SplitScriptLine(line);
      const QString verb = words.empty() ? QString() : words[0].text;
      try {
        player_.Play(line);
      } catch (const ScriptError& error) {
        printed_ << "(" + error.reason + ")";
        record_.AddLine(player_.window(), line);  // as it stops this run, it stops the next
        return;
      }
      if (kOnlyRead.contains(verb)) record_.AddLine(player_.window(), line);
    }
  }

  /// What was printed; where the copy lies differs from run to run.
  QStringList Printed() const {
    QStringList lines = printed_;
    return lines.replaceInStrings(directory_.path(), "(data folder)");
  }
  QStringList Lines() const { return record_.Lines(); }

 private:
  QTemporaryDir directory_;
  QStringList printed_;
  SessionState session_;
  ScriptPlatform platform_{session_, [this](const QString& line) { printed_ << line; }};
  FaultScope faults_{platform_};
  SessionRecord record_;
  ScriptPlayer player_{platform_, platform_.answers(),
                       [this](const QString& line) { printed_ << line; }};
};

QStringList LinesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
  return QTextStream(&file).readAll().split('\n');
}

class RoundTripTest : public testing::TestWithParam<std::string> {};

TEST_P(RoundTripTest, TheRecordOfAScriptPrintsTheSame) {
  const QString path = QString(LIGNARA_SCRIPTS_DIRECTORY) + "/" + ToQt(GetParam());
  const QString replacements = QString(path).replace(".lig", ".data");
  RecordedProgram first(replacements);
  first.Play(LinesOf(path));
  const QStringList record = first.Lines();
  RecordedProgram second(replacements);
  second.Play(record);
  const QStringList expected = first.Printed();
  const QStringList printed = second.Printed();
  for (qsizetype i = 0; i < std::max(printed.size(), expected.size()); ++i) {
    ASSERT_EQ(FromQt(printed.value(i)), FromQt(expected.value(i)))
        << "line " << i << " of the transcript; the record:\n"
        << FromQt(record.join('\n'));
  }
  EXPECT_EQ(FromQt(second.Lines().join('\n')), FromQt(record.join('\n')))
      << "a record that is played is recorded as it stands";
}

std::vector<std::string> KeptScripts() {
  std::vector<std::string> names;
  const QDir folder(LIGNARA_SCRIPTS_DIRECTORY);
  for (const QString& name : folder.entryList({"*.lig"})) names.push_back(FromQt(name));
  return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  return info.param.substr(0, info.param.find('.'));
}

INSTANTIATE_TEST_SUITE_P(KeptScripts, RoundTripTest, testing::ValuesIn(KeptScripts()), TestName);

}  // namespace
}  // namespace lignara
