#include <benchmark/benchmark.h>

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

}  // namespace
}  // namespace lignara
