#pragma once

#include <array>
#include <cstddef>

namespace lignara {

/// The woods of the fastener tables.
enum class FastenerWood { DouglasFir = 0, SouthernPine = 1 };
inline constexpr int kFastenerWoods = 2;

/// Strengths of a fastener by wood.
using ByWood = std::array<const char*, kFastenerWoods>;

/// A row of the tables of nails, spikes and wood screws. All values are texts, shown as they stand.
struct FastenerRow {
  const char* size;
  const char* length;    ///< in; empty for wood screws
  const char* diameter;  ///< in
  const char* lateral;   ///< lbs
  ByWood pullOut;        ///< lbs per inch of embedment
};

extern const std::array<FastenerRow, 10> WireNailTable;
extern const std::array<FastenerRow, 10> SpikeTable;
extern const std::array<FastenerRow, 11> WoodScrewTable;

inline constexpr std::size_t kLagScrewSizes = 12;
inline constexpr std::size_t kEmbedments = 14;

/// Strengths of lag screws. "NA" stands where a screw is not used with an embedment.
struct LagScrews {
  using BySize = std::array<const char*, kLagScrewSizes>;
  using ByEmbedment = std::array<BySize, kEmbedments>;

  BySize sizes;
  std::array<const char*, kEmbedments> embedments;  ///< in
  std::array<BySize, kFastenerWoods> pullOut;       ///< lbs per inch of embedment, by wood
  ByEmbedment parallel;                             ///< lateral, parallel to grain, lbs
  ByEmbedment perpendicular;                        ///< lateral, perpendicular to grain, lbs
};

extern const LagScrews LagScrewTable;

}  // namespace lignara
