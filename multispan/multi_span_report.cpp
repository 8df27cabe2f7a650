#include <algorithm>

#include "app/number_pattern.h"
#include "app/report_file.h"
#include "app/report_font.h"
#include "multispan/beam_sketch.h"
#include "multispan/diagrams.h"
#include "multispan/end_class.h"
#include "multispan/results_window.h"
#include "multispan/stress_check.h"

namespace lignara {
namespace {

/// A line of a span's input data: a label, the value, its unit.
struct InputLine {
  const char* label;
  Float32Array MultiSpanModel::*value;
  const char* unit;
};

constexpr InputLine kInputLines[] = {
    {"Length = ", &MultiSpanModel::spanLength, " ft"},
    {"Unbraced Length = ", &MultiSpanModel::spanUnbraced, " ft"},
    {"Moment of Inertia = ", &MultiSpanModel::spanI, " in^4"},
    {"Section Modulus = ", &MultiSpanModel::spanSectionModulus, " in^3"},
    {"Young's Modulus = ", &MultiSpanModel::spanE, " psi"},
    {"Gross Area = ", &MultiSpanModel::spanArea, " in^2"},
    {"Shear Area = ", &MultiSpanModel::spanShearArea, " in^2"},
    {"Member depth = ", &MultiSpanModel::spanD, " in"},
    {"Member width = ", &MultiSpanModel::spanB, " in"},
};

std::string Value(const Float32& number) { return FormatNumber(number, kTwoDecimals); }

using Lines = std::vector<std::string>;

Lines SpanLines(const MultiSpanModel& model, int j) {
  const auto span = static_cast<std::size_t>(j);
  Lines lines = {"MEMBER(" + std::to_string(j) + ") = " + model.spanMember[span],
                 model.spanType[span]};
  for (const InputLine& line : kInputLines) {
    lines.push_back(line.label + Value((model.*line.value)[j]) + line.unit);
  }
  return lines;
}

Lines LoadLines(const MultiSpanModel& model, int j) {
  const auto span = static_cast<std::size_t>(j);
  Lines lines = {"Uniform Load = " + FormatNumber(model.spanUniform[j], kTwoDecimals) + " lbs/ft"};
  for (int k = 1; k <= model.pointCount[j].value(); ++k) {
    lines.push_back("Point Load = " + Value(model.pointLoad[span][k]) + " lbs at " +
                    Value(model.pointX[span][k]) + " ft from left end.");
  }
  return lines;
}

void Append(Lines& lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

bool HasSpan(const MultiSpanModel& model, int j) {
  return j <= model.spanCount.value() && HasMultiSpan(j);
}

/// The name of the member stands again where its lines go on on a further page.
void WriteSpan(Report& report, const MultiSpanModel& model, int j) {
  Lines lines = SpanLines(model, j);
  Append(lines, LoadLines(model, j));
  report.Heads({lines.front()});
  for (std::size_t i = 1; i < lines.size(); ++i) report.Line(lines[i]);
}

/// The headings of the list stand again on paper where their lines go on on a further page.
void WriteStressRow(Report& report, const std::string& row) {
  const auto& headings = stress_heading::kAll;
  if (std::find(std::begin(headings), std::end(headings), row) != std::end(headings)) {
    report.Heads({row});
  } else {
    report.Line(row);
  }
}

/// The diagrams of a run, each on a page of its own.
struct DiagramPage {
  const char* heading;
  const char* label;  ///< of the peak value; none for the beam itself
  std::string value;
  Drawing drawing;
};

std::vector<DiagramPage> DiagramPages(const MultiSpanResults& window, const SessionState& session,
                                      Platform& platform) {
  const BusyPointer busy(platform);
  const MultiSpanSolution& run = *window.run;
  const float shear = run.spanMaxShear.empty()
                          ? 0
                          : *std::max_element(run.spanMaxShear.begin(), run.spanMaxShear.end());
  const DeflectedShape shape = FindDeflectedShape(run, session.unitSystem.value());
  return {{"SHEAR DIAGRAM", "Max. Shear = ", FormatNumber(shear, kTwoDecimals),
           DrawShearDiagram(run, std::nullopt)},
          {"MOMENT DIAGRAM", "Max. MOMENT = ", FormatNumber(run.maximum.moment, kTwoDecimals),
           DrawMomentDiagram(run, std::nullopt)},
          {"DEFLECTED SHAPE", "Max. Def. = ", FormatNumber(shape.largest, "0.0000"),
           DrawShapeDiagram(run, shape, std::nullopt)},
          {"BEAM SYSTEM", nullptr, "", DrawBeamSketch(session.MultiSpan, 0)}};
}

void AddPages(Report& report, const std::vector<DiagramPage>& pages) {
  bool first = report.items().empty();
  for (const DiagramPage& page : pages) {
    if (!first) report.StartPage();
    first = false;
    report.Line(page.heading);
    if (page.label != nullptr) report.Line(page.label + page.value);
    report.Draw(page.drawing);
  }
}

}  // namespace

Lines MultiSpanStructureLines(const MultiSpanModel& model) {
  Lines lines;
  for (int j = 1; HasSpan(model, j); ++j) Append(lines, SpanLines(model, j));
  lines.push_back(std::string("Far left support is ") + SupportWord(model.farLeftSupport) + ".");
  lines.push_back(std::string("Far right support is ") + SupportWord(model.farRightSupport) + ".");
  return lines;
}

Lines MultiSpanLoadLines(const MultiSpanModel& model) {
  Lines lines;
  for (int j = 1; HasSpan(model, j); ++j) {
    lines.push_back("Span " + std::to_string(j));
    Append(lines, LoadLines(model, j));
  }
  return lines;
}

Report MultiSpanReport(const MultiSpanResults& window, const SessionState& session) {
  const MultiSpanModel& model = session.MultiSpan;
  Report report = NewReport(session);
  WriteHeader(report, session.Header);
  report.Heads({"RESULTS"});
  for (const std::string& row : window.stressRows) WriteStressRow(report, row);
  report.Line("INPUT DATA");
  report.Line();
  for (int j = 1; HasSpan(model, j); ++j) WriteSpan(report, model, j);
  return report;
}

void PrintMultiSpanReport(const MultiSpanResults& window, const SessionState& session,
                          Platform& platform) {
  if (window.run == nullptr) return;
  Report report = MultiSpanReport(window, session);
  AddPages(report, DiagramPages(window, session, platform));
  platform.PrintReport(report);
}

void PrintMultiSpanDiagrams(const MultiSpanResults& window, const SessionState& session,
                            Platform& platform) {
  if (window.run == nullptr) return;
  Report report = NewReport(session);
  AddPages(report, DiagramPages(window, session, platform));
  platform.PrintReport(report);
}

void SaveMultiSpanReport(const MultiSpanResults& window, const SessionState& session,
                         Platform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (file) WriteReportFile(*file, MultiSpanReport(window, session), platform);
}

}  // namespace lignara
