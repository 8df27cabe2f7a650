#include "app/data_directory.h"

#include <filesystem>

namespace lignara {

std::string MakeDataDirectory(const std::string& directory) { return directory + "\\"; }

std::string DataPath(const std::string& dataDirectory, const std::string& fileName) {
  std::string directory = dataDirectory;
  if (!directory.empty() && directory.back() == '\\') directory.pop_back();
  return (std::filesystem::path(directory) / fileName).string();
}

}  // namespace lignara
