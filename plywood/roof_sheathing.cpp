#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { RoofOrientation, RoofGrade, RoofSpacing, RoofEdge, kRating };
enum Result : std::size_t { kLoad, kSpan, kThickness, kNail };
enum Orientation { kPerpendicular, kParallel };
enum Edge { kEdgeSupport, kNoEdgeSupport };

constexpr const char* kSpacings[] = {"12", "16", "20", "24", "32", "40", "48", "60"};

/// Panels laid across their supports, a column a rating.
struct AcrossPage {
  Texts ratings;
  Texts loads[8];  ///< psf, a line a support spacing
  Texts spans[2];  ///< with and without edge support
  Texts thickness;
  Texts nail;
};

/// A panel laid along its supports.
struct AlongRow {
  const char* rating;
  const char* thickness;
  const char* load;
  const char* span;
  const char* nail;
};

// clang-format off

const AcrossPage kAcross[] = {
    {{"12/0", "16/0", "20/0", "24/0", "24/16", "32/16", "40/20", "48/24"},  // sheathing
    {{"30",   "70",   "120",  "170",  "190",   "220",   "220",   "220"},    // supports 12 in
     {"0",    "30",   "50",   "100",  "100",   "155",   "200",   "210"},    // 16
     {"0",    "0",    "30",   "60",   "65",    "120",   "165",   "210"},    // 20
     {"0",    "0",    "0",    "30",   "40",    "70",    "125",   "165"},    // 24
     {"0",    "0",    "0",    "0",    "0",     "30",    "60",    "95"},     // 32
     {"0",    "0",    "0",    "0",    "0",     "0",     "30",    "45"},     // 40
     {"0",    "0",    "0",    "0",    "0",     "0",     "0",     "35"},     // 48
     {"0",    "0",    "0",    "0",    "0",     "0",     "0",     "0"}},     // 60
    {{"12",   "16",   "20",   "24",   "24",    "32",    "40",    "48"},     // edge support
     {"12",   "16",   "20",   "20",   "24",    "28",    "32",    "36"}},    // no edge support
     {"5/16", "5/16", "5/16", "3/8",  "7/16",  "15/32", "19/32", "23/32"},
     {"6D",   "6D",   "6D",   "6D",   "8D",    "8D",    "8D",    "8D"}},

    {{"16 oc", "20 oc", "24 oc", "32 oc", "48 oc"},   // Sturd-I-Floor
    {{"185",   "270",   "270",   "270",   "290"},     // supports 12 in
     {"100",   "150",   "240",   "250",   "290"},     // 16
     {"65",    "100",   "160",   "250",   "290"},     // 20
     {"40",    "60",    "100",   "185",   "290"},     // 24
     {"0",     "30",    "50",    "100",   "160"},     // 32
     {"0",     "0",     "30",    "60",    "100"},     // 40
     {"0",     "0",     "25",    "40",    "65"},      // 48
     {"0",     "0",     "0",     "0",     "40"}},     // 60
    {{"24",    "32",    "40",    "48",    "60"},      // edge support
     {"24",    "32",    "36",    "40",    "48"}},     // no edge support
     {"19/32", "19/32", "23/32", "7/8",   "1-3/32"},
     {"8D",    "8D",    "8D",    "8D",    "10D"}}};

/// The 40 psf of the first sheathing panel stand so in the table, though the next one has 20.
const std::vector<AlongRow> kAlong[] = {
    // rating          thickness      load  span  nail
    {{"24/0, 24/16",   "7/16",        "20", "24", "8D"},     // structural 1 sheathing
     {"32/16",         "15/32",       "35", "24", "8D"},
     {"32/16",         "1/2",         "40", "24", "8D"},
     {"40/20",         "19/32, 5/8",  "70", "24", "8D"},
     {"48/24",         "23/32, 3/4",  "90", "24", "8D"}},
    {{"24/20, 24/16",  "7/16",        "40", "16", "8D"},     // sheathing
     {"32/16",         "15/32",       "20", "24", "8D"},
     {"24/0, 32/16",   "1/2",         "25", "24", "8D"},
     {"40/20",         "19/32",       "40", "24", "8D"},
     {"32/16, 40/20",  "5/8",         "45", "24", "8D"},
     {"40/20, 48/24",  "23/32, 3/4",  "60", "24", "8D"}}};

const Texts kGradeCaptions[] = {
    {"APA Rated Sheathing", "APA Rated Sturd-I-Floor"},         // across
    {"APA Structural 1 Sheathing", "APA Rated Sheathing"}};     // along

// clang-format on

Texts Ratings(int orientation, int grade) {
  if (orientation == kPerpendicular) return kAcross[grade].ratings;
  Texts ratings;
  for (const AlongRow& row : kAlong[grade]) ratings.emplace_back(row.rating);
  return ratings;
}

void Arrange(PlyPanelState& panel) {
  const int orientation = panel.keys[RoofOrientation].choice.row;
  SetEntries(panel.keys[RoofGrade], kGradeCaptions[orientation]);
  SetEntries(panel.keys[kRating], Ratings(orientation, panel.keys[RoofGrade].choice.row));
  for (const Key key : {RoofSpacing, RoofEdge}) {
    panel.keys[key].shown = orientation == kPerpendicular;
  }
}

Texts LookUp(const PlyChoices& at) {
  const auto rating = static_cast<std::size_t>(at[kRating]);
  if (at[RoofOrientation] == kParallel) {
    const AlongRow& row = kAlong[at[RoofGrade]][rating];
    return {row.load, row.span, row.thickness, row.nail};
  }
  const AcrossPage& page = kAcross[at[RoofGrade]];
  return {page.loads[at[RoofSpacing]][rating], page.spans[at[RoofEdge]][rating],
          page.thickness[rating], page.nail[rating]};
}

Texts Notes(const PlyChoices& at, const Texts& /*results*/) {
  Texts notes = {"NOTE 1:", "Loads are based on 10 psf dead load.",  //
                 "NOTE 2:", "Values assume panels are at least 2 ft wide."};
  if (at[RoofEdge] == kEdgeSupport || at[RoofOrientation] == kParallel) {
    notes.insert(notes.end(), {"NOTE 3:", "Edge support required. Tounge & Groove, panel clips",
                               "or blocking."});
  }
  return notes;
}

}  // namespace

PlyPanelKind RoofSheathing() {
  PlyPanelKind kind;
  kind.opener = "Roof Sh&eeting";
  kind.caption = "Roof Sheathing";
  kind.keys = {
      OptionKey("Orientation", {"Long dim. perp. to supports", "Long dim. parallel to supports"}),
      OptionKey("Grade", kGradeCaptions[kPerpendicular]),
      OptionKey("Support Spacing", {std::begin(kSpacings), std::end(kSpacings)}),
      OptionKey("Edge Support", {"Edge Support", "No Edge Support"}), ListKey("Panel Rating")};
  kind.results = {"Allowable Live Load (psf)", "Max. Panel Span (in)", "Min. Panel Thickness (in)",
                  "Nail Size"};
  kind.linesCaption = "Notes:";
  kind.arrange = Arrange;
  kind.lookUp = LookUp;
  kind.lines = Notes;
  kind.title = "ROOF SHEATHING";
  kind.report = {
      SayInWords(RoofOrientation,
                 {"Long dim. is perp. to supports", "Long dim. is parallel. to supports"}),
      SayKey(RoofGrade),
      SayInWords(RoofEdge, {"Panel edges are supported.", "Panel edges are not supported."}),
      SayKey(RoofSpacing, "Support Spacing is ", " inches"),
      SayKey(kRating, "Panel Rating is "),
      SayResult(kLoad, "Max. Live Load is ", " psf"),
      SayResult(kThickness, "Min. panel thickness is ", " inches"),
      SayResult(kNail, "Nail size is "),
      SayResult(kSpan, "Max. Support Span / Spacing is "),
      SayText("NOTES:"),
      SayLines()};
  return kind;
}

}  // namespace lignara
