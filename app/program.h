#pragma once

namespace lignara {

inline constexpr const char* kProgramName = "Lignara";

/// Such as "6.1". It stands in the build's project line, which the package reads, too.
const char* ProgramVersion();

}  // namespace lignara
