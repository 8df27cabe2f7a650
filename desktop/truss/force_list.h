#pragma once

#include "desktop/kit/binding.h"
#include "truss/truss_window.h"

class QWidget;

namespace lignara {

/// The list "Axial Load (lbs)", the member that was clicked on in the drawing, and the end
/// reactions.
QWidget* MakeForces(TrussWindow& window, Binding& binding);

}  // namespace lignara
