#include "truss/member_layout.h"

#include "truss/member_layout_rules.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr Family TL = Family::TL, TR = Family::TR, CL = Family::CL, CR = Family::CR,
                 VL = Family::VL, VR = Family::VR, DL = Family::DL, DR = Family::DR;
constexpr Upper One = Upper::One, Two = Upper::Two, BeforeHalf = Upper::BeforeHalf;

constexpr FamilyRule kRafters = {
    .left = TL, .right = TR, .from = {RafterPlace, -1}, .to = {RafterPlace}};
constexpr FamilyRule kPitchedPosts = {
    .left = VL, .right = VR, .last = BeforeHalf, .from = {BottomPlace}, .to = {RafterPlace}};
constexpr FamilyRule kFlatTop = {.left = TL, .right = TR, .from = {TopPlace, -1}, .to = {TopPlace}};
constexpr FamilyRule kFlatPosts = {
    .left = VL, .right = VR, .from = {BottomPlace, -1}, .to = {TopPlace, -1}};

/// Diagonals between two places, from one panel point to the next.
FamilyRule Diagonals(int first, Place behind, Place ahead) {
  return {.left = DL, .right = DR, .first = first, .from = {behind, -1}, .to = {ahead}};
}

}  // namespace

TrussShape ShapeOf(const ActiveModel& model, const SessionState& session) {
  TrussShape s;
  s.type = session.TrussType;
  s.halfSpans = HalfSpans(session);
  s.panel = session.PanelLength;
  s.length = session.TrussLength;
  s.height = session.TrussHeight;
  if (TrussTypeOf(s.type).HasInnerHeight()) {
    s.innerHeight = session.TrussInnerHeight;
    s.sciRun = model.SCI_RUN;
    s.sciRise = model.SCI_RISE;
  }
  return s;
}

TrussLayout PRATT1_IN(const TrussShape& shape) {
  return LayoutBy(shape, {kRafters, kFlatBottom, Diagonals(2, BottomPlace, RafterPlace),
                          kPitchedPosts, kCentrePost});
}

TrussLayout ENGLISH_IN(const TrussShape& shape) {
  return LayoutBy(shape, {kRafters, kFlatBottom, Diagonals(2, RafterPlace, BottomPlace),
                          kPitchedPosts, kCentrePost});
}

TrussLayout FINK_IN(const TrussShape& shape) {
  return LayoutBy(
      shape,
      {{.left = TL, .right = TR, .from = {FinkPlace, -1}, .to = {FinkPlace}},
       kFlatBottom,
       Diagonals(2, BottomPlace, FinkPlace),
       {.left = VL, .right = VR, .last = BeforeHalf, .from = {BottomPlace}, .to = {FinkPlace}}});
}

TrussLayout KINGPOST_IN(const TrussShape& shape) {
  FamilyRule rafters = kRafters, ties = kFlatBottom;
  rafters.last = ties.last = One;
  return LayoutBy(shape, {rafters, ties, kCentrePost});
}

TrussLayout SCI_IN(const TrussShape& shape) {
  return LayoutBy(
      shape,
      {{.left = TL, .right = TR, .last = Two, .from = {ScissorsPlace, -1}, .to = {ScissorsPlace}},
       {.left = VL, .right = VR, .last = One, .from = {ApexPlace}, .to = {ScissorsPlace}},
       {.left = CL, .right = CR, .last = One, .from = {ScissorsPlace, -1}, .to = {ApexPlace}},
       kCentrePost});
}

TrussLayout PRATT2_IN(const TrussShape& shape) {
  return LayoutBy(
      shape, {kFlatTop, kFlatBottom, Diagonals(1, TopPlace, BottomPlace), kFlatPosts, kCentrePost});
}

TrussLayout HOWE_IN(const TrussShape& shape) {
  return LayoutBy(
      shape, {kFlatTop, kFlatBottom, Diagonals(1, BottomPlace, TopPlace), kFlatPosts, kCentrePost});
}

TrussLayout WARREN_IN(const TrussShape& shape) {
  FamilyRule endPosts = kFlatPosts;
  endPosts.last = One;
  return LayoutBy(shape, {kFlatTop, kFlatBottom, Diagonals(1, ZigZagPlace, ZigZagPlace), endPosts});
}

TrussLayout LayoutOf(const TrussShape& shape) {
  const LayoutStep layout = TrussTypeOf(shape.type).layout;
  return layout == nullptr ? TrussLayout() : layout(shape);
}

FootPoint TopNodePoint(const TrussShape& shape, const TopNode& node) {
  const TopNodePlace place = TrussTypeOf(shape.type).topNodePlace;
  if (place == nullptr || node.side == NodeSide::Peak) return PeakPlace(shape, 0);
  const FootPoint left = place(shape, node.index);
  return node.side == NodeSide::Left ? left : Mirrored(shape, left);
}

}  // namespace lignara
