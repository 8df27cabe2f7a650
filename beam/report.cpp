#include "beam/report.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/report_file.h"
#include "app/report_font.h"
#include "beam/diagrams.h"
#include "beam/support_class.h"

namespace lignara {
namespace {

constexpr const char* kFourDecimals = "0.0000";

std::string Shown(const Number& number, const char* pattern = kTwoDecimals) {
  return FormatNumber(Float32(number), pattern);
}

/// The number of a field as the report shows it.
std::string NumberOf(const std::string& field, const char* pattern = kTwoDecimals) {
  return Shown(ReadNumber(field), pattern);
}

std::string NumberOf(const BeamWindow& window, StressField field) {
  return NumberOf(window.Field(field).text);
}

void WriteStressRows(Report& report, const StressCheck& check) {
  report.Line("RESULTS");
  for (const std::string& row : check.rows) {
    if (row.empty()) {
      report.Line();
    } else {
      report.Line(row);
    }
  }
  if (check.rows.empty()) {
    report.Line("Code check was not run, no stress results to print.");
  }
}

void WriteResults(Report& report, const BeamWindow& window) {
  report.Line("Left Support Reaction = " + NumberOf(window.reaction1) + " lbs");
  report.Line("Right Support Reaction = " + NumberOf(window.reaction2) + " lbs");
  report.Line("Member axial load = " + NumberOf(window.axial) + " lbs");
  report.Line("Max. Moment = " + NumberOf(window.maxMoment) + " ft-lbs");
  // The unit is that of a moment: so the users know this line.
  report.Line("Max. Shear = " + NumberOf(window.maxShear) + " ft-lbs");
  report.Line("Max. Deflection = " + NumberOf(window.maxDeflection, kFourDecimals) + " in");
}

std::vector<std::string> InputLines(const BeamWindow& window) {
  return {"Member = " + window.memberName,
          "Length = " + NumberOf(window.length),
          "Unbraced Length = " + Shown(UnbracedLength(window)),
          "Youngs Modulus = " + NumberOf(window.modulus.text),
          "Moment of Inertia = " + NumberOf(window.inertia.text) + " in^4",
          "Gross Area = " + NumberOf(window, StressField::Area) + " in^2",
          "Shear Area = " + NumberOf(window, StressField::ShearArea) + " in^2",
          "Section Modulus = " + NumberOf(window, StressField::SectionModulus) + " in^3",
          "Member depth = " + NumberOf(window, StressField::D) + " in",
          "Member width = " + NumberOf(window, StressField::B) + " in"};
}

std::vector<std::string> SupportLines(const SingleSpanBeam& beam) {
  return {std::string("Left support is ") + SupportWord(beam.leftSupport) + ".",
          std::string("Right support is ") + SupportWord(beam.rightSupport) + ".",
          beam.loadAxis == 0 ? "Moment is about strong axis." : "Moment is about weak axis."};
}

void WriteLines(Report& report, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) report.Line(line);
}

/// The heading stands again on each further page that the loads take.
void WriteLoads(Report& report, const SingleSpanBeam& beam) {
  report.Heads({"APPLIED LOADS"});
  WriteLines(report, BeamLoadLines(beam));
}

void WriteHead(Report& report, const BeamWindow& window, const SessionState& session) {
  WriteHeader(report, session.Header);
  WriteStressRows(report, window.check);
  WriteResults(report, window);
  report.Line("INPUT DATA");
  WriteLines(report, BeamStructureLines(window));
}

/// What a page of Letter holds at ten points, with room to spare.
constexpr std::size_t kPageLines = 52;

/// The text on paper: the loads of a long report begin a page of their own, below the header.
Report PagedText(const BeamWindow& window, const SessionState& session) {
  Report whole = BeamTextReport(window, session);
  if (whole.items().size() <= kPageLines) return whole;
  Report report = NewReport(session);
  WriteHead(report, window, session);
  report.StartPage();
  WriteHeader(report, session.Header);
  WriteLoads(report, window.beam);
  return report;
}

/// The units of the printed diagrams.
struct DiagramUnits {
  const char* force;
  const char* moment;
  const char* deflection;
};

const DiagramUnits& UnitsOf(const SessionState& session) {
  static constexpr DiagramUnits kEnglish = {" lbs", " ft-lbs", " in"};
  static constexpr DiagramUnits kMetric = {" N", " N-m", " cm"};
  return session.unitSystem == 1 ? kMetric : kEnglish;
}

void DrawIfThere(Report& report, const Drawing& drawing) {
  if (!drawing.shapes.empty()) report.Draw(drawing);
}

void WriteDiagrams(Report& report, const BeamWindow& window, const SessionState& session) {
  const DiagramUnits& units = UnitsOf(session);
  report.Line("SHEAR DIAGRAM");
  report.Line("Max. Shear = " + NumberOf(window.maxShear) + units.force);
  DrawIfThere(report, DiagramOnPaper(window, Diagram::Shear));
  report.Line("MOMENT DIAGRAM");
  report.Line("Max. Moment = " + NumberOf(window.maxMoment) + units.moment);
  DrawIfThere(report, DiagramOnPaper(window, Diagram::Moment));
  report.Line("DEFLECTED SHAPE");
  report.Line("Max. Def. = " + NumberOf(window.maxDeflection, kFourDecimals) + units.deflection);
  DrawIfThere(report, DiagramOnPaper(window, Diagram::Deflection));
  report.Line("BEAM SYSTEM");
  DrawIfThere(report, window.loadPicture);
}

/// The sense of the axial load that a run would take.
void WriteAxialSense(Report& report, const SingleSpanBeam& beam) {
  const Float32 axial = AxialLoadOf(beam);
  if (axial > 0) report.Line("Tension Axial Load");
  if (axial < 0) report.Line("Compression Axial Load");
}

}  // namespace

std::vector<std::string> BeamStructureLines(const BeamWindow& window) {
  std::vector<std::string> lines = InputLines(window);
  for (std::string& line : SupportLines(window.beam)) lines.push_back(std::move(line));
  return lines;
}

std::vector<std::string> BeamLoadLines(const SingleSpanBeam& beam) {
  std::vector<std::string> lines;
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    const LoadKindInfo& kind = LoadKindOf(beam.KindOf(load));
    lines.push_back("Load No. (" + std::to_string(load) + ")");
    lines.push_back(kind.reportWord);
    for (const LoadReportLine& line : kind.reportLines) {
      lines.push_back(line.before + Shown((beam.*line.array)[load]) + line.after);
    }
  }
  return lines;
}

Report BeamTextReport(const BeamWindow& window, const SessionState& session) {
  Report report = NewReport(session);
  WriteHead(report, window, session);
  WriteLoads(report, window.beam);
  return report;
}

void PrintBeamReport(const BeamWindow& window, const SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  Report report = PagedText(window, session);
  report.StartPage();
  WriteDiagrams(report, window, session);
  platform.PrintReport(report);
}

void PrintBeamDiagrams(const BeamWindow& window, const SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  Report report = NewReport(session);
  WriteDiagrams(report, window, session);
  WriteAxialSense(report, window.beam);
  platform.PrintReport(report);
}

void SaveBeamReport(const BeamWindow& window, const SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (file) WriteReportFile(*file, BeamTextReport(window, session), platform);
}

}  // namespace lignara
