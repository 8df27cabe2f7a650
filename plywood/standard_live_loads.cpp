#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/plain_number.h"
#include "plywood/panel_kinds.h"
#include "plywood/ply_report.h"
#include "plywood/stamp.h"

namespace lignara {
namespace {

enum Key : std::size_t { kRating, kSpan, kNailing };
enum Nailing { kGlued, kNailOnly };

constexpr const char* kFloorClass = "RATED STURD-I-FLOOR";
constexpr const char* kSheathingClass = "RATED SHEATHING";

struct Rating {
  const char* name;
  const char* stampClass;
  const char* gradeMark;
  bool largeNails;  ///< thick floor panels take the 8d nail
};

constexpr Rating kRatings[] = {
    {"16", kFloorClass, "16 oc", false},        {"20", kFloorClass, "20 oc", false},
    {"24", kFloorClass, "24 oc", true},         {"32", kFloorClass, "32 oc", true},
    {"48", kFloorClass, "48 oc", true},         {"24/16", kSheathingClass, "24/16", false},
    {"32/16", kSheathingClass, "32/16", false}, {"40/20", kSheathingClass, "40/20", false},
    {"48/24", kSheathingClass, "48/24", false},
};
constexpr int kRating48 = 4;

constexpr const char* kSpans[] = {"12", "16", "20", "24", "32", "40", "48"};
constexpr int kSpan48 = 6;

// clang-format off

/// Uniform live load in psf; 0 where the panel is not rated for the span.
constexpr float LiveLoadTable[7][9] = {
    // 16   20   24   32   48 24/16 32/16 40/20 48/24
    { 170, 245, 315, 315, 325,  170,  170,  245,  315},  // span 12 in
    {  85, 150, 225, 265, 325,   85,   85,  150,  225},  // 16
    {   0,  85, 160, 215, 325,    0,    0,   85,  160},  // 20
    {   0,   0,  85, 170, 255,    0,    0,    0,   85},  // 24
    {   0,   0,   0,  85, 160,    0,    0,    0,    0},  // 32
    {   0,   0,   0,   0, 100,    0,    0,    0,    0},  // 40
    {   0,   0,   0,   0,  55,    0,    0,    0,    0},  // 48
};

// clang-format on

/// The live loads hold at a deflection of the span divided by this.
constexpr double kDeflectionLimit = 360;

Texts RatingNames() {
  Texts names;
  for (const Rating& rating : kRatings) names.emplace_back(rating.name);
  return names;
}

Texts LookUp(const PlyChoices& at) {
  const Float32 load = LiveLoadTable[at[kSpan]][at[kRating]];
  if (load.value() == 0) return {PlainNumber(load), "", "", "", ""};
  const Float32 deflection = ReadNumber(kSpans[at[kSpan]]) / kDeflectionLimit;
  const bool largeNails = kRatings[at[kRating]].largeNails;
  const bool closeInside = at[kRating] == kRating48 && at[kSpan] == kSpan48;
  const bool closeEdges = at[kNailing] == kNailOnly || largeNails;
  return {PlainNumber(load), FormatNumber(deflection, "0.000"), closeInside ? "6" : "12",
          closeEdges ? "6" : "12",
          largeNails ? "8d Ring or Screw Shank" : "6d Ring or Screw Shank"};
}

Drawing Stamp(const PlyChoices& at) {
  if (at[kRating] < 0) return UnstampedSheet();
  const Rating& rating = kRatings[at[kRating]];
  return PanelStamp(rating.stampClass, rating.gradeMark);
}

}  // namespace

PlyPanelKind StandardLiveLoads() {
  PlyPanelKind kind;
  kind.opener = "Standard &Live Loads";
  kind.caption = "Standard Floors and Sheathing (APA Rated Panels)";
  kind.keys = {ListKey("Panel  Rating", RatingNames()),
               ListKey("Actual Span  (in)", {std::begin(kSpans), std::end(kSpans)}),
               OptionKey("Attachment", {"Nail/Glued", "Nail only"}, kNailOnly)};
  kind.results = {"Live Load (psf)", "Max. Def.(in)", "Nail Spacing, Int. Sup. (in)",
                  "Nail Spacing, edges (in)", "Nail type"};
  kind.pictureName = "Stamp";
  kind.lookUp = LookUp;
  kind.picture = Stamp;
  kind.title = "Standard Floors and Sheathing Live Loads";
  kind.report = {SayKey(kRating, "Panel Rating is "), SayKey(kSpan, "Panel Span is "),
                 SayInWords(kNailing, {"Attached with nails and glue", "Attached with nails only"}),
                 SayResultFields()};
  return kind;
}

}  // namespace lignara
