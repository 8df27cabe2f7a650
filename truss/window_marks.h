#pragma once

#include "truss/overstress.h"
#include "truss/truss_window.h"

namespace lignara {

// What the window tells besides its figures. It follows from the record alone, so that it is worked
// out anew after each command; nothing that is calculated, printed or saved reads it.

/// The members whose forces differ from statics by more than 5 %.
MemberSet DepartingMembers(const TrussWindow& window);

/// Fills the marks of the window: notes beside the rows of the lists, the line of the highest
/// stress ratio, the reasons for empty lists, and the scene of the drawing.
void ShowMarks(TrussWindow& window, const SessionState& session);

}  // namespace lignara
