#pragma once

#include <array>

#include "app/glulam_combination_table.h"
#include "app/platform.h"

namespace lignara {

/// A file of stress combinations in the data directory. Its count of rows is fixed.
struct GlulamFile {
  const char* caption;
  const char* fileName;
  int rows;
  const char* reportName;
};

/// The four files, in the order of their options 1 to 4.
inline constexpr std::array<GlulamFile, 4> kGlulamFiles = {{
    {"Visually Graded Western Species", "GL1.CSV", 41, "Visually Graded Western Species"},
    {"E-Rated Western Species", "GL2.CSV", 40, "E-Rated Western Species"},
    {"Visually Graded Southern Pine", "GL3.CSV", 25, "Visually graded Southern Pine"},
    {"E-Rated Southern Pine", "GL4.CSV", 13, "E-Rated Southern Pine"},
}};

/// The columns of a combination, as cells of its row.
namespace glulam_cell {
inline constexpr std::size_t kSymbol = 1;
inline constexpr std::size_t kSpecies = 2;
inline constexpr std::size_t kUseCode = 3;
inline constexpr std::size_t kFirstValue = 4;  ///< of fourteen, in the order of GlulamValue
inline constexpr std::size_t kLast = 17;
}  // namespace glulam_cell

/// Reads the file of an option, 1 to 4, into the table, seventeen fields a row. A file that cannot
/// be opened, or that ends too early, is shown in a box; rows that it does not hold whole keep what
/// they held.
void ReadCombinations(GlulamCombinationTable& table, int option, const std::string& dataDirectory,
                      Platform& platform);

}  // namespace lignara
