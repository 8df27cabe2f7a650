#pragma once

namespace lignara {

/// Narrows the part [from, to] of a line to where one coordinate lies between two bounds; false
/// where nothing is left. The line starts at `start` and goes on by `delta`; `from` and `to` are
/// shares of it. Clipped by both coordinates, it shows whether a line crosses a rectangle.
bool Clip(double start, double delta, double low, double high, double& from, double& to);

}  // namespace lignara
