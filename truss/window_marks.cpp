#include "truss/window_marks.h"

#include <algorithm>
#include <optional>

#include "app/fault.h"
#include "truss/changed_since_run.h"
#include "truss/force_and_length_lists.h"
#include "truss/force_sense.h"
#include "truss/overstress.h"
#include "truss/truss_picture.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr const char* kNeedsRun = "needs a run";
constexpr const char* kNeedsMembers = "needs wood type and size";

bool IsSame(const Member& a, const Member& b) { return a.family == b.family && a.index == b.index; }

std::string StatusLine(const TrussWindow& window, bool outOfDate) {
  if (!window.view.resultsShown) return "";
  if (outOfDate) return "Results are out of date: loads or members have changed. Run again.";
  if (window.stresses.empty()) return std::string("No stresses: ") + kNeedsMembers;
  return StressRatioLine(window.stresses);
}

std::string HitSense(const TrussWindow& window) {
  return window.hitMember.empty() ? "" : SenseOf(window.heldLoad).letter;
}

}  // namespace

bool IsOutOfDate(const TrussWindow& window, const SessionState& session) {
  return window.view.resultsShown && window.ranWith != InputsOf(window.model, session);
}

bool AreStressesOlder(const TrussWindow& window) {
  return window.outOfDate || window.stresses.empty();
}

bool AreDeflectionsOlder(const TrussWindow& window) {
  return window.outOfDate || window.model.RunState.value() != 1;
}

std::optional<Member> LitMember(const TrussWindow& window, const SessionState& session) {
  const auto members = AxialMembers(session);
  const auto at = static_cast<std::size_t>(std::max(window.axialRow, 0));
  if (at == 0 || at > members.size() || window.axialRows.empty()) return std::nullopt;
  return members[at - 1];
}

MemberSet DepartingMembers(const TrussWindow& window) {
  MemberSet members;
  for (const Member& member : window.departing) members.insert({member.family, member.index});
  return members;
}

void ShowMarks(TrussWindow& window, const SessionState& session) {
  const SilentFaults faults;
  const bool outOfDate = IsOutOfDate(window, session);
  const std::string missing = window.view.resultsShown ? kNeedsMembers : kNeedsRun;
  window.axialNotes = AxialNotes(window, session);
  window.stressNotes = StressNotes(window.stresses);
  window.outOfDate = outOfDate;
  window.status = StatusLine(window, outOfDate);
  window.hitSense = HitSense(window);
  window.whyNoForces = kNeedsRun;
  window.whyNoDeflections = missing;
  window.whyNoStresses = missing;
  window.view.drawing.scene = WindowScene(window, session);
}

void SelectAxialRow(TrussWindow& window, int row) { window.axialRow = row; }

int AxialRowOf(const SessionState& session, const Member& member) {
  const auto members = AxialMembers(session);
  const auto found = std::find_if(members.begin(), members.end(),
                                  [&](const Member& other) { return IsSame(other, member); });
  return found == members.end() ? -1 : static_cast<int>(found - members.begin()) + 1;
}

}  // namespace lignara
