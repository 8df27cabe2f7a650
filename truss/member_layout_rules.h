#pragma once

#include "truss/member_layout.h"

namespace lignara {

// The pieces from which the layout of a type is put together.

/// A place of the left half by its panel point, counted from the heel.
using Place = FootPoint (*)(const TrussShape& shape, int panelPoint);

FootPoint PeakPlace(const TrussShape& shape, int);
/// Midspan of the bottom chord.
FootPoint ApexPlace(const TrussShape& shape, int);
FootPoint BottomPlace(const TrussShape& shape, int panelPoint);
/// On a level top chord.
FootPoint TopPlace(const TrussShape& shape, int panelPoint);
/// On the top chord at even panel points, on the bottom chord at odd ones.
FootPoint ZigZagPlace(const TrussShape& shape, int panelPoint);
/// On the rafter over the bottom node.
FootPoint RafterPlace(const TrussShape& shape, int panelPoint);
/// On the rafter, square to it from the bottom node.
FootPoint FinkPlace(const TrussShape& shape, int panelPoint);
/// Heel, top node and peak of a scissors truss.
FootPoint ScissorsPlace(const TrussShape& shape, int panelPoint);

/// The place of a top node by its element in `PL`, where that is no panel point.
FootPoint FlatNodePlace(const TrussShape& shape, int element);
FootPoint WarrenNodePlace(const TrussShape& shape, int element);

/// An end of member I: a place at panel point I plus a shift.
struct MemberEnd {
  Place place;
  int shift = 0;
};

/// The lines of a family and of its twin on the right, a family in the middle being its own twin.
struct FamilyRule {
  Family left, right;
  int first = 1;
  Upper last = Upper::Half;
  MemberEnd from, to;
};

inline constexpr FamilyRule kFlatBottom = {
    .left = Family::CL, .right = Family::CR, .from = {BottomPlace, -1}, .to = {BottomPlace}};
inline constexpr FamilyRule kCentrePost = {.left = Family::CV,
                                           .right = Family::CV,
                                           .last = Upper::One,
                                           .from = {ApexPlace},
                                           .to = {PeakPlace}};

/// The members by these rules, the left ones of each before the right ones.
TrussLayout LayoutBy(const TrussShape& shape, const std::vector<FamilyRule>& rules);

/// The place of the other half that mirrors one.
FootPoint Mirrored(const TrussShape& shape, const FootPoint& place);

}  // namespace lignara
