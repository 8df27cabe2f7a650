#pragma once

#include "truss/truss_window.h"

namespace lignara {

/// What the lines of a truss mean after a run: tension, compression, no force, what is above its
/// allowable stress, and in the window what differs from statics by more than 5 %.
std::vector<LegendEntry> TrussLegend(bool paper);

/// The truss as the window shows it, in canvas units: tension and compression told by colour and by
/// stroke, members above their allowable stress, those that differ from statics and the chosen one
/// marked, the node loads as arrows, the arrow at the chosen node, and a note where the forces are
/// out of date.
Scene WindowScene(const TrussWindow& window, const SessionState& session);

/// The same for paper: in black, with the names of the top nodes and without what is chosen.
Scene PageScene(const TrussWindow& window, const SessionState& session);

}  // namespace lignara
