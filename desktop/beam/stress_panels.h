#pragma once

#include "beam/beam_window.h"
#include "desktop/kit/tool_window.h"

class QGroupBox;

namespace lignara {

/// The panels of the stress check in the single-span window. The record has to live as long as the
/// window.

/// "Properties Required For Stress Check". Its fields empty themselves when they are entered, so
/// the focus comes to its "Close" first.
QGroupBox* MakePropertiesPanel(BeamWindow& window, Binding& binding);
/// "Stress Check".
QGroupBox* MakeStressCheckPanel(BeamWindow& window, Binding& binding);

}  // namespace lignara
