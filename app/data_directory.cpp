#include "app/data_directory.h"

#include <filesystem>

namespace lignara {

std::string MakeDataDirectory(const std::string& directory) { return directory + "\\"; }

std::string FolderOf(const std::string& dataDirectory) {
  std::string directory = dataDirectory;
  if (!directory.empty() && directory.back() == '\\') directory.pop_back();
  return directory;
}

std::string DataPath(const std::string& dataDirectory, const std::string& fileName) {
  return (std::filesystem::path(FolderOf(dataDirectory)) / fileName).string();
}

}  // namespace lignara
