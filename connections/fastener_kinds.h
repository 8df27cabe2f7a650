#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "connections/fastener_tables.h"

namespace lignara {

/// The kinds of fastener, with the values of `FastenerKind`.
enum class FastenerKind : std::int16_t { Nails = 1, Spikes = 2, WoodScrews = 3, LagScrews = 4 };

/// The values that the window shows, in the order of the screen. Not every kind has each.
enum class FastenerField { Length, Diameter, Lateral, PullOut, LateralParallel, LateralPerp };
inline constexpr int kFastenerFields = 6;

/// The captions of the fields, in their order.
inline constexpr std::array<const char*, kFastenerFields> kFastenerFieldCaptions = {
    "Length (in)",
    "Dia. (in)",
    "Lat. Strength (lbs)",
    "Pull out Strength (lbs)",
    "Lat. Strength Parallel to Grain (lbs)",
    "Lat. Strength Perp. to Grain (lbs)"};

/// The captions of the woods, in the order of FastenerWood.
inline constexpr std::array<const char*, kFastenerWoods> kFastenerWoodCaptions = {"Douglas Fir",
                                                                                  "Southern Pine"};

/// What a kind shows.
struct FastenerKindEntry {
  FastenerKind kind;
  const char* caption;     ///< of its button
  const char* reportLine;  ///< its heading in the report
  std::array<bool, kFastenerFields> shows;
  bool showsEmbedment;
  const char* firstNote;
  const char* secondNote;
  std::span<const FastenerRow> rows;  ///< none for lag screws, which have tables of their own

  bool Shows(FastenerField field) const { return shows[static_cast<std::size_t>(field)]; }
};

inline constexpr int kFastenerKinds = 4;
extern const std::array<FastenerKindEntry, kFastenerKinds> kFastenerKindTable;

/// The row of a kind.
const FastenerKindEntry& EntryOf(FastenerKind kind);
/// The sizes of a kind, in the order of its tables.
std::vector<std::string> SizesOf(FastenerKind kind);

}  // namespace lignara
