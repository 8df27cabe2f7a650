#include "glulam/glulam_report.h"

#include <optional>
#include <string>

#include "app/report_file.h"
#include "glulam/combination_files.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"
#include "glulam/values_and_wet_factors.h"

namespace lignara {
namespace {

/// Of the file loaded last; empty before the first.
std::string FileName(const SessionState& session) {
  const int option = session.GlulamCombinations.Option.value();
  return option == 0 ? "" : kGlulamFiles[static_cast<std::size_t>(option) - 1].reportName;
}

void WriteCombination(Report& report, const GlulamWindow& window, const SessionState& session) {
  constexpr int kLinesAhead = 3;
  for (int i = 0; i < kLinesAhead; ++i) report.Line();
  report.Line(FileName(session));
  report.Line();
  report.Line("Combination Symbol = " + window.combinations.Chosen());
  report.Line("Species outer layer/core layer = " + window.species);
  report.Line();
}

void WriteUseConditions(Report& report, const GlulamWindow& window) {
  report.Line("USE CONDITIONS");
  report.Line(kGlulamMoistures[window.dryUse ? 0 : 1].reportLine);
  if (window.duration >= 0) {
    report.Line(kGlulamDurations[static_cast<std::size_t>(window.duration)].use.reportLine);
  }
  // Without a choice the load counts as several point loads.
  const bool chosen = window.loadType >= 0;
  const auto& loadType = chosen ? kGlulamLoadTypes[static_cast<std::size_t>(window.loadType)]
                                : kGlulamLoadTypes.back();
  report.Line(loadType.reportLine);
  report.Line();
}

void WriteSlenderness(Report& report, const GlulamWindow& window) {
  report.Line("SLENDERNESS DATA");
  report.Line("Assumed unbraced length is " + window.length + " ft");
  report.Line("Depth = " + window.depth + " in");
  report.Line("Width = " + window.width + " in");
  report.Line();
}

void WriteAllowables(Report& report, const GlulamWindow& window) {
  report.Line("ALLOWABLES");
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    report.Line(kGlulamColumns[i].reportLabel + window.values[i] + " psi");
  }
}

}  // namespace

Report GlulamReport(const GlulamWindow& window, const SessionState& session) {
  Report report;
  WriteCombination(report, window, session);
  WriteUseConditions(report, window);
  WriteSlenderness(report, window);
  WriteAllowables(report, window);
  return report;
}

void PrintGlulamReport(const GlulamWindow& window, const SessionState& session,
                       Platform& platform) {
  platform.PrintReport(GlulamReport(window, session));
}

void SaveGlulamReport(const GlulamWindow& window, const SessionState& session, Platform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (file) WriteReportFile(*file, GlulamReport(window, session), platform);
}

}  // namespace lignara
