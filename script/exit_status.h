#pragma once

namespace lignara {

// How the script tool ends.
inline constexpr int kDone = 0;
inline constexpr int kStopped = 1;     ///< a line could not be carried out
inline constexpr int kWrongUsage = 2;  ///< or a file could not be read

}  // namespace lignara
