#include "truss/truss_types.h"

#include <algorithm>

#include "truss/axial_loads.h"
#include "truss/deflection.h"
#include "truss/geometry_drawn.h"
#include "truss/member_layout_rules.h"

namespace lignara {
namespace {

using Ranges = std::vector<MemberRange>;

MemberRange Each(Family family, int first, Upper last) { return {{family}, first, last}; }

/// Members named one by one: element 1 of each family.
MemberRange Single(std::vector<Family> families, Upper last = Upper::One) {
  return {std::move(families), 1, last, true};
}

MemberRange CentreVertical() { return {{Family::CV}, 1, Upper::One}; }

Ranges Joined(Ranges ranges, const Ranges& more) {
  ranges.insert(ranges.end(), more.begin(), more.end());
  return ranges;
}

Ranges Chords() {
  return {Each(Family::TL, 1, Upper::Half), Each(Family::TR, 1, Upper::Half),
          Each(Family::CL, 1, Upper::Half), Each(Family::CR, 1, Upper::Half)};
}

Ranges ChordsAndDiagonals(int firstDiagonal) {
  return Joined(Chords(), {Each(Family::DL, firstDiagonal, Upper::Half),
                           Each(Family::DR, firstDiagonal, Upper::Half)});
}

Ranges Verticals(Upper last) { return {Each(Family::VL, 1, last), Each(Family::VR, 1, last)}; }

Ranges KingPostMembers() {
  return {Single({Family::TL, Family::TR, Family::CL, Family::CR}), CentreVertical()};
}

Ranges ScissorsMembers() {
  return {Single({Family::TL, Family::TR}, Upper::Two),
          Single({Family::VL, Family::VR, Family::CL, Family::CR}), CentreVertical()};
}

Ranges Pratt1AxialRows() {
  return Joined(Joined(ChordsAndDiagonals(2), Verticals(Upper::BeforeHalf)), {CentreVertical()});
}

Ranges EnglishAxialRows() {
  const MemberRange byTurns = {{Family::VL, Family::VR}, 1, Upper::BeforeHalf};
  return Joined(ChordsAndDiagonals(2), {byTurns, CentreVertical()});
}

Ranges FlatAxialRows() {
  return Joined(Joined(ChordsAndDiagonals(1), Verticals(Upper::Half)), {CentreVertical()});
}

Ranges WarrenRows(int firstDiagonal) {
  return Joined(ChordsAndDiagonals(firstDiagonal), {Single({Family::VL, Family::VR})});
}

Ranges Pratt1Checked() { return Joined(ChordsAndDiagonals(2), Verticals(Upper::BeforeHalf)); }

/// The end panel's diagonal and the vertical next to midspan are left out of the check.
Ranges FlatChecked() { return Joined(Pratt1Checked(), {CentreVertical()}); }

Ranges EnglishChecked() { return FlatAxialRows(); }

using Signs = std::vector<SignRule>;
constexpr int kCompression = -1;
constexpr int kTension = 1;

SignRule Sign(int sign, Family left, Family right, int first = 1, Upper last = Upper::Half) {
  return {{{left, right}, first, last}, sign};
}

Signs WithChords(Signs signs) {
  signs.push_back(Sign(kCompression, Family::TL, Family::TR));
  signs.push_back(Sign(kTension, Family::CL, Family::CR));
  return signs;
}

SignRule CentreInCompression() { return {CentreVertical(), kCompression}; }

Signs Pratt1Signs() {
  return WithChords(
      {Sign(kCompression, Family::VL, Family::VR), Sign(kTension, Family::DL, Family::DR, 2)});
}

Signs EnglishSigns() {
  return WithChords({Sign(kTension, Family::VL, Family::VR),
                     Sign(kCompression, Family::DL, Family::DR, 2), CentreInCompression()});
}

Signs KingPostSigns() {
  return {Sign(kCompression, Family::TL, Family::TR, 1, Upper::One),
          Sign(kTension, Family::CL, Family::CR, 1, Upper::One), CentreInCompression()};
}

Signs ScissorsSigns() {
  return {Sign(kCompression, Family::TL, Family::TR, 1, Upper::Two),
          Sign(kTension, Family::CL, Family::CR, 1, Upper::One),
          Sign(kCompression, Family::VL, Family::VR, 1, Upper::One), CentreInCompression()};
}

Signs Pratt2Signs() {
  return WithChords({Sign(kCompression, Family::VL, Family::VR),
                     Sign(kTension, Family::DL, Family::DR), CentreInCompression()});
}

Signs HoweSigns() {
  return WithChords({Sign(kCompression, Family::VL, Family::VR, 1, Upper::One),
                     Sign(kTension, Family::VL, Family::VR, 2),
                     Sign(kCompression, Family::DL, Family::DR), CentreInCompression()});
}

/// A few lines are worded a little differently; whoever compares lists by machine counts on that.
std::vector<StressWording> SpacedTop() { return {{Family::TL, "Actual Stress  = ", " psi"}}; }

std::vector<StressWording> KingPostWordings() {
  return {{Family::TL, "Actual Stress =  ", " psi"}, {Family::CR, "Actual Stress = ", " psi)"}};
}

std::vector<TrussTypeInfo> MakeTypes() {
  return {
      {.keyword = "PRATT1",
       .title = "PRATT1 TRUSS",
       .exampleCaption = "Example:(6 Span Pratt1)",
       .layout = PRATT1_IN,
       .topNodePlace = RafterPlace,
       .spread = SpreadPitched,
       .chain = PRATT1_AXIAL,
       .signs = Pratt1Signs(),
       .deflections = DEFLECTIONS_PEAKED,
       .axialRows = Pratt1AxialRows(),
       .checkedMembers = Pratt1Checked()},
      {.keyword = "FINK",
       .title = "FINK TRUSS",
       .exampleCaption = "Example:(6 Span Fink)",
       .layout = FINK_IN,
       .topNodePlace = FinkPlace,
       .spread = SpreadFink,
       .drawnGeometry = FinkDrawnGeometry,
       .chain = FINK_AXIAL,
       .signs = Pratt1Signs(),
       .deflections = DEFLECTIONS_PEAKED,
       .axialRows = Pratt1AxialRows(),
       .checkedMembers = Pratt1Checked()},
      {.keyword = "ENGLISH",
       .title = "ENGLISH TRUSS",
       .exampleCaption = "Example:(6 Span English)",
       .diagonalsFall = true,
       .layout = ENGLISH_IN,
       .topNodePlace = RafterPlace,
       .spread = SpreadPitched,
       .chain = ENGLISH_AXIAL,
       .signs = EnglishSigns(),
       .deflections = DEFLECTIONS_PEAKED,
       .axialRows = EnglishAxialRows(),
       .checkedMembers = EnglishChecked(),
       .stressWordings = SpacedTop()},
      {.keyword = "KINGPOST",
       .title = "KING POST TRUSS",
       .exampleCaption = "Example:(KING POST)",
       .firstField = FirstField::Nothing,
       .onePanelAHalf = true,
       .layout = KINGPOST_IN,
       .topNodePlace = PeakPlace,
       .topNodes = PeakNode,
       .filledByAll = PitchedNodes,
       .blankRow = BlankRowLoad::Peak,
       .spread = SpreadKingPost,
       .chain = KINGPOST_AXIAL,
       .signs = KingPostSigns(),
       .deflections = DEFLECTIONS_PEAKED,
       .axialRows = KingPostMembers(),
       .checkedMembers = KingPostMembers(),
       .stressWordings = KingPostWordings()},
      {.keyword = "SCI",
       .title = "SCISSORS TRUSS",
       .exampleCaption = "Example:(Scissors Truss)",
       .firstField = FirstField::InnerHeight,
       .example = {.height = 10, .innerHeight = 4},
       .layout = SCI_IN,
       .topNodePlace = ScissorsPlace,
       .blankRow = BlankRowLoad::Nowhere,
       .blankBeforeNodeNumber = false,
       .spread = SpreadScissors,
       .drawnGeometry = ScissorsDrawnGeometry,
       .chain = SCI_AXIAL,
       .signs = ScissorsSigns(),
       .deflections = DEFLECTIONS_PEAKED,
       .axialRows = ScissorsMembers(),
       .checkedMembers = ScissorsMembers()},
      {.keyword = "HOWE",
       .title = "HOWE TRUSS",
       .exampleCaption = "Example:(6 Span HOWE Truss)",
       .levelTop = true,
       .example = {.height = 5},
       .layout = HOWE_IN,
       .topNodePlace = FlatNodePlace,
       .topNodes = FlatNodes,
       .spread = SpreadFlat,
       .chain = HOWE_AXIAL,
       .signs = HoweSigns(),
       .deflections = DEFLECTIONS_FLAT,
       .axialRows = FlatAxialRows(),
       .checkedMembers = FlatChecked(),
       .stressWordings = SpacedTop(),
       .centreNameOnPaper = "CV1"},
      {.keyword = "PRATT2",
       .title = "PRATT2 TRUSS",
       .exampleCaption = "Example:(6 Span PRATT2 Truss)",
       .levelTop = true,
       .example = {.height = 5},
       .layout = PRATT2_IN,
       .topNodePlace = FlatNodePlace,
       .topNodes = FlatNodes,
       .spread = SpreadFlat,
       .chain = PRATT2_AXIAL,
       .signs = Pratt2Signs(),
       .deflections = DEFLECTIONS_FLAT,
       .axialRows = FlatAxialRows(),
       .checkedMembers = FlatChecked(),
       .stressWordings = SpacedTop()},
      {.keyword = "WARREN",
       .title = "WARREN TRUSS",
       .exampleCaption = "Example:(6 Span WARREN Truss)",
       .levelTop = true,
       .example = {.height = 5},
       .layout = WARREN_IN,
       .topNodePlace = WarrenNodePlace,
       .topNodes = WarrenNodes,
       .filledByAll = WarrenElements,
       .spread = SpreadWarren,
       .drawnGeometry = WarrenDrawnGeometry,
       .chain = WARREN_AXIAL,
       .deflections = DEFLECTIONS_WARREN,
       .axialRows = WarrenRows(1),
       .checkedMembers = WarrenRows(2),
       .stressWordings = SpacedTop()},
  };
}

}  // namespace

const std::vector<TrussTypeInfo>& TrussTypes() {
  static const std::vector<TrussTypeInfo> types = MakeTypes();
  return types;
}

const TrussTypeInfo& TrussTypeOf(std::string_view keyword) {
  static const TrussTypeInfo none;
  const auto& types = TrussTypes();
  const auto found = std::find_if(types.begin(), types.end(), [&](const TrussTypeInfo& type) {
    return type.keyword == keyword;
  });
  return found == types.end() ? none : *found;
}

}  // namespace lignara
