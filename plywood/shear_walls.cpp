#include <string_view>

#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { ShearGrade, ShearBase, ShearSpacing, kThickness };
enum Result : std::size_t { kShear, kPenetration, kNail };
enum Grade { kStructural, kSheathing, kSiding };
enum Base { kDirect, kOverGypsum };
constexpr int k2in = 3;  ///< of ShearSpacing

/// The table of a grade on a base, a column a thickness.
struct ShearPage {
  Texts shear[4];  ///< lbs/ft, a line a nail spacing at the panel edges
  Texts penetration;
  Texts nail;
};

// clang-format off

/// The thicknesses of a grade. One that stands twice is told apart by its nail.
const Texts kThicknesses[] = {
    {"5/16",        "3/8", "7/16", "15/32", "15/32"},
    {"5/16 or 1/4", "3/8", "3/8",  "7/16",  "15/32", "15/32", "19/32"},
    {"5/16",        "3/8"}};

/// By grade and base. 260 lbs/ft of structural 1 grades, 3/8 in, 4 in stands so in the table,
/// whatever its neighbours say.
const ShearPage kPages[3][2] = {
    {{{{"200",   "230",   "255",   "280",   "340"},      // structural 1, direct: 6 in
       {"300",   "260",   "395",   "430",   "510"},      // 4
       {"390",   "460",   "505",   "550",   "665"},      // 3
       {"510",   "610",   "670",   "730",   "870"}},     // 2
      {"1-1/4", "1-1/2", "1-1/2", "1-1/2", "1-5/8"},
      {"6D",    "8D",    "8D",    "8D",    "10D"}},

     {{{"200",   "280",   "NA",    "NA",    "NA"},       // structural 1, over gypsum
       {"300",   "430",   "NA",    "NA",    "NA"},
       {"390",   "550",   "NA",    "NA",    "NA"},
       {"510",   "730",   "NA",    "NA",    "NA"}},
      {"1-1/4", "1-1/2", "1-1/2", "1-1/2", "NA"},
      {"8D",    "10D",   "10D",   "10D",   "NA"}}},

    {{{{"180",   "200",   "220",   "240",   "260",   "310",   "340"},    // sheathing, direct
       {"270",   "300",   "320",   "350",   "380",   "460",   "510"},
       {"350",   "390",   "410",   "450",   "490",   "600",   "665"},
       {"450",   "510",   "530",   "585",   "640",   "770",   "870"}},
      {"1-1/4", "1-1/4", "1-1/2", "1-1/2", "1-1/2", "1-5/8", "1-5/8"},
      {"6D",    "6D",    "8D",    "8D",    "8D",    "10D",   "10D"}},

     {{{"180",   "200",   "260",   "NA",    "NA",    "NA",    "NA"},     // sheathing, over gypsum
       {"270",   "300",   "380",   "NA",    "NA",    "NA",    "NA"},
       {"350",   "390",   "490",   "NA",    "NA",    "NA",    "NA"},
       {"450",   "510",   "640",   "NA",    "NA",    "NA",    "NA"}},
      {"1-1/4", "1-1/4", "1-1/2", "1-1/2", "1-1/2", "NA",    "NA"},
      {"8D",    "8D",    "10D",   "10D",   "10D",   "NA",    "NA"}}},

    {{{{"140",   "160"},                                 // siding, direct
       {"210",   "240"},
       {"275",   "310"},
       {"360",   "410"}},
      {"1-1/4", "1-1/2"},
      {"6D",    "8D"}},

     {{{"140",   "160"},                                 // siding, over gypsum
       {"210",   "240"},
       {"275",   "310"},
       {"360",   "410"}},
      {"1-1/4", "1-1/2"},
      {"8D",    "10D"}}}};

// clang-format on

/// Note A: which columns, nailed directly to the frame, may carry the load of 15/32 in panels.
struct Columns {
  int first, last;
};
constexpr Columns kNoteA[] = {{1, 2}, {2, 3}, {0, -1}};

void Arrange(PlyPanelState& panel) {
  SetEntries(panel.keys[kThickness], kThicknesses[panel.keys[ShearGrade].choice.row]);
}

Texts LookUp(const PlyChoices& at) {
  const ShearPage& page = kPages[at[ShearGrade]][at[ShearBase]];
  const auto column = static_cast<std::size_t>(at[kThickness]);
  return {page.shear[at[ShearSpacing]][column], page.penetration[column], page.nail[column]};
}

bool HasNoteA(const PlyChoices& at) {
  const Columns& columns = kNoteA[at[ShearGrade]];
  return at[ShearBase] == kDirect && at[kThickness] >= columns.first &&
         at[kThickness] <= columns.last;
}

Texts Notes(const PlyChoices& at, const Texts& results) {
  Texts notes;
  const auto add = [&](const Texts& note) { notes.insert(notes.end(), note.begin(), note.end()); };
  if (HasNoteA(at)) {
    add({"NOTE A:", "Loads may be increased to that for 15/32 ply,",
         "if stud spacing is 16 in max and long dimension is across studs."});
  }
  if (at[ShearSpacing] == k2in) {
    add({"NOTE B:", "Framing at ajoining panel edges shall be 3 in or wider.",
         "Nails shall be stagered."});
  }
  if (results[kNail] == "10D") {
    add({"NOTE C:", "Framing at ajoining panel edges shall be at least",
         "3 in or wider and 10D nails shall be stagered when",
         "penetration is more than 1-5/8 in and spacing is ", "3 in O.C.."});
  }
  return notes;
}

}  // namespace

PlyPanelKind ShearWalls() {
  PlyPanelKind kind;
  kind.opener = "Shea&r Walls";
  kind.caption = "Shear Walls";
  kind.keys = {
      OptionKey("Panel Grade", {"APA Structural 1 Grades",
                                "APA Rat.Sheathing and other APA Grades, except Species Group 5",
                                "APA Rat. Siding and other APA Grades, except Species Group 5"}),
      OptionKey("Panel Base",
                {"Panels nailed directly to frame.", "Panels nailed over 1/2 or 5/8 Gypsum"}),
      OptionKey("Nail Spacing at Pnl. edges (in)", {"6", "4", "3", "2"}),
      ListKey("Min. Panel Thk. (in)")};
  kind.results = {"Allowable Shear (lbs/ft)", "Min. Nail Penetration (in)", "Nail Size"};
  kind.linesCaption = "Notes:";
  kind.arrange = Arrange;
  kind.lookUp = LookUp;
  kind.lines = Notes;
  kind.title = "SHEAR WALL";
  kind.report = {
      SayInWords(ShearGrade, {"APA Structural 1 Grades",
                              "APA Sheathing and other APA Grades, except species group 5",
                              "APA rated Siding and other APA grades, except species group 5"}),
      SayKey(kThickness, "Panel thickness is ", " inches"),
      SayInWords(ShearBase,
                 {"Ply is nailed directly to frame.", "Ply is nailed on top of gypsum."}),
      SayKey(ShearSpacing, "Nail spacing is ", " inches at edges"),
      SayResult(kPenetration, "Min. nail penetration is "),
      SayResult(kNail, "Nail size is "),
      SayResult(kShear, "Shear load is ", " lbs/ft"),
      SayText("NOTES:"),
      SayLines()};
  return kind;
}

}  // namespace lignara
