#include "app/data_folder_status.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "app/data_directory.h"
#include "app/help.h"

namespace lignara {
namespace {

using Names = std::vector<std::string>;

/// Files that every data folder holds, at least one for each tool that reads any.
constexpr const char* kDataFiles[] = {"WWTRK.CSV", "SPTRK.CSV", "MSRTRK.CSV",
                                      "GL1.CSV",   "BV.CSV",    kHelpFile};

bool IsThere(const std::string& dataDirectory, const std::string& name) {
  std::error_code error;
  return std::filesystem::exists(DataPath(dataDirectory, name), error);
}

bool HoldsDataFiles(const std::string& dataDirectory) {
  return std::any_of(std::begin(kDataFiles), std::end(kDataFiles),
                     [&](const char* name) { return IsThere(dataDirectory, name); });
}

/// The names "X.new" for which X is there too, sorted.
Names NewVersions(const std::string& dataDirectory) {
  Names names;
  std::error_code error;
  std::filesystem::directory_iterator entry(FolderOf(dataDirectory), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const std::filesystem::path name = entry->path().filename();
    if (name.extension() != ".new" || !IsThere(dataDirectory, name.stem().string())) continue;
    names.push_back(name.string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string NewVersionsText(const Names& names) {
  const std::string others =
      names.size() == 1 ? "" : " and " + std::to_string(names.size() - 1) + " more";
  return "New versions of files that you changed lie beside them: " + names.front() + others;
}

}  // namespace

std::string DataFolderStatus(const std::string& dataDirectory, bool writable) {
  const std::string folder = FolderOf(dataDirectory);
  if (!HoldsDataFiles(dataDirectory)) {
    return "No data files in " + folder + ": design values and help are missing";
  }
  if (!writable) return folder + " cannot be written: your own defaults will not be kept";
  const Names names = NewVersions(dataDirectory);
  return names.empty() ? "" : NewVersionsText(names);
}

}  // namespace lignara
