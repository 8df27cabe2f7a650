#include "truss/listed_and_checked_members.h"

#include <utility>

namespace lignara {
namespace {

MemberRange Each(Family family, int first, Upper last) { return {{family}, first, last}; }

/// Members named one by one: element 1 of each family.
MemberRange Single(std::vector<Family> families, Upper last = Upper::One) {
  return {std::move(families), 1, last, true};
}

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

}  // namespace

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

Ranges FlatChecked() { return Joined(Pratt1Checked(), {CentreVertical()}); }

Ranges EnglishChecked() { return FlatAxialRows(); }

}  // namespace lignara
