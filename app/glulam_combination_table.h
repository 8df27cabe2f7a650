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

  using Row = std::array<std::string, kLastColumn + 1>;

  std::array<Row, kLastRow + 1> cells;
  Int16 Option;    ///< which of the four files, 1 to 4; 0 before the first
  Int16 RowCount;  ///< combinations of that file

  /// Row 0, which is empty, for a row outside of the table.
  const Row& RowAt(int row) const {
    const bool has = row >= 0 && row <= static_cast<int>(kLastRow);
    return cells[has ? static_cast<std::size_t>(row) : 0];
  }
};

}  // namespace lignara
