#pragma once

#include <string>

namespace lignara {

/// What the user has to know of the data folder before work begins, as a line; empty where all is
/// well. That no data files are in it comes first, then that it cannot be written, then that new
/// versions of files lie beside those that the user changed (NAME.new beside NAME).
/// `dataDirectory` is as the session keeps it.
std::string DataFolderStatus(const std::string& dataDirectory, bool writable);

}  // namespace lignara
