#include "wood/wood_report.h"

#include <optional>

#include "app/number_pattern.h"
#include "app/report_file.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

std::string OneDecimal(const Float32& factor) { return FormatNumber(factor, "0.0"); }

/// A report under way: its lines stand `margin` zones from the left edge.
struct WoodReportWriter {
  Report report;
  std::size_t margin = 0;

  void Blank() { report.Line(); }
  void Line(const std::string& text) { report.Line(text, margin); }
  void Columns(Texts items) { report.Columns(std::move(items), margin); }

  /// Column heads, whose two axial columns are told apart on the line below.
  void Heads(Texts heads) {
    Columns(std::move(heads));
    report.Columns({"parallel", "across"}, margin + 3);
    Blank();
  }
};

void WriteStresses(WoodReportWriter& writer, const FinalSelection& selection) {
  writer.Line("DESIGN INPUT INFORMATION");
  writer.Blank();
  writer.Line("FINAL ALLOWABLE STRESSES");
  writer.Blank();
  writer.Heads({"Fb", "Fv", "Ft", "Fa", "Fa"});
  writer.Columns({selection.fb, selection.fv, selection.ft, selection.fcPar, selection.fcPerp});
  writer.Blank();
}

void WriteMember(WoodReportWriter& writer, const WoodDataBaseWindow& window) {
  const FactorPanel& panel = window.panel;
  writer.Line("MEMBER INPUT INFORMATION");
  writer.Blank();
  writer.Line("MEMBER WIDTH = " + panel.List(FactorList::Width).Chosen());
  writer.Line("MEMBER THICKNESS = " + panel.List(FactorList::Thickness).Chosen());
  writer.Line("GRADE = " + panel.List(FactorList::Grade).Chosen());
  writer.Line("LOAD DURATION = " + panel.List(FactorList::LoadDuration).Chosen());
  writer.Line("SHEAR CONDITION = " + panel.List(FactorList::ShearCondition).Chosen());
  writer.Line("TYPE = " + window.woodTypes);
  writer.Blank();
}

void WriteFactors(WoodReportWriter& writer, const AdjustmentFactors& factors) {
  writer.Line("INDIVIDUAL ADJUSTMENT FACTORS");
  writer.Line("REPETATIVE USE: " + OneDecimal(factors.Repetitive));
  writer.Line("SIZE, BENDING: " + OneDecimal(factors.SizeFactor[1]));
  writer.Line("LOAD DURATION: " + OneDecimal(factors.LoadDuration));
  writer.Line("FLAT USE: " + OneDecimal(factors.FlatUse));
  writer.Line("WET USE, BENDING: " + OneDecimal(factors.WetUse[1]));
  writer.Line("SIZE, TENSION: " + OneDecimal(factors.SizeFactor[2]));
  writer.Line("SHEAR CONDITION: " + OneDecimal(factors.ShearCondition));
  writer.Line("WET USE, SHEAR: " + OneDecimal(factors.WetUse[4]));
  writer.Line("SIZE, AXIAL PARALLEL TO GRAIN: " + OneDecimal(factors.SizeFactor[3]));
  writer.Line("WET USE, AXIAL PARALLEL TO GRAIN: " + OneDecimal(factors.WetUse[3]));
  writer.Line("WET USE, AXIAL PERP. TO GRAIN: " + OneDecimal(factors.WetUse[5]));
  writer.Line("WET USE, YOUNGS MOD.: " + OneDecimal(factors.WetUse[6]));
  writer.Blank();
}

void WriteMultipliers(WoodReportWriter& writer, const AdjustmentFactors& factors) {
  writer.Line("FINAL STRESS MULTIPLIERS, COMBINATION OF ABOVE FACTORS");
  writer.Blank();
  writer.Heads({"Fb", "Fv", "Ft", "Fa", "Fa", "E"});
  Texts values;
  // The Fv column repeats the multiplier of Fb.
  for (const StressKind kind : {StressKind::Fb, StressKind::Fb, StressKind::Ft, StressKind::FcPar,
                                StressKind::FcPerp, StressKind::E}) {
    values.push_back(OneDecimal(factors.MultiplierOf(kind)));
  }
  writer.Columns(values);
  writer.Blank();
}

}  // namespace

Report WoodReport(const WoodDataBaseWindow& window, WoodReportForm form) {
  constexpr int kLinesAhead = 10;
  WoodReportWriter writer;
  if (form == WoodReportForm::Printed) {
    writer.margin = 1;
    for (int i = 0; i < kLinesAhead; ++i) writer.Blank();
  }
  WriteStresses(writer, window.selection);
  WriteMember(writer, window);
  WriteFactors(writer, window.panel.factors);
  WriteMultipliers(writer, window.panel.factors);
  return writer.report;
}

void PrintWoodReport(const WoodDataBaseWindow& window, Platform& platform) {
  platform.PrintReport(WoodReport(window, WoodReportForm::Printed));
}

void SaveWoodReport(const WoodDataBaseWindow& window, Platform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (file) WriteReportFile(*file, WoodReport(window, WoodReportForm::File), platform);
}

}  // namespace lignara
