#pragma once

#include "app/platform.h"
#include "app/session_state.h"
#include "desktop/kit/binding.h"
#include "truss/truss_window.h"

class QGroupBox;

namespace lignara {

/// The panel "Uniform Load (Line Load)": lb/ft of the top chord.
QGroupBox* MakeLineLoadPanel(TrussWindow& window, Binding& binding, SessionState& session,
                             Platform& platform);

/// The panel "Area Load ": lb/sf of the roof, with the spacing of the trusses.
QGroupBox* MakeAreaLoadPanel(TrussWindow& window, Binding& binding, SessionState& session,
                             Platform& platform);

}  // namespace lignara
