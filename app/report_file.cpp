#include "app/report_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "app/system_error.h"

namespace lignara {
namespace {

void ShowSystemError(const std::string& path, int code, Platform& platform) {
  platform.ShowMessage({path + ": " + SystemErrorText(code)});
}

}  // namespace

std::optional<ReportFile> CreateReportFile(Platform& platform, const char* filter) {
  const std::optional<std::string> path = platform.ChooseSaveFile(filter);
  if (!path) return std::nullopt;
  errno = 0;
  ReportFile file{*path, std::ofstream(*path, std::ios::binary | std::ios::trunc)};
  if (!file.stream) {
    ShowSystemError(*path, errno == 0 ? EIO : errno, platform);
    return std::nullopt;
  }
  return file;
}

void WriteWhole(ReportFile& file, std::string_view bytes, Platform& platform) {
  errno = 0;
  file.stream << bytes;
  file.stream.close();
  if (file.stream) {
    platform.ShowNote("Saved to " + file.path);
    return;
  }
  ShowSystemError(file.path, errno == 0 ? EIO : errno, platform);
  // Half a report could be taken for a whole one. What is no file of its own (a device) stays.
  std::error_code ignored;
  if (std::filesystem::is_regular_file(file.path, ignored)) {
    std::filesystem::remove(file.path, ignored);
  }
}

void WriteReportFile(ReportFile& file, const Report& report, Platform& platform) {
  WriteWhole(file, ReportText(report), platform);
}

}  // namespace lignara
