#include "tests/support/data_folder.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "app/data_directory.h"

namespace lignara {

DataFolder::DataFolder() {
  static int count = 0;
  const std::string name =
      "lignara_data_" + std::to_string(getpid()) + "_" + std::to_string(++count);
  path_ = (std::filesystem::temp_directory_path() / name).string();
  std::filesystem::create_directories(path_);
}

DataFolder::~DataFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void DataFolder::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(Path(name), std::ios::binary) << bytes;
}

std::string DataFolder::DataDirectory() const { return MakeDataDirectory(path_); }

std::string FileBytes(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::string ShippedDataDirectory() { return MakeDataDirectory(LIGNARA_DATA_DIRECTORY); }

}  // namespace lignara
