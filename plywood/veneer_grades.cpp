#include "plywood/panel_kinds.h"
#include "plywood/reference.h"

namespace lignara {

PlyPanelKind VeneerGrades() {
  PlyPanelKind kind = ReferencePanel(
      "Grade",
      {{"N",
        {"Smooth surface, Natural finish veneer. Select, all heartwood",
         "or all sapwood. Free of open defects. Allows not more than 6 repairs,",
         "wood only, per 4X8 panel, made parallel to grain and well matched for ",
         "grain and color."}},
       {"A",
        {"Smooth, paintable. Not more than 18 neatly made repairs, boat, sled,",
         "or router type, and parallel to grain, permitted. May be used for natural",
         "finish in less demanding applications. Synthetic repairs permitted."}},
       {"B",
        {"Solid surface. Shims, circular repair plugs and tight knots to 1 inch",
         "across grain permitted. Some minor splits permitted. Synthetic ", "repairs permitted."}},
       {"C (Plugged)",
        {"Improved C veneer with splits limited to 1/8-inch width and knotholes",
         "and borer holes limited to 1/4 X 1/2 inch. Admits some broken grain.",
         "Synthetic repairs permitted."}},
       {"C",
        {"Tight knots to 1-1/2 inch. Knotholes to 1 inch across grain and some",
         "to 1-1/2 inch if total width of knots and knotholes is within specified",
         "limits. Synthetic or wood repairs. Discoloration and sanding defects",
         "that do not impair strength permitted. Limited splits allowed. Stitching", "permitted."}},
       {"D",
        {"Knots and knotholes to 2-1/2 inch width across grain and ",
         "1/2 inch larger within specified limits. Limited splits ",
         "are permitted. Stitching permitted. Limited to Exposure 1 ", "or interor panels."}}});
  kind.opener = "&Veneer Grades...";
  kind.caption = "Veneer Grades";
  kind.title = "VENEER GRADES";
  return kind;
}

}  // namespace lignara
