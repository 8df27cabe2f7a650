#include <benchmark/benchmark.h>

#include "app/launcher.h"
#include "bench/silent_platform.h"
#include "connections/bolt_window.h"
#include "connections/fastener_window.h"

namespace lignara {
namespace {

/// Reads the table of bolts and shows the window's first content.
void OpenBolts(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  BoltWindow window;
  for (auto _ : state) {
    OpenBoltWindow(window, session, platform);
    benchmark::DoNotOptimize(window.table);
  }
  if (window.table.size() == 0) state.SkipWithError("the data file was not read");
}
BENCHMARK(OpenBolts);

/// One joint in the middle of a band, where the next bolt stands in, with all factors.
void ComputeOneBolt(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  BoltWindow window;
  OpenBoltWindow(window, session, platform);
  window.L1 = window.L2 = window.L3 = "4.25";
  window.A = "30";
  for (auto _ : state) {
    ComputeShear(window, platform);
    benchmark::DoNotOptimize(window.atAngle);
  }
  if (window.atAngle.empty()) state.SkipWithError("the joint was refused");
}
BENCHMARK(ComputeOneBolt);

void ComputeAllRods(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  BoltWindow window;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  OpenBoltWindow(window, session, platform);
  window.boltStress = "20";
  window.woodStress = "400";
  const int rods = static_cast<int>(window.rods.rows.size());
  for (auto _ : state) {
    for (int row = 0; row < rods; ++row) ChooseRod(window, platform, row);
    benchmark::DoNotOptimize(window.load);
  }
  state.SetItemsProcessed(state.iterations() * rods);
}
BENCHMARK(ComputeAllRods);

void LookUpAllLagScrews(benchmark::State& state) {
  FastenerWindow window;
  OpenFastenerDataBase(window);
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  const int sizes = static_cast<int>(window.sizes.rows.size());
  for (auto _ : state) {
    for (int row = 0; row < sizes; ++row) ChooseFastenerSize(window, row);
    benchmark::DoNotOptimize(window.fields);
  }
  state.SetItemsProcessed(state.iterations() * sizes);
}
BENCHMARK(LookUpAllLagScrews);

}  // namespace
}  // namespace lignara
