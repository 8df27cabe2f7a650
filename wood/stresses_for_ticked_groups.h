#pragma once

#include "app/member_selection.h"
#include "wood/member_size_window.h"

namespace lignara {

// From the data base to the members that the member size calculator serves.

/// Hands the stresses of the data base to the ticked groups.
void TakeDataBaseStresses(const MemberSizeWindow& window, MemberSelection& member);

}  // namespace lignara
