#pragma once

#include <fstream>
#include <optional>
#include <string>

#include "app/platform.h"
#include "app/report.h"

namespace lignara {

/// The filter of every save dialog for a text report.
inline constexpr const char* kReportFilter = "Text(*.txt)|*.txt|All(*.*)|*.*|";

/// A text report's file, from the dialog that names it to its last line.
struct ReportFile {
  std::string path;
  std::ofstream stream;
};

/// Asks for a file and creates it, empty. Nothing when the user cancels, or when the file cannot be
/// written: then it is told with the system's words in a plain box.
std::optional<ReportFile> CreateReportFile(Platform& platform);

/// Writes a whole report and closes the file; a failure is shown in the system's own words, and a
/// note tells where the report went.
void WriteReportFile(ReportFile& file, const Report& report, Platform& platform);

}  // namespace lignara
