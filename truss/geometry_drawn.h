#pragma once

#include "truss/active_model.h"

namespace lignara {

// What is worked out once, when a truss is drawn, and read by every run and by the loading. All
// angles in rad, lengths in ft.

/// What the session's type needs of this; nothing for most types.
void SetDrawnGeometry(TrussJob& job);

}  // namespace lignara
