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

/// What stands beside a row of a list, not in its text: a note at its right end, such as "C" for
/// compression, and a tint where the row's value is beyond what is allowed.
struct RowNote {
  std::string note;
  std::string spoken;  ///< the note in words, for screen readers and as a tip
  bool warned = false;

  bool operator==(const RowNote&) const = default;
};

/// A list as the program's result lists begin: a blank first row, so that nothing is chosen by the
/// row that is on top.
inline std::vector<std::string> RowsBelowBlank() { return {""}; }

}  // namespace lignara
