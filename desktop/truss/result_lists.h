#pragma once

#include "desktop/kit/binding.h"
#include "truss/truss_window.h"

class QGroupBox;

namespace lignara {

// The panels below the drawing: a list and the button that closes it.

/// The panel "Member Lengths (ft)".
QGroupBox* MakeLengthsPanel(TrussWindow& window, Binding& binding);

/// The panel "Deflections".
QGroupBox* MakeDeflectionsPanel(TrussWindow& window, Binding& binding);

/// The panel "Actual and Allowable Axial Stresses".
QGroupBox* MakeStressesPanel(TrussWindow& window, Binding& binding);

}  // namespace lignara
