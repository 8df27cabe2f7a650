#pragma once

#include "app/stored_number.h"

namespace lignara {

/// Moment of inertia of a rectangle about the axis along its width, in^4; both sides in inches.
/// The other axis is had by exchanging the two.
inline Number RectangleInertia(Number width, Number depth) {
  return depth * depth * depth * width / 12;
}

}  // namespace lignara
