#include "glulam/combination_files.h"

#include <optional>
#include <string>
#include <utility>

#include "app/field_file.h"

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

}  // namespace lignara
