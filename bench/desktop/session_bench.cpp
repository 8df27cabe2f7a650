// What recording, the journal and playing cost. The goals: an action is recorded in less than 20
// microseconds beside the flush of its journal, 2000 actions play in less than 2 seconds, and a
// truss of six panels has more than 20 variants a second.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <memory>
#include <stdexcept>

#include "app/fault.h"
#include "app/launcher.h"
#include "desktop/kit/text.h"
#include "desktop/session/control_finder.h"
#include "desktop/session/control_kinds.h"
#include "desktop/session/journal.h"
#include "desktop/session/program_start.h"
#include "desktop/session/session_player.h"
#include "desktop/session/session_record.h"
#include "desktop/session/variants.h"
#include "script/script_platform.h"

namespace lignara {
namespace {

const QStringList kSixPanels = {"press \"PRATT1\"",
                                "window TR_INPUT",
                                "enter \"Number of Spans\" 6",
                                "enter \"Total Length (ft)\" 30",
                                "enter \"H (ft)\" 7.5",
                                "press \"OK\"",
                                "window TRUSS"};
const QStringList kLoadsAndRun = {"select \"Top Node Loads (lbs)\" 1",
                                  "enter \"Top Node Loads (lbs)\" 1000",
                                  "press \"Enter\"",
                                  "select \"Top Node Loads (lbs)\" 2",
                                  "enter \"Top Node Loads (lbs)\" 500",
                                  "press \"Enter\"",
                                  "press \"Unif. Load (lb/ft)\"",
                                  "enter \"Uniform Load (Line Load)\" \"Load (lb / ft)\" 100",
                                  "press \"Uniform Load (Line Load)\" \"Apply\"",
                                  "press \"Run\""};

/// The program as it stands after its start.
class Desk {
 public:
  explicit Desk(bool painted) : platform(session, [](const QString&) {}), faults_(platform) {
    if (!painted) platform.PaintNothing();
    StartSession(session, LIGNARA_DATA_DIRECTORY);
    platform.OpenWindow(window_name::kLauncher);
    QApplication::processEvents();
  }

  void Play(const QStringList& lines) {
    const SessionPlay play = PlaySession(lines, "bench", platform, [](int) { return true; });
    if (!play.stop.isEmpty()) throw std::runtime_error(FromQt(play.stop));
  }

  SessionState session;
  ScriptPlatform platform;

 private:
  FaultScope faults_;
};

/// Recording one action of a user in a truss window, its journal left out.
void RecordAnAction(benchmark::State& state, UserAction::Kind kind, const char* caption,
                    const char* text) {
  Desk desk(false);
  desk.Play(kSixPanels);
  SessionRecord record;
  ToolWindow* window = desk.platform.FindWindow("TRUSS");
  QWidget* control = FindControl(window, {caption}, {KindsOf(kind)});
  std::size_t told = 0;
  record.OnAppend(
      [&told](const QStringList& lines) { told += static_cast<std::size_t>(lines.size()); });
  for (auto _ : state) {
    record.Begin(window, {kind, control, nullptr, text});
    record.End();
  }
  benchmark::DoNotOptimize(told);
}
BENCHMARK_CAPTURE(RecordAnAction, Press, UserAction::Kind::Press, "Run", "");
BENCHMARK_CAPTURE(RecordAnAction, Enter, UserAction::Kind::Enter, "Top Node Loads (lbs)", "1250.5");
BENCHMARK_CAPTURE(RecordAnAction, Select, UserAction::Kind::Select, "Top Node Loads (lbs)", "3");
BENCHMARK_CAPTURE(RecordAnAction, Click, UserAction::Kind::Click, "Truss", "2400 1500");

/// An action's line on its way to the disk of the folder for passing files, flushed.
void AppendToJournal(benchmark::State& state) {
  const QTemporaryDir folder;
  Journal journal(folder.path());
  for (auto _ : state) journal.Append({"enter \"Top Node Loads (lbs)\" 1250.5"});
  if (!journal.IsWritten()) state.SkipWithError("the journal could not be written");
}
BENCHMARK(AppendToJournal)->Unit(benchmark::kMicrosecond);

/// Work on one truss, or truss after truss, until 2000 actions are done.
QStringList TwoThousandActions(bool oneTruss) {
  constexpr qsizetype kActions = 2000;
  QStringList lines = kSixPanels;
  while (lines.size() < kActions) {
    if (!oneTruss) lines << QString("window main") << kSixPanels;
    lines << kLoadsAndRun;
  }
  return lines.mid(0, kActions);
}

void Play2000Actions(benchmark::State& state, bool oneTruss, bool painted) {
  const QStringList lines = TwoThousandActions(oneTruss);
  Desk desk(painted);
  for (auto _ : state) {
    StartProgramAgain(desk.session, desk.platform);
    desk.Play(lines);
  }
}
BENCHMARK_CAPTURE(Play2000Actions, OneTrussUnpainted, true, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Play2000Actions, OneTrussPainted, true, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Play2000Actions, TrussAfterTrussUnpainted, false, false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Play2000Actions, TrussAfterTrussPainted, false, true)
    ->Unit(benchmark::kMillisecond);

/// Another length of a truss of six panels, from the launcher to its forces.
void PlayVariants(benchmark::State& state) {
  Desk desk(false);
  Variants variants;
  variants.lines = kSixPanels + kLoadsAndRun + QStringList("rows \"Axial Load (lbs)\"");
  variants.enterLine = 3;
  int length = 20;
  for (auto _ : state) {
    const QString value = QString::number(length++ % 40 + 20);
    const VariantOutcome outcome = PlayVariant(variants, value, desk.session, desk.platform);
    if (outcome.read.size() != 1) state.SkipWithError(FromQt(outcome.stop).c_str());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PlayVariants)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lignara

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
