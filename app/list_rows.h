#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lignara {

/// The rows of a list and the chosen one.
struct ListRows {
  std::vector<std::string> rows;
  int row = -1;  ///< -1 none

  bool Has(int index) const { return index >= 0 && index < static_cast<int>(rows.size()); }
  /// The text of the chosen row; empty where none is chosen.
  std::string Chosen() const { return Has(row) ? rows[static_cast<std::size_t>(row)] : ""; }
};

/// A list as the program's result lists begin: a blank first row, so that nothing is chosen by the
/// row that is on top.
inline std::vector<std::string> RowsBelowBlank() { return {""}; }

}  // namespace lignara
