#include "truss/window_marks.h"

#include <algorithm>
#include <optional>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "truss/changed_since_run.h"
#include "truss/force_sense.h"
#include "truss/overstress.h"
#include "truss/truss_picture.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr const char* kNeedsRun = "needs a run";
constexpr const char* kNeedsMembers = "needs wood type and size";

/// The lines of a member in the list of stresses.
constexpr std::size_t kStressLines = 4;

bool IsSame(const Member& a, const Member& b) { return a.family == b.family && a.index == b.index; }

std::vector<Member> AxialMembers(const SessionState& session) {
  return MembersOf(TrussTypeOf(session.TrussType).axialRows, HalfSpans(session));
}

RowNote AxialNote(const TrussWindow& window, const Member& member, bool above) {
  RowNote note;
  const ForceSense sense = SenseOf(AxialOf(window.model, member.family)[member.index]);
  note = {sense.letter, sense.spoken};
  note.warned = above;
  if (above) note.spoken += ", above its allowable stress";
  return note;
}

/// A blank row, then a note a member.
std::vector<RowNote> AxialNotes(const TrussWindow& window, const SessionState& session) {
  if (!window.view.resultsShown) return {};
  const MemberSet above = OverstressedMembers(window.stresses);
  std::vector<RowNote> notes(1);
  for (const Member& member : AxialMembers(session)) {
    notes.push_back(AxialNote(window, member, above.count({member.family, member.index}) > 0));
  }
  return notes;
}

/// The ratio beside the head of each member, and a tint on its lines where it is above 1.
std::vector<RowNote> StressNotes(const TrussWindow& window) {
  std::vector<RowNote> notes(1);
  for (const MemberStress& stress : window.stresses) {
    RowNote head;
    head.warned = IsOverstressed(stress);
    RowNote line = head;
    if (const auto ratio = StressRatio(stress)) {
      head.note = FormatNumber(*ratio, kTwoDecimals);
      head.spoken = "actual over allowable stress: " + head.note;
    }
    notes.push_back(head);
    notes.insert(notes.end(), kStressLines - 1, line);
  }
  return notes;
}

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
  window.stressNotes = StressNotes(window);
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
