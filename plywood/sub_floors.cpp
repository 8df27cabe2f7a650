#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { kRating, kFloor };
enum Floor { kStrip, kConcrete, kOther, kTile };

struct SubFloor {
  const char* thickness;
  const char* spans[3];  ///< under wood strips, lightweight concrete, any other floor
  const char* nail;
  const char* tileThickness;
  const char* tileSpan;
  const char* tileNail;
};

constexpr const char* kRatings[] = {"24/16", "32/16", "40/20", "48/24"};

// clang-format off

/// Under tile, the panel of the code for tile stands in place of that of the rating.
constexpr SubFloor kSubFloors[] = {
    //thk     strip conc. other                 under tile
    {"7/16",  {"16", "16", "16"}, "6D COMMON", "NA",    "NA", "NA"},         // 24/16
    {"15/32", {"24", "16", "16"}, "8D COMMON", "19/32", "16", "8D COMMON"},  // 32/16
    {"23/32", {"24", "24", "20"}, "8D COMMON", "19/32", "16", "8D COMMON"},  // 40/20
    {"23/32", {"24", "24", "24"}, "8D COMMON", "19/32", "16", "8D COMMON"},  // 48/24
};

// clang-format on

Texts LookUp(const PlyChoices& at) {
  const SubFloor& panel = kSubFloors[at[kRating]];
  if (at[kFloor] == kTile) return {panel.tileThickness, panel.tileSpan, panel.tileNail};
  return {panel.thickness, panel.spans[at[kFloor]], panel.nail};
}

}  // namespace

PlyPanelKind SubFloors() {
  PlyPanelKind kind;
  kind.opener = "Su&b Floors";
  kind.caption = "Sub Floors (APA Rated Sheathing)";
  kind.keys = {
      ListKey("Panel Rating", {std::begin(kRatings), std::end(kRatings)}),
      OptionKey("Supporting Floor Type", {"3/4\" Wood Strip Flooring at Rt. angle  to joists.",
                                          "1 1/2\" Lightweight Concrete", "Other ", "Tile"})};
  kind.results = {"Min. Panel Thickness (in)", "Max. Span bet. Joists (in)", "Nail Size and Type"};
  kind.note = "All nail spacing is 6\" at edges and 12\" along internal joists.";
  kind.lookUp = LookUp;
  kind.title = "SUB FLOORING";
  kind.report = {SayKey(kRating, "Panel Rating is "),
                 SayText("Panel supports the following floor type:"), SayKey(kFloor),
                 SayResultFields()};
  return kind;
}

}  // namespace lignara
