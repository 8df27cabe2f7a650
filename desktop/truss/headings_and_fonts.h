#pragma once

#include "app/session_state.h"
#include "desktop/kit/binding.h"
#include "truss/truss_window.h"

class QGroupBox;

namespace lignara {

/// The panel "Output Description": title and description of the report.
QGroupBox* MakeHeadingsPanel(TrussWindow& window, Binding& binding, SessionState& session);

/// The panel "Fonts".
QGroupBox* MakeFontsPanel(TrussWindow& window, Binding& binding, SessionState& session);

}  // namespace lignara
