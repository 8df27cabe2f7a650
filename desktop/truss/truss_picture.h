#pragma once

#include "app/session_state.h"
#include "desktop/kit/binding.h"
#include "truss/truss_window.h"

class QLayout;

namespace lignara {

class DesktopPlatform;

/// The drawing of a truss with its scroll bars; below it the zoom buttons and what lines mean.
QLayout* MakeTrussCanvas(TrussWindow& window, Binding& binding, SessionState& session,
                         DesktopPlatform& platform);

}  // namespace lignara
