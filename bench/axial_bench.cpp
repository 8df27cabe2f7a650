#include <benchmark/benchmark.h>

#include "bench/bench_truss.h"
#include "truss/axial_loads.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// One analysis, from empty arrays to signed loads; has to grow linearly with the panels.
void OneAnalysis(benchmark::State& state, const std::string& type) {
  BenchTruss truss(type, static_cast<int>(state.range(0)));
  const FaultScope faults(truss.platform);
  TrussJob job(truss.window.model, truss.session, truss.platform);
  for (auto _ : state) {
    AnalyseTruss(job);
    benchmark::DoNotOptimize(truss.window.model.NODE_RL);
  }
  state.SetComplexityN(state.range(0));
}

const bool kRegistered = [] {
  for (const TrussTypeInfo& type : TrussTypes()) {
    auto* bench = benchmark::RegisterBenchmark(("OneAnalysis/" + type.keyword).c_str(), OneAnalysis,
                                               type.keyword);
    bench->Arg(4)->Unit(benchmark::kMicrosecond);
    if (type.CountsPanels()) {
      bench->Arg(40)->Arg(400)->Arg(4000)->Complexity(benchmark::oN);
    }
  }
  return true;
}();

}  // namespace
}  // namespace lignara
