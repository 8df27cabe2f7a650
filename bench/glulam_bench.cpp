#include <benchmark/benchmark.h>

#include "app/launcher.h"
#include "bench/silent_platform.h"
#include "glulam/glulam_window.h"

namespace lignara {
namespace {

/// All steps from the published values to the allowables of one member.
void RecomputeGlulam(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  GlulamWindow window;
  OpenGlulamWindow(window, session, platform);
  window.length = "24";
  window.depth = "36";
  window.width = "8.75";
  window.dryUse = false;
  window.duration = 1;
  LoadCombinationFile(window, session, platform, 1);
  for (auto _ : state) {
    RecomputeAllowables(window, session, platform);
    benchmark::DoNotOptimize(window.values);
  }
}
BENCHMARK(RecomputeGlulam);

void LoadGlulamFile(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  GlulamWindow window;
  OpenGlulamWindow(window, session, platform);
  for (auto _ : state) LoadCombinationFile(window, session, platform, 1);
}
BENCHMARK(LoadGlulamFile);

}  // namespace
}  // namespace lignara
