#include <benchmark/benchmark.h>

#include "bench/bench_truss.h"
#include "truss/axial_loads.h"
#include "truss/truss_statics.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// The second opinion on a run of a truss, from the description to the line; has to grow linearly
/// with the panels.
void TrussCheck(benchmark::State& state, const std::string& type) {
  BenchTruss truss(type, static_cast<int>(state.range(0)));
  const FaultScope faults(truss.platform);
  TrussJob job(truss.window.model, truss.session, truss.platform);
  AnalyseTruss(job);
  const TrussReactions reactions = ReactionsOf(truss.window.model);
  // As after a run with sizes, but for the figures of the deflections.
  const int half = HalfSpans(truss.session);
  truss.window.model.DeflL.Allocate(half);
  truss.window.model.DeflR.Allocate(half);
  truss.window.model.DeflT.Allocate(1);
  for (auto _ : state) {
    CheckTrussStatics(truss.window, truss.session, reactions);
    benchmark::DoNotOptimize(truss.window.statics.line.data());
  }
  state.SetComplexityN(state.range(0));
}

const bool kRegistered = [] {
  for (const TrussTypeInfo& type : TrussTypes()) {
    auto* bench = benchmark::RegisterBenchmark(("TrussCheck/" + type.keyword).c_str(), TrussCheck,
                                               type.keyword);
    bench->Unit(benchmark::kMillisecond);
    if (type.CountsPanels()) {
      bench->Arg(6)->Arg(64)->Arg(4000)->Complexity(benchmark::oN);
    } else {
      bench->Arg(4);
    }
  }
  return true;
}();

}  // namespace
}  // namespace lignara
