#include "connections/fastener_kinds.h"

#include <algorithm>

namespace lignara {
namespace {

constexpr const char* kPenetrationNote = "Based on insertion length of 11 diameters for lat. load.";
constexpr const char* kEmbedmentNote = "Select embedment length to obtain Lat. loads.";
constexpr const char* kPullOutNote = "Pullout load is per inch of embedment.";

}  // namespace

// clang-format off

// Fields: length, diameter, lateral, pull-out, lateral parallel, lateral perpendicular; embedments;
// notes; rows.
const std::array<FastenerKindEntry, kFastenerKinds> kFastenerKindTable = {{
    {FastenerKind::Nails,      "Nails",       "Data for Wire Nails",  {true,  true,  true,  true, false, false}, false, kPenetrationNote, kPullOutNote, WireNailTable},
    {FastenerKind::Spikes,     "Spikes",      "Data for Spike Nails", {true,  true,  true,  true, false, false}, false, kPenetrationNote, kPullOutNote, SpikeTable},
    {FastenerKind::WoodScrews, "Wood Screws", "Data for Wood Screws", {false, true,  true,  true, false, false}, false, "",               kPullOutNote, WoodScrewTable},
    {FastenerKind::LagScrews,  "Lag Screws",  "Data for Lag Screws",  {false, false, false, true, true,  true},  true,  kEmbedmentNote,   kPullOutNote, {}},
}};

// clang-format on

const FastenerKindEntry& EntryOf(FastenerKind kind) {
  return *std::find_if(kFastenerKindTable.begin(), kFastenerKindTable.end(),
                       [kind](const FastenerKindEntry& entry) { return entry.kind == kind; });
}

std::vector<std::string> SizesOf(FastenerKind kind) {
  if (kind == FastenerKind::LagScrews) {
    return {LagScrewTable.sizes.begin(), LagScrewTable.sizes.end()};
  }
  std::vector<std::string> sizes;
  for (const FastenerRow& row : EntryOf(kind).rows) sizes.emplace_back(row.size);
  return sizes;
}

}  // namespace lignara
