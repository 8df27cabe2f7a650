#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "app/stored_number.h"

namespace lignara {

/// The glulam stress combinations of the file loaded last, as text cells. Row 0 and column 0 stay
/// empty. A file that cannot be read leaves the cells as they were, so they outlive the window.
struct GlulamCombinationTable {
  static constexpr std::size_t kLastRow = 50;
  static constexpr std::size_t kLastColumn = 20;

  std::array<std::array<std::string, kLastColumn + 1>, kLastRow + 1> cells;
  Int16 Option;    ///< which of the four files, 1 to 4; 0 before the first
  Int16 RowCount;  ///< combinations of that file
};

}  // namespace lignara
