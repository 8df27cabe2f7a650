#include "app/launcher.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/data_directory.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

const std::string kTooFewSpans = "You must enter at least 2 spans";
const std::string kOverflow(FaultText(Fault::Overflow));

/// Notes, with each window opened or closed, what the session held at that moment.
class WatchingPlatform : public RecordingPlatform {
 public:
  explicit WatchingPlatform(const SessionState& session) : session_(session) {}

  void OpenWindow(const std::string& name) override { Note("open " + name); }
  void CloseWindow(const std::string& name) override { Note("close " + name); }

 private:
  void Note(const std::string& call) {
    calls.push_back(call + " " + session_.TrussType + "/" + session_.DesignMode);
  }

  const SessionState& session_;
};

class Launcher : public testing::Test {
 protected:
  void PressMultiSpanBeam(const std::string& spans) {
    window.spanText = spans;
    StartMultiSpanBeam(window, session, platform);
  }

  LauncherWindow window;
  SessionState session;
  RecordingPlatform platform;
};

// Truss commands.

class TrussCommand : public testing::TestWithParam<const char*> {};

TEST_P(TrussCommand, SetsTheTypeAndOpensTheInput) {
  SessionState session;
  RecordingPlatform platform;
  StartTruss(GetParam(), session, platform);
  EXPECT_EQ(session.TrussType, GetParam());
  EXPECT_EQ(session.DesignMode, "TRUSS");
  EXPECT_EQ(platform.calls.back(), "open TR_INPUT");
  EXPECT_TRUE(platform.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(AllTypes, TrussCommand,
                         testing::Values("PRATT1", "FINK", "ENGLISH", "KINGPOST", "SCI", "HOWE",
                                         "PRATT2", "WARREN"));

TEST_F(Launcher, TrussCommandClosesTheTrussThenSetsTheTypeThenOpensTheInput) {
  session.TrussType = "PRATT1";
  session.DesignMode = "BEAM";
  WatchingPlatform watching(session);
  StartTruss("FINK", session, watching);
  EXPECT_EQ(watching.calls, (Texts{"close TRUSS PRATT1/BEAM", "close TR_INPUT PRATT1/BEAM",
                                   "open TR_INPUT FINK/TRUSS"}));
}

TEST_F(Launcher, ASecondTrussCommandThrowsTheTrussAwayWithoutAQuestion) {
  StartTruss("FINK", session, platform);
  platform.calls.clear();
  StartTruss("HOWE", session, platform);
  EXPECT_EQ(platform.calls.front(), "close TRUSS");
  EXPECT_EQ(session.TrussType, "HOWE");
  EXPECT_TRUE(platform.asked.empty());
}

// Multi-span beam.

struct SpanRow {
  const char* text;
  int stored;
  bool opens;
};

class SpanCounts : public testing::TestWithParam<SpanRow> {};

TEST_P(SpanCounts, AreRoundedTiesToEvenAndCheckedAgainstTwo) {
  const SpanRow& row = GetParam();
  SessionState session;
  RecordingPlatform platform;
  const LauncherWindow window{row.text};
  StartMultiSpanBeam(window, session, platform);
  EXPECT_EQ(session.SpanCount.value(), row.stored);
  EXPECT_EQ(session.DesignMode, "BEAM");
  EXPECT_EQ(platform.calls, row.opens ? Texts{"open MS"} : Texts{});
  EXPECT_EQ(platform.TakeTexts(), row.opens ? Texts{} : Texts{kTooFewSpans});
  EXPECT_EQ(AcceptsSpanCount(window), row.opens);
}

constexpr SpanRow kSpans[] = {
    {"2", 2, true},     {"3", 3, true},    {"1.5", 2, true},       {"2.5", 2, true},
    {"1.51", 2, true},  {"3.5", 4, true},  {"12 spans", 12, true}, {"32767", 32767, true},
    {"1.49", 1, false}, {"1", 1, false},   {"0.5", 0, false},      {"0", 0, false},
    {"", 0, false},     {"two", 0, false}, {"-3", -3, false},      {"-2.5", -2, false},
};
INSTANTIATE_TEST_SUITE_P(Table, SpanCounts, testing::ValuesIn(kSpans));

TEST_F(Launcher, TheRefusalOfASpanCountIsAPlainBox) {
  PressMultiSpanBeam("1");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].title, "Lignara");
  EXPECT_EQ(platform.messages[0].icon, MessageIcon::None);
}

TEST_F(Launcher, ARefusedSpanCountStillTurnsTheModeToBeam) {
  session.DesignMode = "TRUSS";
  PressMultiSpanBeam("0.5");
  EXPECT_EQ(session.DesignMode, "BEAM");
}

TEST_F(Launcher, ACountThatDoesNotFitIsAFaultThatStoresAndOpensNothing) {
  for (const int before : {0, 3}) {
    for (const char* text : {"99999", "32768", "-32769", "1e999"}) {
      session.SpanCount = before;
      session.DesignMode = "TRUSS";
      PressMultiSpanBeam(text);
      EXPECT_EQ(session.SpanCount.value(), before) << text;
      EXPECT_EQ(session.DesignMode, "BEAM") << text;
      EXPECT_EQ(platform.TakeTexts(), Texts{kOverflow}) << text;
      EXPECT_EQ(platform.calls, Texts{}) << text;
      EXPECT_FALSE(AcceptsSpanCount(window)) << text;
      EXPECT_TRUE(platform.messages.empty()) << text;
    }
  }
}

// The other commands.

TEST_F(Launcher, SingleSpanBeamsSetsTheModeAndOpens) {
  session.DesignMode = "TRUSS";
  StartSingleSpanBeam(session, platform);
  EXPECT_EQ(session.DesignMode, "BEAM");
  EXPECT_EQ(platform.calls, Texts{"open MLSP"});
}

TEST_F(Launcher, TheChooserSetsTheModeClosesAndOpensTheCalculator) {
  for (const std::string mode : {"TRUSS", "BEAM"}) {
    SessionState fresh;
    WatchingPlatform watching(fresh);
    ChooseDesignMode(mode, fresh, watching);
    EXPECT_EQ(watching.calls, (Texts{"close QUESTION /" + mode, "open WTYPETR /" + mode}));
  }
}

TEST_F(Launcher, ExitClosesTheWindowsInOrder) {
  CloseAllWindows(platform);
  EXPECT_EQ(platform.calls, (Texts{"close QUESTION", "close TR_INPUT", "close wdb", "close WTYPETR",
                                   "close MLSP", "close ABOUT", "close TRUSS", "close MS",
                                   "close MDOUTPUT", "close ply", "close GL", "close FASTENER"}));
}

TEST_F(Launcher, ACommandLeavesTheOtherStateAlone) {
  StartSession(session, "work");
  StartTruss("FINK", session, platform);
  PressMultiSpanBeam("4");
  StartSingleSpanBeam(session, platform);
  EXPECT_EQ(session.TrussType, "FINK");
  EXPECT_EQ(session.SpanCount.value(), 4);
  EXPECT_EQ(session.DesignMode, "BEAM");
}

}  // namespace
}  // namespace lignara
