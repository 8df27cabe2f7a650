#include <benchmark/benchmark.h>

#include "app/launcher.h"
#include "bench/silent_platform.h"
#include "wood/member_size_window.h"
#include "wood/wood_data_base_window.h"
#include "wood/wood_report.h"

namespace lignara {
namespace {

/// Reads the western index file and the first species file in it.
void ReadLumberFiles(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  WoodDataBaseWindow window;
  for (auto _ : state) {
    ChooseFamily(window, session, platform, WoodFamily::Western);
    ChooseSpeciesFile(window, session, platform, 1);
    ChooseGrade(window, session, platform, 1);
    benchmark::DoNotOptimize(window.selection.fb);
  }
  if (window.selection.fb.empty()) state.SkipWithError("the data files were not read");
}
BENCHMARK(ReadLumberFiles);

/// Opens the factor panel, answers it, calculates, and applies the factors to a grade.
void ApplyFactors(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  WoodDataBaseWindow window;
  ChooseFamily(window, session, platform, WoodFamily::Western);
  ChooseSpeciesFile(window, session, platform, 1);
  ChooseGrade(window, session, platform, 1);
  for (auto _ : state) {
    OpenFactorPanel(window, platform);
    ChooseFactorRow(window, platform, FactorList::Width, 3);
    AnswerFactorPair(window, platform, FactorPair::FlatUse, true);
    AnswerFactorPair(window, platform, FactorPair::Moisture, true);
    CalculateFactors(window, platform);
    AcceptFactors(window, session, platform);
    benchmark::DoNotOptimize(window.selection.fb);
  }
}
BENCHMARK(ApplyFactors);

void WriteLumberReport(benchmark::State& state) {
  WoodDataBaseWindow window;
  SilentPlatform platform;
  OpenFactorPanel(window, platform);
  for (auto _ : state) {
    benchmark::DoNotOptimize(ReportText(WoodReport(window, WoodReportForm::File)));
  }
}
BENCHMARK(WriteLumberReport);

/// All 196 pairs of the width and depth buttons as a beam, the refused ones included.
void AcceptAllPairs(benchmark::State& state) {
  SilentPlatform platform;
  SessionState session;
  StartSession(session, "");
  session.DesignMode = "BEAM";
  MemberSizeWindow window;
  OpenMemberSize(window, session, platform);
  const int buttons = static_cast<int>(kNominalSizes.size());
  for (auto _ : state) {
    for (int pair = 0; pair < buttons * buttons; ++pair) {
      PickWidth(window, pair / buttons);
      PickDepth(window, pair % buttons);
      AcceptSize(window, session, platform);
      benchmark::DoNotOptimize(session.Member);
    }
  }
  state.SetItemsProcessed(state.iterations() * buttons * buttons);
}
BENCHMARK(AcceptAllPairs);

}  // namespace
}  // namespace lignara
