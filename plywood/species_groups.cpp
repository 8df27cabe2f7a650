#include "plywood/panel_kinds.h"
#include "plywood/reference.h"

namespace lignara {

PlyPanelKind SpeciesGroups() {
  PlyPanelKind kind = ReferencePanel(
      "Level",
      {{"Group 1",
        {"Apitong", "Beech (American)", "Birch (Sweet, Yellow)", "Douglas Fir 1", "Kapur",
         "Keruing", "Larch (Western)", "Maple (Sugar)", "Pine (Caribbean, Ocote)",
         "Southern Pine (Loblolly,Longleaf, Shortleaf Slash)", "Tanoak"}},
       {"Group 2",
        {"Port Cedar (Orford)", "Cypress", "Douglas Fir 2",
         "Fir (Balsam, California Red, Grand, Noble, Pacific Silver, White)", "Hemlock (Western)",
         "Lauan (Almon, Bagtikan, Mayapis, Red, Tangile, White)", "Maple (Black)", "Mengkulang",
         "Meranti (Red)", "Mersawa", "Pine (Pond, Red, Virginia, Western White)",
         "Spruce (Black, Red, Sitka)", "Sweetgum", "Tamarack", "Yellow-Poplar"}},
       {"Group 3",
        {"Alder (Red)", "Birch (Paper)", "Cedar (Alaska)", "Fir (Subalpine)", "Hemlock (Eastern)",
         "Maple (Bigleaf)", "Pine (Jack, Lodgepole, Ponderosa, Spruce)", "Redwood",
         "Spruce (Engelmann, White)"}},
       {"Group 4",
        {"Aspen (Bigtooth, Quaking)", "Cativo", "Cedar (Incense, Western Red)",
         "Cottonwood (Eastern, Black)", "Pine (Eastern White, Sugar)"}},
       {"Group 5", {"Basswood", "Poplar (Balsam)"}}});
  kind.opener = "&Species Classificaiton...";
  kind.caption = "Species Classification";
  kind.title = "SPECIES CLASSIFICATION";
  return kind;
}

}  // namespace lignara
