#include <array>

#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { kApplication, kOrientation, kKey };
enum Application { kStandard, kStucco, kInterior };

/// One row of a page: the entry of the list and the two results.
using Row = std::array<const char*, 3>;

/// The table of an application: captions of the list and of the results, then the rows.
struct WallPage {
  Row captions;
  std::vector<Row> rows;
};

constexpr const char* kByThickness = "6D for thk.<=1/2 or 8D for thk. >1/2";

// clang-format off

const WallPage kStandardPage = {
    {"Ply APA Rating", "Nail Size",    "Stud Spacing(in)"},
   {{"12/0",           kByThickness,   "16"},
    {"16/0",           kByThickness,   "16"},
    {"20/0",           kByThickness,   "16"},
    {"Wall-16 oc",     kByThickness,   "16"},
    {"24/0",           kByThickness,   "24"},
    {"24/16",          kByThickness,   "24"},
    {"32/16",          kByThickness,   "24"},
    {"Wall-24 oc",     kByThickness,   "24"}}};

/// Under stucco, by the way that the panels stand.
const WallPage kStuccoPages[] = {
   {{"Stud Spacing (in)", "Min. Panel Thk. (in)", "Panel APA Rating"},   // Vert.
   {{"16",                "15/32",                "32/16"},
    {"24",                "19/32",                "40/20"}}},
   {{"Stud Spacing (in)", "Min. Panel Thk. (in)", "Panel APA Rating"},   // Horiz.
   {{"16",                "3/8 OR 5/16",          "24/0 or Wall-24 oc"},
    {"24",                "7/16",                 "24/0"}}}};

const WallPage kInteriorPage = {
    {"Panel Thk. (in)", "Stud Spacing (in)", "Nail Size"},
   {{"1/4",             "16",                "4D"},
    {"5/16",            "16",                "6D"},
    {"11/32-1/2",       "24",                "6D"},
    {"19/32-3/4",       "24",                "8D"},
    {"Texture 1-11",    "24",                "8D"}}};

// clang-format on

const WallPage& PageOf(int application, int orientation) {
  if (application == kStucco) return kStuccoPages[orientation];
  return application == kStandard ? kStandardPage : kInteriorPage;
}

void Arrange(PlyPanelState& panel) {
  const int application = panel.keys[kApplication].choice.row;
  const WallPage& page = PageOf(application, panel.keys[kOrientation].choice.row);
  Texts entries;
  for (const Row& row : page.rows) entries.emplace_back(row[0]);
  SetEntries(panel.keys[kKey], entries);
  panel.keys[kKey].caption = page.captions[0];
  panel.keys[kOrientation].shown = application == kStucco;
  for (std::size_t i = 0; i < panel.results.size(); ++i) {
    panel.results[i].caption = page.captions[i + 1];
  }
}

Texts LookUp(const PlyChoices& at) {
  const WallPage& page = PageOf(at[kApplication], at[kOrientation]);
  const Row& row = page.rows[static_cast<std::size_t>(at[kKey])];
  return {row[1], row[2]};
}

}  // namespace

PlyPanelKind WallSheathing() {
  PlyPanelKind kind;
  kind.opener = "&Wall Sheathing";
  kind.caption = "Wall Sheathing";
  kind.keys = {OptionKey("Application", {"Standard", "To Support Stucco", "Interior Ply Panels"}),
               OptionKey("Panel Orientation", {"Vert.", "Horiz."}),
               ListKey(kStandardPage.captions[0])};
  kind.results = {kStandardPage.captions[1], kStandardPage.captions[2]};
  kind.note = "Nail Spacing is 6\" along edges and 12\" along interior studs.";
  kind.arrange = Arrange;
  kind.lookUp = LookUp;
  kind.title = "WALL SHEATHING";
  kind.report = {SayInWords(kApplication, {"STANDARD", "To support Stucco", "Interior Panels"}),
                 SayInWords(kOrientation, {"Panels are placed vert.", "Panels are placed horiz."}),
                 SayKeyField(kKey), SayResultFields()};
  return kind;
}

}  // namespace lignara
