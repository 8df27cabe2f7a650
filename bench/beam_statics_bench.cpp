#include <benchmark/benchmark.h>

#include "app/session_state.h"
#include "multispan/multi_span_solution.h"
#include "multispan/multi_span_statics.h"
#include "statics/beam.h"

namespace lignara {
namespace {

/// Spans of 9, 10 and 11 ft in turn under a level load, a sloped one over a part, and forces.
ContinuousBeam BenchBeam(int spans, int forces) {
  ContinuousBeam beam;
  for (int j = 0; j < spans; ++j) {
    LoadedSpan span{9.0 + j % 3, 1e6, {}, {}, {}};
    span.spreads = {{0, span.length, 100, 100}, {2, 7, 0, 150}};
    for (int k = 1; k <= forces; ++k) span.forces.push_back({500, span.length * k / (forces + 1)});
    beam.spans.push_back(span);
  }
  return beam;
}

/// Reactions and all extremes. Arguments: spans, forces on each.
void SolveBeamStatics(benchmark::State& state) {
  const ContinuousBeam beam =
      BenchBeam(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  for (auto _ : state) benchmark::DoNotOptimize(SolveStatics(beam));
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(SolveBeamStatics)
    ->Args({1, 2})
    ->Args({1, 100})
    ->Args({51, 0})
    ->Args({51, 2})
    ->Args({51, 50})
    ->Args({510, 2})
    ->Unit(benchmark::kMicrosecond);

/// All that the check adds to a run of the multi-span beam: solving, comparing, the line, and the
/// texts for the saved table.
void CheckMultiSpan(benchmark::State& state) {
  SessionState session;
  MultiSpanModel& model = session.MultiSpan;
  model.spanCount = static_cast<int>(state.range(0));
  for (int j = 1; j <= state.range(0); ++j) {
    model.spanLength[j] = 9 + j % 3;
    model.spanE[j] = 1600000;
    model.spanI[j] = 100;
    model.spanUniform[j] = 100;
  }
  MultiSpanResults window;
  window.run = std::make_shared<const MultiSpanSolution>(solveMultiSpan(model));
  for (auto _ : state) {
    CheckMultiSpanStatics(window, session);
    benchmark::DoNotOptimize(window.statics.line);
  }
  if (window.statics.differences.empty()) state.SkipWithError("nothing was compared");
}
BENCHMARK(CheckMultiSpan)->Arg(2)->Arg(51)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lignara
