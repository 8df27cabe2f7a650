#pragma once

#include <string>

namespace lignara {

/// Writes a file whole, or leaves the one that stands there as it was. False where it cannot be
/// written; nobody is told.
bool ReplaceFile(const std::string& path, const std::string& bytes);

}  // namespace lignara
