#pragma once

#include "wood/member_size_window.h"

namespace lignara {

/// The size text of a member that was typed instead of picked.
inline constexpr const char* kCustomSize = "CUSTOM";

/// What follows from a new text in "B(in)" or "D(in)" of a group: the size is a custom one with the
/// area of the two fields. Nothing while a size is in progress.
void FollowGroupSize(MemberSizeWindow& window, SessionState& session, MemberGroup group);

/// Takes the beam's section from a width and a depth in inches, and shows its properties.
void TakeBeamSection(MemberSizeWindow& window, MemberSelection& member, const Float64& width,
                     const Float64& depth);

}  // namespace lignara
