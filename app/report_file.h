#pragma once

#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "app/platform.h"
#include "app/report.h"

namespace lignara {

/// The filter of every save dialog for a text report.
inline constexpr const char* kReportFilter = "Text(*.txt)|*.txt|All(*.*)|*.*|";

/// A report's file, from the dialog that names it to its last line.
struct ReportFile {
  std::string path;
  std::ofstream stream;
};

/// Asks for a file and creates it, empty. Nothing when the user cancels, or when the file cannot be
/// written: then it is told with the system's words in a plain box.
std::optional<ReportFile> CreateReportFile(Platform& platform, const char* filter = kReportFilter);

/// Writes all that the file is to hold and closes it; a note tells where the report went. A failure
/// is shown in the system's own words, and no half file is left.
void WriteWhole(ReportFile& file, std::string_view bytes, Platform& platform);

/// Writes a report as text.
void WriteReportFile(ReportFile& file, const Report& report, Platform& platform);

}  // namespace lignara
