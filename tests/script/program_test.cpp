// The script tool as a program: what it prints, what it says on standard error, how it ends.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

constexpr int kTimeout = 60000;

struct Outcome {
  int status = -1;
  std::string output;
  std::string error;
};

Outcome RunProgram(const QStringList& arguments, const QByteArray& input = "") {
  QProcess program;
  program.start(LIGNARA_SCRIPT_PROGRAM, arguments);
  program.write(input);
  program.closeWriteChannel();
  EXPECT_TRUE(program.waitForFinished(kTimeout));
  return {program.exitCode(), program.readAllStandardOutput().toStdString(),
          program.readAllStandardError().toStdString()};
}

Outcome Play(const QByteArray& script) {
  return RunProgram({"--data", LIGNARA_DATA_DIRECTORY}, script);
}

TEST(ScriptProgram, PlaysStandardInput) {
  const Outcome outcome = Play("# nothing\n\nread title\nwindows\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "value \"Ostrel's Lignara\"\nwindow main\n");
  EXPECT_EQ(outcome.error, "");
}

TEST(ScriptProgram, PlaysAFile) {
  QTemporaryDir directory;
  const QString path = directory.filePath("a.lig");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("windows\r\npress \"No such command\"\nwindows\n");
  file.close();
  const Outcome outcome = RunProgram({"--data", LIGNARA_DATA_DIRECTORY, path});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "window main\n") << "the run stops at the line";
  EXPECT_EQ(outcome.error, FromQt(path) + ":2: no control is named \"No such command\"\n");
}

TEST(ScriptProgram, StandardInputIsNamedByADash) {
  EXPECT_EQ(Play("windows\nwindow TRUSS\n").error, "-:2: the window TRUSS is not open\n");
}

TEST(ScriptProgram, AnswersBeforeTheNextLineIsRead) {
  QProcess program;
  program.start(LIGNARA_SCRIPT_PROGRAM, {"--data", LIGNARA_DATA_DIRECTORY});
  for (int turn = 0; turn < 3; ++turn) {
    program.write("windows\n");
    ASSERT_TRUE(program.waitForReadyRead(kTimeout));
    EXPECT_EQ(program.readAllStandardOutput().toStdString(), "window main\n");
  }
  program.closeWriteChannel();
  EXPECT_TRUE(program.waitForFinished(kTimeout));
}

TEST(ScriptProgram, WrongUsageEndsWithTwo) {
  for (const QStringList& arguments :
       {QStringList{"--no-such-option"}, QStringList{"a.lig", "b.lig"}, QStringList{"--data"},
        QStringList{"no such file.lig"}, QStringList{"--data", "no such directory"},
        QStringList{LIGNARA_DATA_DIRECTORY}}) {
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.status, 2) << FromQt(arguments.join(' '));
    EXPECT_NE(outcome.error, "") << FromQt(arguments.join(' '));
    EXPECT_EQ(outcome.output, "");
  }
}

/// The reactions of a truss of 30 ft under 100 lb per foot, as "Save Session..." writes it, with
/// what is to be read at its end.
const QByteArray kTruss =
    "# A session, to be opened again or run by lignara-script\n"
    "press \"PRATT1\"\n"
    "window TR_INPUT\n"
    "enter \"Number of Spans\" 6\n"
    "enter \"Total Length (ft)\" 30\n"  // line 5
    "enter \"H (ft)\" 7.5\n"
    "press \"OK\"\n"
    "window TRUSS\n"
    "press \"Unif. Load (lb/ft)\"\n"
    "enter \"Load (lb / ft)\" 100\n"
    "press \"Apply\"\n"
    "press \"Run\"\n"
    "window main\n"
    "window TRUSS\n"
    "read \"Left Side\"\n";

Outcome Repeat(const QString& lineAndValues, const QByteArray& script) {
  QTemporaryDir directory;
  QFile file(directory.filePath("a.lig"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(script);
  file.close();
  return RunProgram({"--data", LIGNARA_DATA_DIRECTORY, "--repeat", lineAndValues, file.fileName()});
}

TEST(ScriptProgram, RepeatPrintsARowForEachValue) {
  const Outcome outcome = Repeat("5=20..40 step 10", kTruss);
  EXPECT_EQ(outcome.status, 0);
  // Half of 100 lb/ft over the length.
  EXPECT_EQ(outcome.output, "Total Length (ft),Left Side\n20,1000.00\n30,1500.00\n40,2000.00\n");
}

TEST(ScriptProgram, RepeatHasNoRowForAValueThatCannotBePlayed) {
  const Outcome outcome = Repeat("5=20, 0, 40", kTruss);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "Total Length (ft),Left Side\n20,1000.00\n40,2000.00\n")
      << "the values after it are played";
  EXPECT_NE(outcome.error.find("0:8: the window TRUSS is not open\n"), std::string::npos)
      << outcome.error;
}

TEST(ScriptProgram, RepeatTellsWhatBoxesSaidUnderTheirValue) {
  // No sizes and no wood are chosen: the run says so. Without a length there is none.
  EXPECT_EQ(Repeat("5=20, 0", kTruss).error,
            "20: AREA OR MOD. PROP. NOT SELECTED, NO DEF. WILL BE CALCULATED\n"
            "20: NO STRESS WILL BE CALCULATED, NEED WOOD TYPE & SIZE\n"
            "0: ERROR!: You must enter a total length.\n"
            "0:8: the window TRUSS is not open\n");
}

TEST(ScriptProgram, RepeatOfWhatCannotBeRepeatedEndsWithTwo) {
  for (const char* asked : {"", "5", "5=", "=20", "1=20", "4711=20", "7=20", "5=1..0"}) {
    const Outcome outcome = Repeat(asked, kTruss);
    EXPECT_EQ(outcome.status, 2) << asked;
    EXPECT_NE(outcome.error, "") << asked;
    EXPECT_EQ(outcome.output, "") << asked;
  }
}

/// Where a program keeps its journals, for as long as this lives.
class StateFolder {
 public:
  StateFolder() { qputenv(kVariable, directory_.path().toLocal8Bit()); }
  ~StateFolder() { before_.isNull() ? qunsetenv(kVariable) : qputenv(kVariable, before_); }

  bool IsEmpty() const { return QDir(directory_.path()).isEmpty(); }

 private:
  static constexpr const char* kVariable = "XDG_STATE_HOME";
  const QByteArray before_ = qgetenv(kVariable);
  const QTemporaryDir directory_;
};

TEST(ScriptProgram, KeepsNoJournalWhileItRuns) {
  const StateFolder state;
  QProcess program;
  program.start(LIGNARA_SCRIPT_PROGRAM, {"--data", LIGNARA_DATA_DIRECTORY});
  program.write("press \"PRATT1\"\nwindows\n");
  ASSERT_TRUE(program.waitForReadyRead(kTimeout));
  EXPECT_TRUE(state.IsEmpty()) << "after an action";
  program.kill();
  EXPECT_TRUE(program.waitForFinished(kTimeout));
  EXPECT_TRUE(state.IsEmpty()) << "after a crash";
}

TEST(ScriptProgram, LeavesNoFileBehind) {
  const StateFolder state;
  EXPECT_EQ(Play(kTruss).status, 0);
  EXPECT_EQ(Repeat("5=20, 0", kTruss).status, 1);
  EXPECT_TRUE(state.IsEmpty());
}

struct Refusal {
  const char* script;
  const char* error;
};

class ScriptRefusalTest : public testing::TestWithParam<Refusal> {};

TEST_P(ScriptRefusalTest, StopsWithStatusOne) {
  const Outcome outcome = Play(GetParam().script);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.error, GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ScriptRefusalTest,
    testing::Values(
        Refusal{"dance\n", "-:1: there is no action \"dance\"\n"},
        Refusal{"press\n", "-:1: wrong number of words for \"press\"\n"},
        Refusal{"press \"Ply Wood\n", "-:1: a quote is not closed\n"},
        Refusal{"press \"KINGPOST\"\nwindow TR_INPUT\nenter \"Number of Spans\" 4\n",
                "-:3: the control \"Number of Spans\" is disabled\n"},
        Refusal{"press \"Enter No. of Spans\"\n",
                "-:1: no control is named \"Enter No. of Spans\"\n"},
        Refusal{"press \"PRATT1\"\nwindow TR_INPUT\npress \"Slope Calculator\" \"OK\"\n",
                "-:3: no control is named \"Slope Calculator\" \"OK\"\n"},
        Refusal{"menu \"Files\" \"Open\"\n", "-:1: there is no such menu item\n"},
        Refusal{"menu \"Files\"\n", "-:1: there is no such menu item\n"},
        Refusal{"menu \"Help\" \"About...\"\npress \"PRATT1\"\n",
                "-:2: the window main waits for a modal one\n"},
        Refusal{"menu \"Help\" \"About...\"\nwindow ABOUT\nwindow main\n",
                "-:3: the window main waits for a modal one\n"},
        Refusal{"close\nwindows\nread title\n", "-:3: the window main is not open\n"},
        Refusal{"answer maybe\n", "-:1: there is no answer \"maybe\"\n"},
        Refusal{"answer text\n", "-:1: wrong number of words for \"answer\"\n"},
        Refusal{"answer yes no\n", "-:1: wrong number of words for \"answer\"\n"},
        Refusal{"key \"Enter No. of Spans\" Nonsense\n", "-:1: there is no key \"Nonsense\"\n"},
        Refusal{"enter \"Trusses\" 1\n", "-:1: no control is named \"Trusses\"\n"}));

}  // namespace
}  // namespace lignara
