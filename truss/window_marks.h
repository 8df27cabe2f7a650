#pragma once

#include <optional>

#include "truss/overstress.h"
#include "truss/truss_window.h"

namespace lignara {

// What the window tells besides its figures. It follows from the record alone, so that it is worked
// out anew after each command; nothing that is calculated, printed or saved reads it.

/// True after a run whose loads or members have been changed since.
bool IsOutOfDate(const TrussWindow& window, const SessionState& session);

/// True where the stresses, the deflections shown are not of the last run, which lacked members, or
/// that run is out of date itself.
bool AreStressesOlder(const TrussWindow& window);
bool AreDeflectionsOlder(const TrussWindow& window);

/// The member of the chosen row of the axial list.
std::optional<Member> LitMember(const TrussWindow& window, const SessionState& session);

/// The members whose forces differ from statics by more than 5 %.
MemberSet DepartingMembers(const TrussWindow& window);

/// Fills the marks of the window: notes beside the rows of the lists, the line of the highest
/// stress ratio, the reasons for empty lists, and the scene of the drawing.
void ShowMarks(TrussWindow& window, const SessionState& session);

/// A click on a row of the axial list: its member is lit on the drawing.
void SelectAxialRow(TrussWindow& window, int row);

/// The row of a member in the axial list; -1 where it has none.
int AxialRowOf(const SessionState& session, const Member& member);

}  // namespace lignara
