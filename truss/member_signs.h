#pragma once

#include <vector>

#include "truss/active_model.h"
#include "truss/members.h"

namespace lignara {

/// Members of one sign: -1 compression, 1 tension.
struct SignRule {
  MemberRange members;
  int sign;
};
using Signs = std::vector<SignRule>;

// The signs of the types, which are those under loads that act downward.
Signs Pratt1Signs();
Signs EnglishSigns();
Signs KingPostSigns();
Signs ScissorsSigns();
Signs Pratt2Signs();
Signs HoweSigns();

/// Sets the signs that the session's truss type gives its members, whatever the loads: -1
/// compression, 1 tension. Nothing for WARREN, whose analysis finds them itself.
void MEMBER_SIGNS(TrussJob& job);

/// Turns the magnitudes of members in compression negative. Once per analysis.
void APPLY_SIGNS(TrussJob& job);

}  // namespace lignara
