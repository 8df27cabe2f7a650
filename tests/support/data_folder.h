#pragma once

#include <string>

namespace lignara {

/// A data directory of a test's own, removed at its end.
class DataFolder {
 public:
  DataFolder();
  ~DataFolder();
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;

  void Write(const std::string& name, const std::string& bytes) const;
  /// The folder, as boxes name it.
  const std::string& Folder() const { return path_; }
  std::string Path(const std::string& name) const { return path_ + "/" + name; }
  /// As the session keeps it.
  std::string DataDirectory() const;

 private:
  std::string path_;
};

/// The bytes of a file; empty where there is none.
std::string FileBytes(const std::string& path);

/// The data directory that is shipped with the program, as the session keeps it.
std::string ShippedDataDirectory();

}  // namespace lignara
