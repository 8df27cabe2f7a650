#include "truss/truss_types.h"

#include <algorithm>

namespace lignara {
namespace {

using Runs = std::vector<MemberRun>;

MemberRun Each(Family family, int first, Upper last) { return {{family}, first, last}; }

/// Members named one by one: element 1 of each family.
MemberRun Single(std::vector<Family> families, Upper last = Upper::One) {
  return {std::move(families), 1, last, true};
}

const MemberRun kCentreVertical = {{Family::CV}, 1, Upper::One};

Runs Joined(Runs runs, const Runs& more) {
  runs.insert(runs.end(), more.begin(), more.end());
  return runs;
}

Runs Chords() {
  return {Each(Family::TL, 1, Upper::Half), Each(Family::TR, 1, Upper::Half),
          Each(Family::CL, 1, Upper::Half), Each(Family::CR, 1, Upper::Half)};
}

Runs ChordsAndDiagonals(int firstDiagonal) {
  return Joined(Chords(), {Each(Family::DL, firstDiagonal, Upper::Half),
                           Each(Family::DR, firstDiagonal, Upper::Half)});
}

Runs Verticals(Upper last) { return {Each(Family::VL, 1, last), Each(Family::VR, 1, last)}; }

Runs KingPostMembers() {
  return {Single({Family::TL, Family::TR, Family::CL, Family::CR}), kCentreVertical};
}

Runs ScissorsMembers() {
  return {Single({Family::TL, Family::TR}, Upper::Two),
          Single({Family::VL, Family::VR, Family::CL, Family::CR}), kCentreVertical};
}

Runs Pratt1AxialRows() {
  return Joined(Joined(ChordsAndDiagonals(2), Verticals(Upper::BeforeHalf)), {kCentreVertical});
}

Runs EnglishAxialRows() {
  const MemberRun byTurns = {{Family::VL, Family::VR}, 1, Upper::BeforeHalf};
  return Joined(ChordsAndDiagonals(2), {byTurns, kCentreVertical});
}

Runs FlatAxialRows() {
  return Joined(Joined(ChordsAndDiagonals(1), Verticals(Upper::Half)), {kCentreVertical});
}

Runs WarrenRows(int firstDiagonal) {
  return Joined(ChordsAndDiagonals(firstDiagonal), {Single({Family::VL, Family::VR})});
}

Runs Pratt1Checked() { return Joined(ChordsAndDiagonals(2), Verticals(Upper::BeforeHalf)); }

// The same members as in the axial list of the pitched trusses: the end panel's diagonal and the
// verticals next to midspan of the parallel chord types are left out of the check.
Runs FlatChecked() { return Joined(Pratt1Checked(), {kCentreVertical}); }

Runs EnglishChecked() { return FlatAxialRows(); }

std::vector<TrussTypeInfo> MakeTypes() {
  return {
      {.keyword = "PRATT1",
       .title = "PRATT1 TRUSS",
       .exampleCaption = "Example:(6 Span Pratt1)",
       .axialRows = Pratt1AxialRows(),
       .checkedMembers = Pratt1Checked()},
      {.keyword = "FINK",
       .title = "FINK TRUSS",
       .exampleCaption = "Example:(6 Span Fink)",
       .axialRows = Pratt1AxialRows(),
       .checkedMembers = Pratt1Checked()},
      {.keyword = "ENGLISH",
       .title = "ENGLISH TRUSS",
       .exampleCaption = "Example:(6 Span English)",
       .axialRows = EnglishAxialRows(),
       .checkedMembers = EnglishChecked()},
      {.keyword = "KINGPOST",
       .title = "KING POST TRUSS",
       .exampleCaption = "Example:(KING POST)",
       .axialRows = KingPostMembers(),
       .checkedMembers = KingPostMembers()},
      {.keyword = "SCI",
       .title = "SCISSORS TRUSS",
       .exampleCaption = "Example:(Scissors Truss)",
       .axialRows = ScissorsMembers(),
       .checkedMembers = ScissorsMembers()},
      {.keyword = "HOWE",
       .title = "HOWE TRUSS",
       .exampleCaption = "Example:(6 Span HOWE Truss)",
       .axialRows = FlatAxialRows(),
       .checkedMembers = FlatChecked()},
      {.keyword = "PRATT2",
       .title = "PRATT2 TRUSS",
       .exampleCaption = "Example:(6 Span PRATT2 Truss)",
       .axialRows = FlatAxialRows(),
       .checkedMembers = FlatChecked()},
      {.keyword = "WARREN",
       .title = "WARREN TRUSS",
       .exampleCaption = "Example:(6 Span WARREN Truss)",
       .axialRows = WarrenRows(1),
       .checkedMembers = WarrenRows(2)},
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
