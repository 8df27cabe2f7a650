#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

enum Key : std::size_t { kSpacing, kLoad };

constexpr const char* kSpacings[] = {"12", "16", "20", "24", "32", "48"};
constexpr const char* kLoads[] = {"50",  "100", "150", "200", "250",
                                  "300", "350", "400", "450", "500"};

// clang-format off

/// Sheathing rating, floor rating by support spacing (in) and load (psf); the thickness (in) where
/// no floor rating is enough.
constexpr const char* HeavyDutyTable[6][10] = {
    // 50 psf           100             150             200             250             300             350             400             450             500
    {"32/16, 16 oc", "32/16, 16 oc", "32/16, 16 oc", "32/16, 16 oc", "32/16, 16 oc", "32/16, 16 oc", "40/20, 20 oc", "40/20, 20 oc", "40/24, 20 oc", "40/24, 24 oc"},  // 12 in
    {"32/16, 16 oc", "32/16, 16 oc", "32/16, 16 oc", "40/20, 20 oc", "40/20, 24 oc", "48/24, 24 oc", "48/24, 48 oc", "NA, 48 oc",    "NA, 48 oc",    "NA, 48 oc"},     // 16
    {"40/20, 20 oc", "40/20, 20 oc", "40/20, 20 oc", "48/24, 24 oc", "48/24, 48 oc", "NA, 48 oc",    "NA, 48 oc",    "NA, 48 oc",    "NA, 48 oc",    "NA, 48 oc"},     // 20
    {"48/24, 24 oc", "48/24, 24 oc", "48/24, 48 oc", "NA, 48 oc",    "NA, 48 oc",    "NA, 48 oc",    "NA, 1 1/8 ",   "NA, 1 1/4 ",   "NA, 1 3/8 ",   "NA, 1 1/2 "},    // 24
    {"NA, 48 oc",    "NA, 48 oc",    "NA, 48 oc",    "NA, 1 1/8",    "NA, 1 3/8",    "NA, 1 1/2",    "NA, 1 1/2",    "NA, 1 5/8",    "NA, 2",        "NA, 2"},         // 32
    {"NA, 48 oc",    "NA, 1 1/2",    "NA, 1 3/4",    "NA, 2",        "NA, 2 1/4",    "NA, 2 1/4",    "NA",           "NA",           "NA",           "NA"},            // 48
};

// clang-format on

Texts LookUp(const PlyChoices& at) { return {HeavyDutyTable[at[kSpacing]][at[kLoad]]}; }

}  // namespace

PlyPanelKind HeavyDuty() {
  PlyPanelKind kind;
  kind.opener = "Heavy &Duty";
  kind.caption = "Heavy Duty Loads, (APA Rated Sheathing  and Sturd-I-Floor)";
  kind.keys = {OptionKey("Support Spacing (in)", {std::begin(kSpacings), std::end(kSpacings)}),
               ListKey("Load (psf)", {std::begin(kLoads), std::end(kLoads)})};
  kind.results = {"Rating Sheathing, Sturd-I-Floor"};
  kind.note = "All require 2\" wide supports except 48\", which requires 4\".";
  kind.lookUp = LookUp;
  kind.title = "HEAVY DUTY LOADS";
  kind.report = {SayKey(kSpacing, "Support spacing is ", " inches."), SayResultFields(),
                 SayKey(kLoad, "Floor load is ", " lbs/sf")};
  return kind;
}

}  // namespace lignara
