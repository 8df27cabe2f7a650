#pragma once

#include <optional>
#include <string>

namespace lignara {

/// The data directory as the session keeps it: the directory with a trailing backslash.
std::string MakeDataDirectory(const std::string& directory);

/// The data directory as the user knows it, without the trailing backslash.
std::string FolderOf(const std::string& dataDirectory);

/// The path of a file in the data directory, in the form of the platform at hand.
std::string DataPath(const std::string& dataDirectory, const std::string& fileName);

/// The bytes of a file; nothing where it cannot be read. A directory is no file.
std::optional<std::string> FileText(const std::string& path);

}  // namespace lignara
