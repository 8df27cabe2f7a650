#include <benchmark/benchmark.h>

#include "multispan/beam_deflection.h"
#include "multispan/moment_distribution.h"
#include "multispan/multi_span_solution.h"

namespace lignara {
namespace {

/// Spans of 9, 10 and 11 ft in turn under a uniform load and two point loads each.
MultiSpanModel BenchBeam(int spans, int integrations) {
  MultiSpanModel model;
  model.spanCount = spans;
  model.curveIntegrations = integrations;
  for (int j = 1; j <= spans; ++j) {
    model.spanLength[j] = 9 + j % 3;
    model.spanE[j] = 1600000;
    model.spanI[j] = 100;
    model.spanUniform[j] = 100;
    for (int k = 1; k <= 2; ++k) {
      model.pointLoad[static_cast<std::size_t>(j)][k] = 500;
      model.pointX[static_cast<std::size_t>(j)][k] = 3 * k;
    }
    model.pointCount[j] = 2;
  }
  return model;
}

/// The distribution alone; its cost may grow with cycles times spans, the cube of the spans.
void MultiSpanDistribution(benchmark::State& state) {
  const BeamCase beam = RealLoads(BenchBeam(static_cast<int>(state.range(0)), 8000));
  for (auto _ : state) benchmark::DoNotOptimize(Distribute(beam));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(MultiSpanDistribution)
    ->Arg(2)
    ->Arg(10)
    ->Arg(51)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oNCubed);

/// A whole run at the default of 8000 stations.
void MultiSpanRun(benchmark::State& state) {
  const MultiSpanModel model = BenchBeam(static_cast<int>(state.range(0)), 8000);
  for (auto _ : state) benchmark::DoNotOptimize(solveMultiSpan(model));
}
BENCHMARK(MultiSpanRun)->Arg(2)->Arg(10)->Arg(51)->Unit(benchmark::kMillisecond);

/// The same by stations: the cost has to grow linearly with them.
void MultiSpanRunByStations(benchmark::State& state) {
  const MultiSpanModel model = BenchBeam(10, static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(solveMultiSpan(model));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(MultiSpanRunByStations)
    ->Arg(1000)
    ->Arg(8000)
    ->Arg(32000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// A deflected shape: fifty solves under a unit load.
void MultiSpanDeflectedShape(benchmark::State& state) {
  const MultiSpanSolution run = solveMultiSpan(BenchBeam(static_cast<int>(state.range(0)), 8000));
  for (auto _ : state) benchmark::DoNotOptimize(FindDeflectedShape(run));
}
BENCHMARK(MultiSpanDeflectedShape)->Arg(2)->Arg(10)->Arg(51)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lignara
