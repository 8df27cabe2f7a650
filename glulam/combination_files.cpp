#include "glulam/combination_files.h"

#include <optional>
#include <string>
#include <utility>

#include "app/fault.h"
#include "app/field_file.h"
#include "glulam/glulam_window.h"

namespace lignara {
namespace {

using Row = GlulamCombinationTable::Row;

/// The next row; nothing where the file ends before the row does, which the file has told then.
std::optional<Row> ReadRow(FieldFile& file) {
  Row row;
  for (std::size_t column = glulam_cell::kSymbol; column <= glulam_cell::kLast; ++column) {
    row[column] = file.ReadText();
    if (!file.LastFieldRead()) return std::nullopt;
  }
  return row;
}

}  // namespace

void ReadCombinations(GlulamCombinationTable& table, int option, const std::string& dataDirectory,
                      Platform& platform) {
  const GlulamFile& source = kGlulamFiles[static_cast<std::size_t>(option) - 1];
  table.Option = option;
  table.RowCount = source.rows;
  FieldFile file(dataDirectory, source.fileName, platform);
  for (int at = 1; at <= source.rows; ++at) {
    std::optional<Row> row = ReadRow(file);
    if (!row) return;
    table.cells[static_cast<std::size_t>(at)] = std::move(*row);
  }
}

void LoadCombinationFile(GlulamWindow& window, SessionState& session, Platform& platform,
                         int option) {
  FaultScope faults(platform);
  GlulamCombinationTable& table = session.GlulamCombinations;
  ReadCombinations(table, option, session.DataDirectory, platform);
  window.combinations = ListRows();
  for (int row = 1; row <= table.RowCount.value(); ++row) {
    window.combinations.rows.push_back(table.RowAt(row)[glulam_cell::kSymbol]);
  }
  ChooseCombination(window, session, platform, 0);
}

}  // namespace lignara
