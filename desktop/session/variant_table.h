#pragma once

#include <string>

#include "desktop/session/variants.h"

namespace lignara {

class Platform;

/// Values and what came of them, as a user reads them: heads, and a row a value.
struct VariantTable {
  QStringList heads;
  QList<QStringList> rows;

  bool operator==(const VariantTable&) const = default;
};

/// The heads that a variant gives: the field, then what each `read` or `rows` line names.
QStringList VariantHeads(const Variants& variants);

/// The table of the outcomes so far, which are those of the first values. A list whose rows bear
/// the same names in all of them, such as "TL = ", has a column for each row; any other stands in
/// one column, its rows joined. What boxes said and what could not be done has a column where there
/// is any.
VariantTable TableOf(const Variants& variants, const std::vector<VariantOutcome>& outcomes);

/// The table as a CSV file.
QString CsvOf(const VariantTable& table);

/// Writes the table as a CSV file that the user chooses. Tells where it went in `status`, or in a
/// message that it cannot be written.
void SaveTable(const VariantTable& table, std::string& status, Platform& platform);

}  // namespace lignara
