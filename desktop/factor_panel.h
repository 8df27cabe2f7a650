#pragma once

#include "app/platform.h"
#include "app/session_state.h"
#include "desktop/binding.h"

class QGroupBox;

namespace lignara {

struct WoodDataBaseWindow;

/// The panel "Stress Adjustment Factors" of the wood data base, tied to the window's record.
QGroupBox* MakeFactorPanel(WoodDataBaseWindow& window, Binding& binding, SessionState& session,
                           Platform& platform);

}  // namespace lignara
