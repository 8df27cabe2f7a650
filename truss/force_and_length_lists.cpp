#include "truss/force_and_length_lists.h"

#include "app/list_rows.h"
#include "app/number_pattern.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

using ArrayOf = const Float32Array& (*)(const ActiveModel& model, Family family);

/// A blank row, then a row for each member of the type with its value, without sign.
std::vector<std::string> MemberRows(const TrussWindow& window, const SessionState& session,
                                    ArrayOf arrayOf) {
  const TrussTypeInfo& type = TrussTypeOf(session.TrussType);
  std::vector<std::string> rows = RowsBelowBlank();
  for (const Member& member : MembersOf(type.axialRows, HalfSpans(session))) {
    const Float32 value = Abs(arrayOf(window.model, member.family)[member.index]);
    rows.push_back(RowLabel(member) + " = " + FormatNumber(value, kTwoDecimals));
  }
  return rows;
}

}  // namespace

void SHOW_AXIAL(TrussWindow& window, const SessionState& session) {
  window.axialRows = MemberRows(window, session, AxialOf);
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

}  // namespace lignara
