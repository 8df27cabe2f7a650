#pragma once

#include <vector>

#include "truss/members.h"

namespace lignara {

// Which members the lists of a truss name, and which its stress check takes, in their order.

using Ranges = std::vector<MemberRange>;

// Listed and checked alike.
Ranges KingPostMembers();
Ranges ScissorsMembers();

/// WARREN: listed from diagonal 1, checked from diagonal 2, which is `firstDiagonal`.
Ranges WarrenRows(int firstDiagonal);

// Rows of the axial and of the length list.
Ranges Pratt1AxialRows();
Ranges EnglishAxialRows();
Ranges FlatAxialRows();

// Members of the stress check, the hit test and the report.
Ranges Pratt1Checked();
/// The end panel's diagonal and the vertical next to midspan are left out of the check.
Ranges FlatChecked();
Ranges EnglishChecked();

}  // namespace lignara
