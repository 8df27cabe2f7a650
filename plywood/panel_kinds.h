#pragma once

#include "plywood/panel.h"

namespace lignara {

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
