#pragma once

#include "truss/truss_window.h"

namespace lignara {

/// Clears and refills the list "Axial Load (lbs)": magnitudes of all members, after a blank row.
void SHOW_AXIAL(TrussWindow& window, const SessionState& session);

/// The members of the rows of both lists, which follow a blank row.
std::vector<Member> AxialMembers(const SessionState& session);

/// What stands beside the rows of "Axial Load (lbs)": tension or compression, and whether the
/// member is above its allowable stress. None before a run.
std::vector<RowNote> AxialNotes(const TrussWindow& window, const SessionState& session);

}  // namespace lignara
