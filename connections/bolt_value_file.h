#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "app/platform.h"
#include "app/stored_number.h"

namespace lignara {

inline constexpr const char* kBoltValueFile = "BV.CSV";

/// The woods of the bolt table; the values are those of `JointOptions::WoodType`.
enum class BoltWood { Medium = 0, Dense = 1, OpenGrain = 2 };
inline constexpr int kBoltWoods = 3;

/// Loads of one bolt, lbs.
struct GrainLoads {
  Float32 parallel;
  Float32 perpendicular;
};

/// A row of the bolt table: the loads of a bolt in double shear, in a main member of one thickness.
struct BoltRow {
  std::string thicknessLabel;
  std::string boltLabel;
  Float32 Ltable;                            ///< thickness of the main member, in
  Float32 Dtable;                            ///< diameter of the bolt, in
  std::array<GrainLoads, kBoltWoods> loads;  ///< by BoltWood

  const GrainLoads& Loads(BoltWood wood) const { return loads[static_cast<std::size_t>(wood)]; }
};

/// The bolt values of the data directory. Rows count from 1.
class BoltValueTable {
 public:
  /// A row that could not be read whole has no content, and keeps its number.
  void Add(std::optional<BoltRow> row) { rows_.push_back(std::move(row)); }
  /// The number of rows, the unreadable ones included.
  int size() const { return static_cast<int>(rows_.size()); }
  /// The row of a number; null where there is none, or where it could not be read.
  const BoltRow* Row(int number) const;

 private:
  std::vector<std::optional<BoltRow>> rows_;
};

/// Reads BV.CSV: a count, then ten fields a row. A file that is missing or short, and a number that
/// cannot be read, is shown in a box; the rows that could be read are kept.
BoltValueTable ReadBoltValues(const std::string& dataDirectory, Platform& platform);

}  // namespace lignara
