#include "app/data_directory.h"

#include <filesystem>
#include <fstream>
#include <sstream>

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

std::optional<std::string> FileText(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace lignara
