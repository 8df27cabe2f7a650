#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "truss/truss_window.h"

namespace lignara {

/// True where a member is stressed above its allowable.
bool IsOverstressed(const MemberStress& stress);

/// Stress over allowable; nothing where there is no allowable stress to divide by.
std::optional<Float32> StressRatio(const MemberStress& stress);

/// One line on the member with the highest ratio and how many are overstressed; one without an
/// allowable stress is above all others. Empty without members.
std::string StressRatioLine(const std::vector<MemberStress>& stresses);

/// The overstressed of the members checked.
using MemberSet = std::set<std::pair<Family, int>>;
MemberSet OverstressedMembers(const std::vector<MemberStress>& stresses);

/// What stands beside the rows of the list of stresses: the ratio beside the head of each member,
/// and a tint on its lines where it is above 1.
std::vector<RowNote> StressNotes(const std::vector<MemberStress>& stresses);

}  // namespace lignara
