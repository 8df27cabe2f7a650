// How windows close: the order of the program's exit, modal windows, a truss in place of another.

#include <gtest/gtest.h>

#include <QApplication>

#include "app/fault.h"
#include "app/launcher.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/script_player.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

/// Writes down which open windows the program closes.
class ClosingPlatform : public ScriptPlatform {
 public:
  using ScriptPlatform::ScriptPlatform;

  void CloseWindow(const std::string& name) override {
    if (FindWindow(QString::fromStdString(name)) != nullptr) closed.push_back(name);
    ScriptPlatform::CloseWindow(name);
  }

  std::vector<std::string> closed;
};

class ClosingTest : public testing::Test {
 protected:
  ClosingTest() {
    StartSession(session_, LIGNARA_DATA_DIRECTORY);
    // In another order than that of the exit.
    for (const char* name : {"main", "HELP", "TRUSS", "TR_INPUT", "QUESTION"}) {
      if (std::string(name) == "TRUSS") OpenTrussWindow();
      platform_.OpenWindow(name);
    }
  }

  void OpenTrussWindow() {
    session_.TrussType = "KINGPOST";
    session_.TrussSpans = 4;
    session_.TrussLength = 24;
    session_.TrussHeight = 5;
  }

  const std::vector<std::string> kOrder = {"QUESTION", "TR_INPUT", "TRUSS", "HELP", "main"};

  SessionState session_;
  ClosingPlatform platform_{session_, [](const QString&) {}};
  FaultScope faults_{platform_};
  ScriptPlayer player_{platform_, platform_.answers(), [](const QString&) {}};
};

TEST_F(ClosingTest, ExitClosesTheOpenWindowsInItsOrderAndTheLauncherLast) {
  player_.Play("menu \"Files\" \"Exit\"");
  EXPECT_EQ(platform_.closed, kOrder);
  EXPECT_TRUE(platform_.OpenWindows().isEmpty());
}

TEST_F(ClosingTest, TheCloseControlOfTheLauncherDoesTheSame) {
  player_.Play("close");
  EXPECT_EQ(platform_.closed, kOrder);
  EXPECT_TRUE(platform_.OpenWindows().isEmpty());
}

TEST_F(ClosingTest, ATrussPictureClosesTheTrussBeforeItOpensTheInput) {
  player_.Play("press \"FINK\"");
  EXPECT_EQ(platform_.closed, std::vector<std::string>({"TRUSS", "TR_INPUT"}));
  EXPECT_EQ(platform_.OpenWindows(), QStringList({"main", "HELP", "QUESTION", "TR_INPUT"}));
}

TEST_F(ClosingTest, AboutAloneIsModalAndKeepsTheOthersOut) {
  for (const char* name : {"main", "HELP", "TRUSS", "TR_INPUT", "QUESTION"}) {
    EXPECT_FALSE(platform_.FindWindow(name)->isModal()) << name;
  }
  player_.Play("menu \"Help\" \"About...\"");
  EXPECT_TRUE(platform_.FindWindow("ABOUT")->isModal());
  for (const char* name : {"main", "HELP", "TRUSS", "TR_INPUT", "QUESTION"}) {
    EXPECT_TRUE(platform_.IsBlocked(platform_.FindWindow(name))) << name;
  }
  EXPECT_FALSE(platform_.IsBlocked(platform_.FindWindow("ABOUT")));
}

}  // namespace
}  // namespace lignara
