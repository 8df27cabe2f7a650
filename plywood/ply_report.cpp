#include "plywood/ply_report.h"

#include <optional>
#include <utility>

#include "app/report_file.h"
#include "plywood/panel_kinds.h"

namespace lignara {

PlyReportLine SayText(std::string text) {
  return [text = std::move(text)](const PlyPanelState&, Texts& lines) { lines.push_back(text); };
}

PlyReportLine SayKey(std::size_t key, std::string before, std::string after) {
  return [=](const PlyPanelState& panel, Texts& lines) {
    if (panel.keys[key].shown) lines.push_back(before + panel.keys[key].choice.Chosen() + after);
  };
}

PlyReportLine SayKeyField(std::size_t key) {
  return [=](const PlyPanelState& panel, Texts& lines) {
    SayKey(key, panel.keys[key].caption + " is ")(panel, lines);
  };
}

PlyReportLine SayInWords(std::size_t key, Texts words) {
  return [key, words = std::move(words)](const PlyPanelState& panel, Texts& lines) {
    const ListRows worded{words, panel.keys[key].choice.row};
    if (panel.keys[key].shown) lines.push_back(worded.Chosen());
  };
}

PlyReportLine SayResult(std::size_t result, std::string before, std::string after) {
  return [=](const PlyPanelState& panel, Texts& lines) {
    lines.push_back(before + panel.results[result].value + after);
  };
}

PlyReportLine SayResultFields() {
  return [](const PlyPanelState& panel, Texts& lines) {
    for (const PlyResult& result : panel.results) {
      lines.push_back(result.caption + " is " + result.value);
    }
  };
}

PlyReportLine SayLines() {
  return [](const PlyPanelState& panel, Texts& lines) {
    lines.insert(lines.end(), panel.lines.begin(), panel.lines.end());
  };
}

Report PlyReport(const PlyPanelWindow& window, PlyPanel panel) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  Texts lines = {"", kind.title, ""};
  for (const PlyReportLine& say : kind.report) say(window.Panel(panel), lines);
  Report report;
  report.fontName = kind.fontName;
  for (const std::string& line : lines) report.Line(line);
  return report;
}

void PrintPlyReport(const PlyPanelWindow& window, PlyPanel panel, Platform& platform) {
  platform.PrintReport(PlyReport(window, panel));
}

void SavePlyReport(const PlyPanelWindow& window, PlyPanel panel, Platform& platform) {
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (file) WriteReportFile(*file, PlyReport(window, panel), platform);
}

}  // namespace lignara
