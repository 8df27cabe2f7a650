#include "truss/member_layout.h"

#include <algorithm>
#include <array>

namespace lignara {
namespace {

/// A place of the left half by its panel point, counted from the heel.
using Place = FootPoint (*)(const TrussShape&, int);

FootPoint Peak(const TrussShape& s, int) { return {s.length / 2, s.height}; }
FootPoint Apex(const TrussShape& s, int) { return {s.length / 2, s.innerHeight}; }
FootPoint Bottom(const TrussShape& s, int i) { return {s.panel * i, 0.0}; }
FootPoint Top(const TrussShape& s, int i) { return {s.panel * i, s.height}; }
FootPoint ZigZag(const TrussShape& s, int i) { return i % 2 == 0 ? Top(s, i) : Bottom(s, i); }

/// On the rafter over the bottom node i.
FootPoint Rafter(const TrussShape& s, int i) {
  const Number x = s.panel * i;
  return {x, x * s.height / (s.length / 2)};
}

/// The foot of the perpendicular from the bottom node i to the rafter: i L cos^2(A) from the heel
/// and i L cos(A) sin(A) above it.
FootPoint FinkTop(const TrussShape& s, int i) {
  if (i == s.halfSpans) return Peak(s, i);
  const Number slope = s.height / (s.length / 2);
  const Number x = s.panel * i / (1 + Square(slope));
  return {x, x * slope};
}

/// Heel, top node and peak of a scissors truss.
FootPoint SciTop(const TrussShape& s, int i) {
  if (i == 0) return {0.0, 0.0};
  return i == 1 ? FootPoint{s.sciRun, s.sciRise} : Peak(s, i);
}

/// The lines of a family and of its twin on the right: member I goes from one place to another, at
/// panel point I plus a shift.
struct FamilyRule {
  Family left, right;
  int first;
  Upper last;
  Place from;
  int fromShift;
  Place to;
  int toShift;
};
using Rules = std::vector<FamilyRule>;

constexpr Family TL = Family::TL, TR = Family::TR, CL = Family::CL, CR = Family::CR,
                 VL = Family::VL, VR = Family::VR, DL = Family::DL, DR = Family::DR,
                 CV = Family::CV;
constexpr Upper One = Upper::One, Two = Upper::Two, Half = Upper::Half,
                BeforeHalf = Upper::BeforeHalf;

constexpr FamilyRule kRafters = {TL, TR, 1, Half, Rafter, -1, Rafter, 0};
constexpr FamilyRule kFlatTop = {TL, TR, 1, Half, Top, -1, Top, 0};
constexpr FamilyRule kFlatBottom = {CL, CR, 1, Half, Bottom, -1, Bottom, 0};
constexpr FamilyRule kPitchedPosts = {VL, VR, 1, BeforeHalf, Bottom, 0, Rafter, 0};
constexpr FamilyRule kFlatPosts = {VL, VR, 1, Half, Bottom, -1, Top, -1};
constexpr FamilyRule kCentrePost = {CV, CV, 1, One, Apex, 0, Peak, 0};

FootPoint Mirrored(const TrussShape& s, const FootPoint& p) { return {s.length - p.x, p.y}; }

void AddLeft(const TrussShape& s, const FamilyRule& rule, TrussLayout& layout) {
  for (int i = rule.first; i <= LastElement(rule.last, s.halfSpans); ++i) {
    layout.push_back(
        {{rule.left, i}, rule.from(s, i + rule.fromShift), rule.to(s, i + rule.toShift)});
  }
}

TrussLayout Built(const TrussShape& s, const Rules& rules) {
  TrussLayout layout;
  for (const FamilyRule& rule : rules) {
    const std::size_t start = layout.size();
    AddLeft(s, rule, layout);
    if (rule.left == rule.right) continue;
    const std::size_t end = layout.size();
    for (std::size_t m = start; m < end; ++m) {
      const MemberLine left = layout[m];
      layout.push_back(
          {{rule.right, left.member.index}, Mirrored(s, left.from), Mirrored(s, left.to)});
    }
  }
  return layout;
}

/// What a type is drawn by: its layout, and the place of the top node I at panel point
/// factor x I + shift.
struct TypeRow {
  std::string_view keyword;
  TrussLayout (*layout)(const TrussShape&);
  Place node;
  int factor;
  int shift;
};

constexpr std::array<TypeRow, 8> kTypeRows = {{
    {"PRATT1", PRATT1_IN, Rafter, 1, 0},
    {"FINK", FINK_IN, FinkTop, 1, 0},
    {"ENGLISH", ENGLISH_IN, Rafter, 1, 0},
    {"KINGPOST", KINGPOST_IN, Peak, 1, 0},
    {"SCI", SCI_IN, SciTop, 1, 0},
    {"HOWE", HOWE_IN, Top, 1, -1},
    {"PRATT2", PRATT2_IN, Top, 1, -1},
    {"WARREN", WARREN_IN, Top, 2, 0},
}};

const TypeRow* RowOf(std::string_view type) {
  const auto found = std::find_if(kTypeRows.begin(), kTypeRows.end(),
                                  [&](const TypeRow& row) { return row.keyword == type; });
  return found == kTypeRows.end() ? nullptr : found;
}

}  // namespace

TrussShape ShapeOf(const ActiveModel& model, const SessionState& session) {
  TrussShape s;
  s.type = session.TrussType;
  s.halfSpans = HalfSpans(session);
  s.panel = session.PanelLength;
  s.length = session.TrussLength;
  s.height = session.TrussHeight;
  if (s.type == "SCI") {
    s.innerHeight = session.TrussInnerHeight;
    s.sciRun = model.SCI_RUN;
    s.sciRise = model.SCI_RISE;
  }
  return s;
}

TrussLayout PRATT1_IN(const TrussShape& shape) {
  return Built(shape, {kRafters,
                       kFlatBottom,
                       {DL, DR, 2, Half, Bottom, -1, Rafter, 0},
                       kPitchedPosts,
                       kCentrePost});
}

TrussLayout ENGLISH_IN(const TrussShape& shape) {
  return Built(shape, {kRafters,
                       kFlatBottom,
                       {DL, DR, 2, Half, Rafter, -1, Bottom, 0},
                       kPitchedPosts,
                       kCentrePost});
}

TrussLayout FINK_IN(const TrussShape& shape) {
  return Built(shape, {{TL, TR, 1, Half, FinkTop, -1, FinkTop, 0},
                       kFlatBottom,
                       {DL, DR, 2, Half, Bottom, -1, FinkTop, 0},
                       {VL, VR, 1, BeforeHalf, Bottom, 0, FinkTop, 0}});
}

TrussLayout KINGPOST_IN(const TrussShape& shape) {
  return Built(shape, {{TL, TR, 1, One, Rafter, -1, Rafter, 0},
                       {CL, CR, 1, One, Bottom, -1, Bottom, 0},
                       kCentrePost});
}

TrussLayout SCI_IN(const TrussShape& shape) {
  return Built(shape, {{TL, TR, 1, Two, SciTop, -1, SciTop, 0},
                       {VL, VR, 1, One, Apex, 0, SciTop, 0},
                       {CL, CR, 1, One, SciTop, -1, Apex, 0},
                       kCentrePost});
}

TrussLayout PRATT2_IN(const TrussShape& shape) {
  return Built(
      shape,
      {kFlatTop, kFlatBottom, {DL, DR, 1, Half, Top, -1, Bottom, 0}, kFlatPosts, kCentrePost});
}

TrussLayout HOWE_IN(const TrussShape& shape) {
  return Built(
      shape,
      {kFlatTop, kFlatBottom, {DL, DR, 1, Half, Bottom, -1, Top, 0}, kFlatPosts, kCentrePost});
}

TrussLayout WARREN_IN(const TrussShape& shape) {
  return Built(shape, {kFlatTop,
                       kFlatBottom,
                       {DL, DR, 1, Half, ZigZag, -1, ZigZag, 0},
                       {VL, VR, 1, One, Bottom, -1, Top, -1}});
}

TrussLayout LayoutOf(const TrussShape& shape) {
  const TypeRow* row = RowOf(shape.type);
  return row == nullptr ? TrussLayout() : row->layout(shape);
}

bool HasLevelTop(std::string_view trussType) {
  const TypeRow* row = RowOf(trussType);
  return row != nullptr && row->node == Top;
}

FootPoint TopNodePoint(const TrussShape& shape, const TopNode& node) {
  const TypeRow* row = RowOf(shape.type);
  if (row == nullptr || node.side == NodeSide::Peak) return Peak(shape, 0);
  const FootPoint left = row->node(shape, row->factor * node.index + row->shift);
  return node.side == NodeSide::Left ? left : Mirrored(shape, left);
}

}  // namespace lignara
