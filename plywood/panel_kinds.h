#pragma once

#include <cstddef>

#include "plywood/panel.h"

namespace lignara {

/// The eleven panels of the window `ply`: those of the strip of buttons, then those of the menu
/// "Options".
enum class PlyPanel {
  StandardLiveLoads,
  GluedFloors,
  SubFloors,
  HeavyDuty,
  TruckDuty,
  WallSheathing,
  ShearWalls,
  RoofSheathing,
  VeneerGrades,
  ExposureLevels,
  SpeciesGroups
};
inline constexpr std::size_t kPlyPanels = 11;
/// The first so many have a button in the strip.
inline constexpr std::size_t kPlyStripPanels = 8;

// One description a panel; each stands in the file of its panel, together with its tables.

PlyPanelKind StandardLiveLoads();
PlyPanelKind GluedFloors();
PlyPanelKind SubFloors();
PlyPanelKind HeavyDuty();
PlyPanelKind TruckDuty();
PlyPanelKind WallSheathing();
PlyPanelKind ShearWalls();
PlyPanelKind RoofSheathing();
PlyPanelKind VeneerGrades();
PlyPanelKind ExposureLevels();
PlyPanelKind SpeciesGroups();

/// The description of a panel.
const PlyPanelKind& PlyPanelKindOf(PlyPanel panel);

}  // namespace lignara
