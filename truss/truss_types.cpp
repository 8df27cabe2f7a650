#include "truss/truss_types.h"

#include <algorithm>

#include "truss/axial_loads.h"
#include "truss/deflection.h"
#include "truss/geometry.h"
#include "truss/listed_and_checked_members.h"
#include "truss/member_layout_rules.h"
#include "truss/member_signs.h"
#include "truss/stress_check.h"

namespace lignara {
namespace {

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
