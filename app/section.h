#pragma once

#include "app/member_selection.h"
#include "app/stored_number.h"

namespace lignara {

/// Moment of inertia of a rectangle about the axis along its width, in^4; both sides in inches.
/// The other axis is had by exchanging the two.
inline Number RectangleInertia(Number width, Number depth) {
  return depth * depth * depth * width / 12;
}

/// The section of the current member becomes a rectangle: sides, area, moments of inertia, section
/// moduli; both sides in inches.
inline void TakeRectangle(MemberSelection& member, Number width, Number depth) {
  member.SectionArea = width * depth;
  member.DressedB = width;
  member.DressedD = depth;
  member.SectionIx = RectangleInertia(width, depth);
  member.SectionIy = RectangleInertia(depth, width);
  member.SectionSx = member.SectionIx / (0.5 * depth);
  member.SectionSy = member.SectionIy / (0.5 * width);
}

}  // namespace lignara
