#include <benchmark/benchmark.h>

#include "bench/bench_truss.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// A whole "Run" with deflections, stress check and picture: an analysis for each node.
void WholeRun(benchmark::State& state, const std::string& type) {
  BenchTruss truss(type, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    RunTruss(truss.window, truss.session, truss.platform);
    benchmark::DoNotOptimize(truss.window.stressRows.data());
  }
  state.SetComplexityN(state.range(0));
}

const bool kRegistered = [] {
  for (const TrussTypeInfo& type : TrussTypes()) {
    auto* bench =
        benchmark::RegisterBenchmark(("WholeRun/" + type.keyword).c_str(), WholeRun, type.keyword);
    bench->Arg(4)->Unit(benchmark::kMillisecond);
    if (!type.CountsPanels()) continue;
    bench->Arg(16)->Arg(64)->Arg(256)->Complexity(benchmark::oNSquared);
  }
  return true;
}();

}  // namespace
}  // namespace lignara
