#include <benchmark/benchmark.h>

#include "app/launcher.h"
#include "beam/beam_window.h"
#include "beam/diagrams.h"
#include "bench/silent_platform.h"

namespace lignara {
namespace {

/// A beam of N stations under level loads of Q point loads each.
class BenchBeam {
 public:
  BenchBeam(double N, double Q, int loads) {
    StartSession(session, "");
    OpenBeam(window, session, platform);
    window.beam.accuracySteps = N;
    window.beam.equivalentLoads = Q;
    SetSupport(window, session, BeamEnd::Left, SupportType::Fixed);
    SetKind(window, LoadKind::LevelUniform);
    window.Field(LoadField::A) = "1";
    window.Field(LoadField::B) = "8.5";
    window.Field(LoadField::W) = "120";
    for (int i = 0; i < loads; ++i) AddLoad(window, platform);
  }

  SilentPlatform platform;
  SessionState session;
  BeamWindow window;
};

/// "RUN" whole: solving, results and the three diagrams. Arguments: N, Q, loads.
void RunSingleSpan(benchmark::State& state) {
  BenchBeam beam(static_cast<double>(state.range(0)), static_cast<double>(state.range(1)),
                 static_cast<int>(state.range(2)));
  for (auto _ : state) {
    RunBeam(beam.window, beam.session, beam.platform);
    benchmark::DoNotOptimize(beam.window.results.maxMoment);
  }
  if (beam.window.maxMoment.empty()) state.SkipWithError("the run was stopped");
}
BENCHMARK(RunSingleSpan)
    ->Args({500, 100, 10})
    ->Args({1000, 100, 10})
    ->Args({500, 1000, 10})
    ->Args({500, 100, 100})
    ->Args({4000, 1000, 101})
    ->Args({8000, 1000, 101})
    ->Args({4000, 10000, 101})
    ->Args({32000, 10000, 101})
    ->Unit(benchmark::kMicrosecond);

/// One step of the scroll bar.
void MoveStation(benchmark::State& state) {
  BenchBeam beam(static_cast<double>(state.range(0)), 100, 10);
  RunBeam(beam.window, beam.session, beam.platform);
  int station = 0;
  for (auto _ : state) {
    MoveToStation(beam.window, station++ % 500);
    benchmark::DoNotOptimize(beam.window.diagrams.shear);
  }
}
BENCHMARK(MoveStation)->Arg(500)->Arg(32000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lignara
