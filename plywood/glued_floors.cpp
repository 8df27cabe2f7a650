#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { kWood, kSize, kSpacing, kRating };

// clang-format off

/// The group of a joist spacing and a panel rating: 24 in. apart, the joist governs whatever the
/// panel.
constexpr int kGroups[3][3] = {
    // 16 oc  20 oc  24 oc
    {      1,     1,     2},  // joists 16 in apart
    {      3,     3,     4},  // 19.2
    {      5,     5,     5},  // 24
};

/// Longest joist span, ft-in, by group, joist size and wood. 12-7 in the last row of group 1 stands
/// so in the table, whatever its neighbours say.
constexpr const char* GluedFloorTable[5][4][10] = {
    // Df-L 1   Df-L 2   Df-S 1   Df-S 2   H-F 1    H-F 2    SP KD 1  SP KD 2  SP MC 1  SP MC 2
    {{"11-0",  "10-6",  "10-4",  "10-1",  "10-3",  "9-4",   "11-0",  "10-8",  "10-10", "10-3"},   // 2X6
     {"14-3",  "13-10", "13-4",  "13-1",  "13-7",  "12-4",  "14-3",  "13-10", "14-0",  "13-7"},   // 2X8
     {"17-11", "17-7",  "16-8",  "16-4",  "17-0",  "15-8",  "17-11", "17-4",  "17-8",  "17-4"},   // 2X10
     {"12-7",  "21-3",  "20-1",  "19-8",  "20-6",  "19-1",  "21-7",  "20-11", "21-3",  "20-11"}}, // 2X12
    // Group 2: joists at 16 in, 24 oc
    {{"11-4",  "10-6",  "10-8",  "10-1",  "10-3",  "9-4",   "11-4",  "10-8",  "11-2",  "10-3"},
     {"14-7",  "13-10", "13-8",  "13-4",  "13-7",  "12-4",  "14-7",  "14-0",  "14-4",  "13-7"},
     {"18-3",  "17-7",  "17-0",  "16-8",  "17-4",  "15-8",  "18-3",  "17-8",  "17-11", "17-4"},
     {"21-11", "21-5",  "20-5",  "20-0",  "20-10", "19-1",  "21-11", "21-2",  "21-7",  "21-1"}},
    // Group 3: joists at 19.2 in, 16 oc or 20 oc
    {{"10-6",  "9-7",   "9-11",  "9-3",   "9-5",   "8-6",   "10-6",  "9-9",   "10-4",  "9-5"},
     {"13-7",  "12-7",  "12-8",  "12-2",  "12-5",  "11-3",  "13-7",  "12-10", "13-4",  "12-5"},
     {"17-0",  "16-1",  "15-11", "15-6",  "15-10", "14-4",  "17-0",  "16-4",  "16-9",  "15-10"},
     {"20-6",  "19-7",  "19-1",  "18-8",  "19-3",  "17-5",  "20-6",  "19-10", "20-2",  "19-3"}},
    // Group 4: joists at 19.2 in, 24 oc
    {{"10-6",  "9-7",   "10-2",  "9-3",   "9-5",   "8-6",   "10-10", "9-9",   "10-4",  "9-5"},
     {"13-10", "12-7",  "13-0",  "12-2",  "12-5",  "11-3",  "13-11", "12-10", "13-8",  "12-5"},
     {"17-4",  "16-1",  "16-3",  "15-6",  "15-10", "14-4",  "17-4",  "16-4",  "17-1",  "15-10"},
     {"20-10", "19-7",  "19-5",  "18-10", "19-3",  "17-5",  "20-10", "19-11", "20-6",  "19-3"}},
    // Group 5: joists at 24 in
    {{"9-5",   "8-7",   "9-1",   "8-3",   "8-5",   "7-7",   "9-8",   "8-8",   "9-3",   "8-5"},
     {"12-5",  "11-3",  "12-0",  "10-11", "11-1",  "10-0",  "12-9",  "11-6",  "12-2",  "11-1"},
     {"15-10", "14-5",  "15-4",  "13-11", "14-2",  "12-10", "16-3",  "14-8",  "15-7",  "14-2"},
     {"19-3",  "17-6",  "18-4",  "16-11", "17-2",  "15-7",  "19-7",  "17-9",  "18-11", "17-2"}},
};

// clang-format on

Texts LookUp(const PlyChoices& at) {
  const int group = kGroups[at[kSpacing]][at[kRating]];
  return {GluedFloorTable[group - 1][at[kSize]][at[kWood]]};
}

}  // namespace

PlyPanelKind GluedFloors() {
  PlyPanelKind kind;
  kind.opener = "&Glued Floors";
  kind.caption = "APA Rated Sturd-I-Floor Glued Floor Spans";
  kind.keys = {ListKey("Joist Wood Type",
                       {"Douglas fir-Larch No. 1", "Douglas fir-Larch N0. 2",
                        "Douglas fir-South No. 1", "Douglas fir-South No. 2", "Hem-Fir No. 1",
                        "Hem-Fir No. 2", "Southern Pine KD15 No. 1", "Southern Pine KD15 No. 2",
                        "Southern Pine MC19 No. 1", "Southern Pine MC19 No. 2"}),
               OptionKey("Joist Size", {"2X6", "2X8", "2X10", "2X12"}),
               OptionKey("Joist Spacing (in)", {"16", "19.2", "24"}),
               OptionKey("Panel Rating", {"16 oc", "20 oc", "24 oc"})};
  kind.results = {"Max Joist Span (ft-in)"};
  kind.note =
      "Based on live load of 40 psf, with 1/360 deflection limit. Glue to joists and at "
      "tongue-and-groove joints. Glue blocking if square-edge panels are used.";
  kind.lookUp = LookUp;
  kind.title = " STURD-I-FLOOR GLUED FLOOR SYSTEM";
  kind.report = {SayKey(kWood, "Joist wood type is "),
                 SayKey(kSpacing, "Joist spacing is ", " inches."),
                 SayKey(kRating, "Panel rating is "),
                 SayKey(kSize, "Joist size is "),
                 SayResultFields(),
                 SayText("Based on live load of 40 psf, with 1/360 deflection limit."),
                 SayText("Glue to joists are at tongue-and-groove joints."),
                 SayText("Glue blocking if square-edge panels are used.")};
  return kind;
}

}  // namespace lignara
