#pragma once

#include "app/drawing.h"

namespace lignara {

/// The joint in double or single shear: the members along the bolt and the names of their
/// thicknesses. No value is drawn to scale.
Drawing JointSketch(bool singleShear);

/// The angle "A" between the load of a bolt and the grain.
Drawing LoadAngleSketch();

/// A rod under "Load", hung on its bearing plate above a timber.
Drawing TensionRodSketch();

}  // namespace lignara
