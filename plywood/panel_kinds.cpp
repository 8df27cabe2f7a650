#include "plywood/panel_kinds.h"

#include <array>

namespace lignara {

const PlyPanelKind& PlyPanelKindOf(PlyPanel panel) {
  static const std::array<PlyPanelKind, kPlyPanels> kinds = {
      StandardLiveLoads(), GluedFloors(),    SubFloors(),    HeavyDuty(),
      TruckDuty(),         WallSheathing(),  ShearWalls(),   RoofSheathing(),
      VeneerGrades(),      ExposureLevels(), SpeciesGroups()};
  return kinds[static_cast<std::size_t>(panel)];
}

}  // namespace lignara
