#pragma once

#include <cstdint>
#include <span>

namespace lignara {

/// What the user chooses about a joint: the position of the choice in each of the groups below.
struct JointOptions {
  std::int16_t ShearKind = 0;
  std::int16_t Moisture = 0;
  std::int16_t SidePlates = 0;
  std::int16_t Duration = 0;
  std::int16_t WoodType = 0;

  bool IsSingleShear() const { return ShearKind == 1; }
  bool operator==(const JointOptions&) const = default;
};

/// One choice of a group.
struct JointChoice {
  const char* caption;
  const char* reportLine;  ///< null where the report has none
  double parallel = 1;     ///< factor on the load parallel to grain
  double perpendicular = 1;
};

/// A group of choices, of which one is in force.
struct JointOptionGroup {
  const char* caption;
  std::int16_t JointOptions::*chosen;
  std::span<const JointChoice> choices;
};

/// All groups, in the order in which their factors act.
std::span<const JointOptionGroup> JointOptionGroups();

/// The choice in force; the first one where the value is that of none.
const JointChoice& ChosenOf(const JointOptionGroup& group, const JointOptions& options);

}  // namespace lignara
