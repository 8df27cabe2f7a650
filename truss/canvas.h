#pragma once

#include "truss/truss_window.h"

namespace lignara {

/// Radius of the circle on each member, in canvas units.
inline constexpr int kMarkRadius = 50;

/// Tail and tip of the arrow at a node, above it, in canvas units.
inline constexpr double kArrowTop = 500;
inline constexpr double kArrowTip = 300;

/// The view of a window that opens: zoom 1, scales, origin, no arrow.
void ResetView(TrussView& view, const SessionState& session);

/// Draws the truss anew at the view's zoom and origin: geometry of the drawing, scales, picture and
/// marks. The node of `markedRow` keeps its arrow. After a run members show tension and
/// compression.
void RedrawTruss(TrussWindow& window, const SessionState& session, Platform& platform);

/// The same after a run, for the sake of the colours: what could not be drawn was told before.
void RecolourTruss(TrussWindow& window, const SessionState& session, Platform& platform);

/// The truss for paper, at the scales and the origin of the view: members in black, and a name
/// beside each top node.
Drawing PageDrawing(const TrussWindow& window, const SessionState& session);

}  // namespace lignara
