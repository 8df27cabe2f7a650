#pragma once

#include <string>

#include "app/member_selection.h"
#include "wood/member_size_window.h"

namespace lignara {

// From the data base to the members that the member size calculator serves.

/// The grade of the data base as a member's caption tells it.
std::string GradeLabel(const MemberSelection& member);

/// Hands the stresses of the data base to the ticked groups.
void TakeDataBaseStresses(const MemberSizeWindow& window, MemberSelection& member);

}  // namespace lignara
