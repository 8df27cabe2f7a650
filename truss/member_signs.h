#pragma once

#include "truss/active_model.h"

namespace lignara {

/// Sets the signs that the session's truss type gives its members, whatever the loads: -1
/// compression, 1 tension. Nothing for WARREN, whose analysis finds them itself.
void MEMBER_SIGNS(TrussJob& job);

/// Turns the magnitudes of members in compression negative. Once per analysis.
void APPLY_SIGNS(TrussJob& job);

/// One whole analysis: the chain of the type, the signs, the signed loads.
void AnalyseTruss(TrussJob& job);

}  // namespace lignara
