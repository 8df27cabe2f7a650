#include "truss/member_layout_rules.h"

namespace lignara {
namespace {

void AddLeft(const TrussShape& s, const FamilyRule& rule, TrussLayout& layout) {
  for (int i = rule.first; i <= LastElement(rule.last, s.halfSpans); ++i) {
    layout.push_back({{rule.left, i},
                      rule.from.place(s, i + rule.from.shift),
                      rule.to.place(s, i + rule.to.shift)});
  }
}

/// The twins of the members from `start` on.
void AddRight(const TrussShape& s, Family right, std::size_t start, TrussLayout& layout) {
  const std::size_t end = layout.size();
  for (std::size_t m = start; m < end; ++m) {
    const MemberLine left = layout[m];
    layout.push_back({{right, left.member.index}, Mirrored(s, left.from), Mirrored(s, left.to)});
  }
}

}  // namespace

FootPoint PeakPlace(const TrussShape& s, int) { return {s.length / 2, s.height}; }
FootPoint ApexPlace(const TrussShape& s, int) { return {s.length / 2, s.innerHeight}; }
FootPoint BottomPlace(const TrussShape& s, int i) { return {s.panel * i, 0.0}; }
FootPoint TopPlace(const TrussShape& s, int i) { return {s.panel * i, s.height}; }

FootPoint ZigZagPlace(const TrussShape& s, int i) {
  return i % 2 == 0 ? TopPlace(s, i) : BottomPlace(s, i);
}

FootPoint RafterPlace(const TrussShape& s, int i) {
  const Number x = s.panel * i;
  return {x, x * s.height / (s.length / 2)};
}

FootPoint FinkPlace(const TrussShape& s, int i) {
  if (i == s.halfSpans) return PeakPlace(s, i);
  // i L cos^2(A) from the heel and i L cos(A) sin(A) above it.
  const Number slope = s.height / (s.length / 2);
  const Number x = s.panel * i / (1 + Square(slope));
  return {x, x * slope};
}

FootPoint ScissorsPlace(const TrussShape& s, int i) {
  if (i == 0) return {0.0, 0.0};
  return i == 1 ? FootPoint{s.sciRun, s.sciRise} : PeakPlace(s, i);
}

FootPoint FlatNodePlace(const TrussShape& s, int element) { return TopPlace(s, element - 1); }
FootPoint WarrenNodePlace(const TrussShape& s, int element) { return TopPlace(s, 2 * element); }

TrussLayout LayoutBy(const TrussShape& s, const std::vector<FamilyRule>& rules) {
  TrussLayout layout;
  for (const FamilyRule& rule : rules) {
    const std::size_t start = layout.size();
    AddLeft(s, rule, layout);
    if (rule.left != rule.right) AddRight(s, rule.right, start, layout);
  }
  return layout;
}

FootPoint Mirrored(const TrussShape& s, const FootPoint& p) { return {s.length - p.x, p.y}; }

}  // namespace lignara
