#include "app/report.h"

namespace lignara {

std::string PrintZones(const std::vector<std::string>& items) { return PrintZones(0, items); }

std::string PrintZones(std::size_t empty, const std::vector<std::string>& items) {
  std::string line;
  if (items.empty()) return line;
  line.append(empty * kPrintZone, ' ');
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) line.append(kPrintZone - line.size() % kPrintZone, ' ');
    line += items[i];
  }
  return line;
}

std::string ReportText(const Report& report) {
  std::string text;
  for (const Report::Item& item : report.items()) {
    if (const auto* line = std::get_if<ReportLine>(&item)) text += line->Text() + "\n";
  }
  return text;
}

}  // namespace lignara
