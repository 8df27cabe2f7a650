#include "connections/fastener_window.h"

#include <algorithm>
#include <span>

namespace lignara {
namespace {

constexpr const char* kPenetrationNote = "Based on insertion length of 11 diameters for lat. load.";
constexpr const char* kEmbedmentNote = "Select embedment length to obtain Lat. loads.";
constexpr const char* kPullOutNote = "Pullout load is per inch of embedment.";

std::span<const FastenerRow> RowsOf(FastenerKind kind) {
  switch (kind) {
    case FastenerKind::Nails:
      return WireNailTable;
    case FastenerKind::Spikes:
      return SpikeTable;
    case FastenerKind::WoodScrews:
      return WoodScrewTable;
    case FastenerKind::LagScrews:
      break;
  }
  return {};
}

std::vector<std::string> SizesOf(FastenerKind kind) {
  if (kind == FastenerKind::LagScrews) {
    return {LagScrewTable.sizes.begin(), LagScrewTable.sizes.end()};
  }
  std::vector<std::string> sizes;
  for (const FastenerRow& row : RowsOf(kind)) sizes.emplace_back(row.size);
  return sizes;
}

void ShowLagScrew(FastenerWindow& window) {
  const auto size = static_cast<std::size_t>(window.sizes.row);
  const auto embedment = static_cast<std::size_t>(window.embedments.row);
  const auto wood = static_cast<std::size_t>(window.wood);
  window.Field(FastenerField::PullOut) = LagScrewTable.pullOut[wood][size];
  window.Field(FastenerField::LateralParallel) = LagScrewTable.parallel[embedment][size];
  window.Field(FastenerField::LateralPerp) = LagScrewTable.perpendicular[embedment][size];
}

void ShowRow(FastenerWindow& window, const FastenerRow& row) {
  window.Field(FastenerField::Length) = row.length;
  window.Field(FastenerField::Diameter) = row.diameter;
  window.Field(FastenerField::Lateral) = row.lateral;
  window.Field(FastenerField::PullOut) = row.pullOut[static_cast<std::size_t>(window.wood)];
}

}  // namespace

// clang-format off

// Fields: length, diameter, lateral, pull-out, lateral parallel, lateral perpendicular; embedments.
const std::array<FastenerKindEntry, kFastenerKinds> kFastenerKindTable = {{
    {FastenerKind::Nails,      "Nails",       "Data for Wire Nails",  {true,  true,  true,  true, false, false}, false, kPenetrationNote, kPullOutNote},
    {FastenerKind::Spikes,     "Spikes",      "Data for Spike Nails", {true,  true,  true,  true, false, false}, false, kPenetrationNote, kPullOutNote},
    {FastenerKind::WoodScrews, "Wood Screws", "Data for Wood Screws", {false, true,  true,  true, false, false}, false, "",               kPullOutNote},
    {FastenerKind::LagScrews,  "Lag Screws",  "Data for Lag Screws",  {false, false, false, true, true,  true},  true,  kEmbedmentNote,   kPullOutNote},
}};

// clang-format on

const FastenerKindEntry& EntryOf(FastenerKind kind) {
  return *std::find_if(kFastenerKindTable.begin(), kFastenerKindTable.end(),
                       [kind](const FastenerKindEntry& entry) { return entry.kind == kind; });
}

void OpenFastenerDataBase(FastenerWindow& window) {
  window = FastenerWindow();
  window.embedments.rows = {LagScrewTable.embedments.begin(), LagScrewTable.embedments.end()};
  ChooseFastenerKind(window, FastenerKind::Nails);
}

void ChooseFastenerKind(FastenerWindow& window, FastenerKind kind) {
  const FastenerKindEntry& entry = EntryOf(kind);
  window.kind = kind;
  window.firstNote = entry.firstNote;
  window.secondNote = entry.secondNote;
  window.sizes = {SizesOf(kind), 0};
  window.embedments.row = 0;
  ShowFastenerValues(window);
}

void ChooseFastenerSize(FastenerWindow& window, int row) {
  if (!window.sizes.Has(row)) return;
  window.sizes.row = row;
  ShowFastenerValues(window);
}

void ChooseEmbedment(FastenerWindow& window, int row) {
  if (!window.embedments.Has(row)) return;
  window.embedments.row = row;
  ShowFastenerValues(window);
}

void ChooseFastenerWood(FastenerWindow& window, FastenerWood wood) {
  window.wood = wood;
  ShowFastenerValues(window);
}

void ShowFastenerValues(FastenerWindow& window) {
  for (ListRows* list : {&window.sizes, &window.embedments}) {
    if (!list->Has(list->row)) list->row = 0;
  }
  window.fields = {};
  if (window.kind == FastenerKind::LagScrews) {
    ShowLagScrew(window);
  } else {
    ShowRow(window, RowsOf(window.kind)[static_cast<std::size_t>(window.sizes.row)]);
  }
}

}  // namespace lignara
