#include <optional>

#include "app/number_pattern.h"
#include "truss/force_and_length_lists.h"
#include "truss/truss_types.h"
#include "truss/truss_window.h"

namespace lignara {
namespace {

/// Half the side of the square in which a press counts: half the radius of the circle, so that
/// neighbours whose circles overlap can still be told apart.
constexpr double kHitReach = 25;

bool IsNear(const Int16& mark, double press) {
  return press > mark.value() - kHitReach && press < mark.value() + kHitReach;
}

/// The member whose mark lies at a place, the last one of the type's checked members where marks
/// overlap. Before a run there is none.
std::optional<Member> MemberAt(const TrussWindow& window, const SessionState& session, double x,
                               double y) {
  if (window.model.RunState.value() == 0) return std::nullopt;
  std::optional<Member> hit;
  const auto& ranges = TrussTypeOf(session.TrussType).checkedMembers;
  for (const Member& member : MembersOf(ranges, HalfSpans(session))) {
    const auto mark = window.view.MemberMark.find({member.family, member.index});
    if (mark == window.view.MemberMark.end()) continue;
    if (IsNear(mark->second.x, x) && IsNear(mark->second.y, y)) hit = member;
  }
  return hit;
}

}  // namespace

void HitTruss(TrussWindow& window, const SessionState& session, double x, double y) {
  if (window.model.RunState.value() == 0) return;
  if (const std::optional<Member> hit = MemberAt(window, session, x, y)) {
    window.heldLoad = AxialOf(window.model, hit->family)[hit->index];
    window.hitMember = MemberLabel(*hit);
    window.axialRow = AxialRowOf(session, *hit);
  }
  const Float32 shown = Abs(window.heldLoad);
  window.hitLoad = FormatNumber(shown, kTwoDecimals);
}

bool IsOverMember(const TrussWindow& window, const SessionState& session, double x, double y) {
  return MemberAt(window, session, x, y).has_value();
}

}  // namespace lignara
