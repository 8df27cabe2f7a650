#include "connections/fastener_report.h"

#include <optional>

#include "app/report_file.h"

namespace lignara {
namespace {

struct FieldLine {
  FastenerField field;
  const char* start;
  const char* unit;
};

constexpr FieldLine kFieldLines[] = {
    {FastenerField::Length, "Length = ", " in"},
    {FastenerField::Diameter, "Dia. = ", " in"},
    {FastenerField::PullOut, "Pull out strength = ", " lbs"},
    {FastenerField::Lateral, "Lateral Strength = ", " lbs"},
    {FastenerField::LateralParallel, "Lateral Strength parallel to grain = ", " lbs"},
    {FastenerField::LateralPerp, "Lateral Strength perp. to grain = ", " lbs"},
};

void WriteValues(Report& report, const FastenerWindow& window) {
  const FastenerKindEntry& entry = EntryOf(window.kind);
  if (entry.showsEmbedment) {
    report.Line("Penetration length = " + window.embedments.Chosen() + " in");
  }
  for (const FieldLine& line : kFieldLines) {
    if (entry.Shows(line.field)) report.Line(line.start + window.Field(line.field) + line.unit);
  }
}

}  // namespace

Report FastenerReport(const FastenerWindow& window) {
  Report report;
  report.Line();
  report.Line("Ostrel Lignara");
  report.Line("FASTENER DATA BASE");
  report.Line();
  report.Line(EntryOf(window.kind).reportLine);
  report.Line();
  report.Line("Size/Type = " + window.sizes.Chosen());
  const char* wood = kFastenerWoodCaptions[static_cast<std::size_t>(window.wood)];
  report.Line(std::string("Wood is ") + wood + ".");
  WriteValues(report, window);
  report.Line();
  report.Line(window.firstNote);
  report.Line(window.secondNote);
  return report;
}

void PrintFastenerReport(const FastenerWindow& window, Platform& platform) {
  platform.PrintReport(FastenerReport(window));
}

void SaveFastenerReport(const FastenerWindow& window, Platform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (file) WriteReportFile(*file, FastenerReport(window), platform);
}

}  // namespace lignara
