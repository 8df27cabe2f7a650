#include "connections/bolt_report.h"

#include <optional>

#include "app/report_file.h"

namespace lignara {
namespace {

constexpr int kLinesAheadOnPaper = 3;

void WriteTension(Report& report, const BoltWindow& window) {
  report.Line("Tension Values");
  report.Line("Bolt Size = " + window.rods.Chosen() + " in");
  report.Line("Allowable Bolt Steel Tensile Stress = " + window.boltStress + " ksi");
  report.Line("Allowable Wood Bearing Stress = " + window.woodStress + " psi");
  report.Line();
  report.Line("Max. Allowable Bolt Tensile Load = " + window.load + " lbs");
  report.Line("Min. Bearing Plate Side Length = " + window.plateSide + " in");
  report.Line("Min. Bearing Plate Thickness = " + window.plateThickness + " in");
}

void WriteShear(Report& report, const BoltWindow& window) {
  report.Line("Shear Values");
  report.Line();
  report.Line("Bolt Size = " + window.bolts.Chosen() + " in");
  report.Line("Allowable Load Parallel to Grain = " + window.parallel + " lbs");
  report.Line("Allowable Load Perp. to Grain = " + window.perpendicular + " lbs");
  report.Line("Allowable Load at Angle " + window.A + " deg. = " + window.atAngle + " lbs");
  report.Line();
}

void WriteThicknesses(Report& report, const BoltWindow& window) {
  if (window.options.IsSingleShear()) {
    report.Line("Thickness of main member is " + window.L1 + " in");
    report.Line("Thickness of second member is " + window.L2 + " in");
    return;
  }
  report.Line("Thickness of Main member is " + window.L1 + " in");
  report.Line("Thickness of first minor member is " + window.L2 + " in");
  report.Line("Thickness of second minor member is " + window.L3 + " in");
}

void WriteConditions(Report& report, const BoltWindow& window) {
  report.Line("Conditions");
  report.Line();
  for (const JointOptionGroup& group : JointOptionGroups()) {
    const char* line = ChosenOf(group, window.options).reportLine;
    if (line != nullptr) report.Line(line);
    if (group.chosen == &JointOptions::ShearKind) WriteThicknesses(report, window);
  }
}

void Print(const BoltWindow& window, BoltReportContent content, Platform& platform) {
  platform.PrintReport(BoltReport(window, content, true));
}

}  // namespace

Report BoltReport(const BoltWindow& window, BoltReportContent content, bool printed) {
  Report report;
  for (int i = 0; printed && i < kLinesAheadOnPaper; ++i) report.Line();
  // The title of the tension report alone ends with a blank.
  report.Line(content == BoltReportContent::Tension ? "Ostrel's Lignara " : "Ostrel's Lignara");
  report.Line();
  report.Line("Bolted Connections");
  report.Line();
  if (content != BoltReportContent::Shear) WriteTension(report, window);
  if (content == BoltReportContent::Both) report.Line();
  if (content == BoltReportContent::Tension) return report;
  WriteShear(report, window);
  WriteConditions(report, window);
  return report;
}

void PrintTensionResults(const BoltWindow& window, Platform& platform) {
  Print(window, BoltReportContent::Tension, platform);
}

void PrintShearResults(const BoltWindow& window, Platform& platform) {
  Print(window, BoltReportContent::Shear, platform);
}

void PrintBoltResults(const BoltWindow& window, Platform& platform) {
  Print(window, BoltReportContent::Both, platform);
}

void SaveBoltResults(const BoltWindow& window, Platform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (!file) return;
  WriteReportFile(*file, BoltReport(window, BoltReportContent::Both, false), platform);
}

}  // namespace lignara
