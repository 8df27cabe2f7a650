#include "app/replace_file.h"

#include <filesystem>
#include <fstream>

namespace lignara {
namespace {

/// False for a file that is there but must not be written. A rename would not ask.
bool MayWrite(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return true;
  return std::ofstream(path, std::ios::binary | std::ios::app).good();
}

bool WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream << bytes;
  stream.close();
  return stream.good();
}

}  // namespace

bool ReplaceFile(const std::string& path, const std::string& bytes) {
  if (!MayWrite(path)) return false;
  // Written beside and put in place at once: a full disk costs the new file, never the old one.
  // Not ".new": so are called the files that an installation lays beside those of the user.
  const std::string beside = path + ".part";
  std::error_code error;
  if (WriteFile(beside, bytes)) {
    std::filesystem::rename(beside, path, error);
    if (!error) return true;
  }
  std::filesystem::remove(beside, error);
  return false;
}

}  // namespace lignara
