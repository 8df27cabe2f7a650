#pragma once

#include "beam/beam_window.h"
#include "desktop/kit/tool_window.h"

class QGroupBox;

namespace lignara {

/// The panel "Diagrams" of the single-span window: the three pictures, their values at the station
/// and their largest. The record has to live as long as the window.
QGroupBox* MakeDiagramsPanel(BeamWindow& window, Binding& binding, DesktopPlatform& platform);

}  // namespace lignara
