// The script tool as a program: what it prints, what it says on standard error, how it ends.

#include <gtest/gtest.h>

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
