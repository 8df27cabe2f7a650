#pragma once

#include <optional>

#include "truss/truss_window.h"

namespace lignara {

/// Clears and refills the list "Axial Load (lbs)": magnitudes of all members, after a blank row.
void SHOW_AXIAL(TrussWindow& window, const SessionState& session);

/// The members of the rows of the axial and of the length list, which follow a blank row.
std::vector<Member> AxialMembers(const SessionState& session);

/// What stands beside the rows of "Axial Load (lbs)": tension or compression, and whether the
/// member is above its allowable stress. None before a run.
std::vector<RowNote> AxialNotes(const TrussWindow& window, const SessionState& session);

/// The member of the chosen row of the axial list.
std::optional<Member> LitMember(const TrussWindow& window, const SessionState& session);

/// A click on a row of the axial list: its member is lit on the drawing.
void SelectAxialRow(TrussWindow& window, int row);

/// The row of a member in the axial list; -1 where it has none.
int AxialRowOf(const SessionState& session, const Member& member);

}  // namespace lignara
