#include "truss/force_and_length_lists.h"

#include <algorithm>

#include "app/list_rows.h"
#include "app/number_pattern.h"
#include "truss/force_sense.h"
#include "truss/overstress.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

using ArrayOf = const Float32Array& (*)(const ActiveModel& model, Family family);

/// A blank row, then a row for each member of the type with its value, without sign.
std::vector<std::string> MemberRows(const TrussWindow& window, const SessionState& session,
                                    ArrayOf arrayOf) {
  std::vector<std::string> rows = RowsBelowBlank();
  for (const Member& member : AxialMembers(session)) {
    const Float32 value = Abs(arrayOf(window.model, member.family)[member.index]);
    rows.push_back(RowLabel(member) + " = " + FormatNumber(value, kTwoDecimals));
  }
  return rows;
}

bool IsSame(const Member& a, const Member& b) { return a.family == b.family && a.index == b.index; }

RowNote AxialNote(const TrussWindow& window, const Member& member, bool above) {
  RowNote note;
  const ForceSense sense = SenseOf(AxialOf(window.model, member.family)[member.index]);
  note = {sense.letter, sense.spoken};
  note.warned = above;
  if (above) note.spoken += ", above its allowable stress";
  return note;
}

}  // namespace

void SHOW_AXIAL(TrussWindow& window, const SessionState& session) {
  window.axialRows = MemberRows(window, session, AxialOf);
}

std::vector<Member> AxialMembers(const SessionState& session) {
  return MembersOf(TrussTypeOf(session.TrussType).axialRows, HalfSpans(session));
}

std::vector<RowNote> AxialNotes(const TrussWindow& window, const SessionState& session) {
  if (!window.view.resultsShown) return {};
  const MemberSet above = OverstressedMembers(window.stresses);
  std::vector<RowNote> notes(1);
  for (const Member& member : AxialMembers(session)) {
    notes.push_back(AxialNote(window, member, above.count({member.family, member.index}) > 0));
  }
  return notes;
}

void ShowMemberLengths(TrussWindow& window, const SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  if (window.model.RunState.value() != 1) {
    platform.ShowMessage({"YOU MUST HIT RUN TO GET LENGTHS!"});
    return;
  }
  window.lengthsOpen = true;
  window.lengthRows = MemberRows(window, session, LengthOf);
}

void CloseMemberLengths(TrussWindow& window) { window.lengthsOpen = false; }

std::optional<Member> LitMember(const TrussWindow& window, const SessionState& session) {
  const auto members = AxialMembers(session);
  const auto at = static_cast<std::size_t>(std::max(window.axialRow, 0));
  if (at == 0 || at > members.size() || window.axialRows.empty()) return std::nullopt;
  return members[at - 1];
}

void SelectAxialRow(TrussWindow& window, int row) { window.axialRow = row; }

int AxialRowOf(const SessionState& session, const Member& member) {
  const auto members = AxialMembers(session);
  const auto found = std::find_if(members.begin(), members.end(),
                                  [&](const Member& other) { return IsSame(other, member); });
  return found == members.end() ? -1 : static_cast<int>(found - members.begin()) + 1;
}

}  // namespace lignara
