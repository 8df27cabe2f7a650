#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { kTread, kSpacing, kLoad };

constexpr const char* kTreads[] = {"3", "5", "7", "9"};
constexpr const char* kSpacings[] = {"12", "16", "20", "24"};

/// The table of one tread width: a line of wheel loads (lbs), and below it the panels, a line a
/// support spacing.
struct TruckDutyPage {
  Texts loads;
  Texts panels[4];
};

constexpr const char* k48oc = "48 oc Sturd-I-Floor, PS-1";

// clang-format off

const TruckDutyPage TruckDutyTable[] = {
    {{"500", "1000",  "1500",  "2000"},                       // tread 3 in
    {{k48oc, "1-1/4", "1-1/2", "2"},                          // supports 12 in
     {k48oc, "1-1/4", "1-3/4", "2"},                          // 16
     {k48oc, "1-1/4", "1-3/4", "2-1/4"},                      // 20
     {k48oc, "1-1/4", "1-3/4", "2-1/4"}}},                    // 24

    {{"1000",  "1500",  "2000",  "2500",  "3000"},            // tread 5 in
    {{k48oc,   "1-1/8", "1-1/4", "1-1/2", "1-3/4"},
     {k48oc,   "1-1/8", "1-1/2", "2",     "2"},
     {"1-1/8", "1-1/4", "1-1/2", "2",     "2-1/4"},
     {"1-1/8", "1-1/4", "1-3/4", "2",     "2-1/4"}}},

    {{"2000",  "3000",  "4000",  "5000",  "6000"},            // tread 7 in
    {{"1-1/8", "1-1/4", "1-3/4", "2",     "2-1/4"},
     {"1-1/8", "1-1/2", "1-3/4", "2",     "2-1/2"},
     {"1-1/4", "1-1/2", "1-3/4", "2-1/4", "2-3/4"},
     {"1-1/4", "1-3/4", "2",     "2-1/2", "3"}}},

    {{"3000",  "4000",  "5000",  "6000",  "7000"},            // tread 9 in
    {{"1-1/4", "1-1/2", "1-3/4", "2",     "2-1/4"},
     {"1-1/4", "1-1/2", "1-3/4", "2",     "2-1/4"},
     {"1-1/4", "1-3/4", "2",     "2-1/4", "2-3/4"},
     {"1-1/4", "1-3/4", "2",     "2-1/4", "2-3/4"}}},
};

// clang-format on

void Arrange(PlyPanelState& panel) {
  SetEntries(panel.keys[kLoad], TruckDutyTable[panel.keys[kTread].choice.row].loads);
}

Texts LookUp(const PlyChoices& at) {
  const Texts& panels = TruckDutyTable[at[kTread]].panels[at[kSpacing]];
  return {panels[static_cast<std::size_t>(at[kLoad])]};
}

}  // namespace

PlyPanelKind TruckDuty() {
  PlyPanelKind kind;
  kind.opener = "&Truck Duty";
  kind.caption = "Fork Truck Traffic (Structural 1 A-C)";
  kind.keys = {OptionKey("Tire Tread Print Width (in)", {std::begin(kTreads), std::end(kTreads)}),
               OptionKey("Support Spacing (in)", {std::begin(kSpacings), std::end(kSpacings)}),
               ListKey("Load per wheel (lbs)")};
  kind.results = {"Structural 1, A-C Plywood  U.N.O.    Thickness (in)"};
  kind.note = "Require 3\" wide supports";
  kind.arrange = Arrange;
  kind.lookUp = LookUp;
  kind.title = "Fork Truck Flooring";
  kind.report = {SayKey(kLoad, "Wheel load is ", " lbs"),
                 SayKey(kSpacing, "Support spacing is ", " inches"),
                 SayKey(kTread, "Tire tread print width is ", " inches"), SayResultFields()};
  return kind;
}

}  // namespace lignara
