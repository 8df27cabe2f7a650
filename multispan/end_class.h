#pragma once

#include <array>

#include "app/multi_span_model.h"

namespace lignara {

/// What is done at a far end after the joints were balanced.
enum class EndStep {
  Hold,     ///< fixed: nothing is released
  Release,  ///< pinned: the end moment is released whole
  Shed,     ///< overhang: its joint sheds all into the inner span, nothing crosses outward
};

/// All in which the distribution depends on the far ends. The joint right of span j is joint j.
struct EndClass {
  EndSupport left, right;
  int firstJoint;         ///< that is balanced by the factors
  int jointsBehindLast;   ///< the last of them is joint n less this
  int spansWithoutCarry;  ///< moments are carried over from span 1 to span n less this
  EndStep leftStep, rightStep;
};

inline constexpr std::array<EndClass, 9> kEndClasses = {{
    {EndSupport::Fixed, EndSupport::Fixed, 1, 1, 0, EndStep::Hold, EndStep::Hold},
    {EndSupport::Pinned, EndSupport::Pinned, 1, 1, 0, EndStep::Release, EndStep::Release},
    {EndSupport::Fixed, EndSupport::Pinned, 1, 1, 0, EndStep::Hold, EndStep::Release},
    {EndSupport::Pinned, EndSupport::Fixed, 1, 1, 0, EndStep::Release, EndStep::Hold},
    {EndSupport::Fixed, EndSupport::None, 1, 2, 1, EndStep::Hold, EndStep::Shed},
    {EndSupport::None, EndSupport::Fixed, 2, 1, 0, EndStep::Shed, EndStep::Hold},
    {EndSupport::Pinned, EndSupport::None, 1, 2, 1, EndStep::Release, EndStep::Shed},
    {EndSupport::None, EndSupport::Pinned, 2, 1, 0, EndStep::Shed, EndStep::Release},
    {EndSupport::None, EndSupport::None, 2, 2, 0, EndStep::Shed, EndStep::Shed},
}};

/// The class of two far supports, 1 to 9.
int EndClassNumber(EndSupport left, EndSupport right);

/// Its row.
const EndClass& EndClassOf(EndSupport left, EndSupport right);

/// The support of a far end in words: "fixed", "pinned" or "free".
const char* SupportWord(EndSupport support);

}  // namespace lignara
