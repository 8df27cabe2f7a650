#include "connections/bolt_value_file.h"

#include <cmath>
#include <limits>

#include "app/field_file.h"

namespace lignara {
namespace {

/// The order of the load columns in the file.
constexpr BoltWood kColumns[] = {BoltWood::Dense, BoltWood::Medium, BoltWood::OpenGrain};

/// The next field into a 32-bit number. False where it could not be read or does not fit.
bool ReadInto(Float32& number, FieldFile& file) {
  const double value = file.ReadFilledValue();
  number = value;
  return file.LastFieldRead() && std::fabs(value) <= std::numeric_limits<float>::max();
}

/// Half a row would give loads that look like any others, so it gives none.
std::optional<BoltRow> ReadRow(FieldFile& file) {
  BoltRow row;
  row.thicknessLabel = file.ReadText();
  row.boltLabel = file.ReadText();
  bool whole = ReadInto(row.Ltable, file);
  whole = ReadInto(row.Dtable, file) && whole;
  for (const BoltWood wood : kColumns) {
    GrainLoads& loads = row.loads[static_cast<std::size_t>(wood)];
    whole = ReadInto(loads.parallel, file) && whole;
    whole = ReadInto(loads.perpendicular, file) && whole;
  }
  return whole ? std::optional(std::move(row)) : std::nullopt;
}

}  // namespace

const BoltRow* BoltValueTable::Row(int number) const {
  if (number < 1 || number > size()) return nullptr;
  const std::optional<BoltRow>& row = rows_[static_cast<std::size_t>(number) - 1];
  return row ? &*row : nullptr;
}

BoltValueTable ReadBoltValues(const std::string& dataDirectory, Platform& platform) {
  FaultScope faults(platform);
  FieldFile file(dataDirectory, kBoltValueFile, platform);
  BoltValueTable table;
  const int count = file.ReadFilledCount();
  for (int i = 1; i <= count; ++i) table.Add(ReadRow(file));
  return table;
}

}  // namespace lignara
