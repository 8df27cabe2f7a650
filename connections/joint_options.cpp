#include "connections/joint_options.h"

#include <cstddef>

namespace lignara {
namespace {

// clang-format off

constexpr JointChoice kShearKinds[] = {
    {"Double Shear", "This is a Double Shear Condition"},
    {"Single Shear", "This is a Single Shear Condition", 0.5, 0.5},
};

// The report says nothing of a member that is wet at times.
constexpr JointChoice kMoistures[] = {
    {"Dry",           "Member is always dry."},
    {"Always Wet",    "Member is always wet.", 0.66, 0.66},
    {"Sometimes Wet", nullptr,                 0.75, 0.75},
};

constexpr JointChoice kSidePlates[] = {
    {"Yes", "Connection uses side plate.", 1.25, 1.0},
    {"No",  "Connection does not us side plates."},
};

constexpr JointChoice kDurations[] = {
    {"Permanent",      "Members are permanent.",                     0.9,  0.9},
    {"10 Year",        "Members are in place for 10 years.",         1.0,  1.0},
    {"2 Month",        "Members are in place for 2 months.",         1.15, 1.15},
    {"7 Day",          "Members are in place for 7 days.",           1.25, 1.25},
    {"Impact",         "Members are designed for Impact.",           2.0,  2.0},
    {"Wind / Seismic", "Members are designed for Wind or Earthquake.", 1.33, 1.33},
};

constexpr JointChoice kWoodTypes[] = {
    {"Douglas Fir-Larch, Southern Pine (Med)",  "Wood is Douglas Fir-Larch or Southern Pine (Med. Grain)"},
    {"Douglas Fir-Larch,Southern Pine (Dense)", "Wood is Douglas Fir-Larch or Southern Pine (Dense Grain)"},
    {"Southern Pine (Open Grain)",              "Wood is Southern Pine (Open Grain)"},
};

constexpr JointOptionGroup kGroups[] = {
    {"Shear",       &JointOptions::ShearKind,  kShearKinds},
    {"Moisture",    &JointOptions::Moisture,   kMoistures},
    {"Side Plates", &JointOptions::SidePlates, kSidePlates},
    {"Duration",    &JointOptions::Duration,   kDurations},
    {"Wood Type",   &JointOptions::WoodType,   kWoodTypes},
};

// clang-format on

}  // namespace

std::span<const JointOptionGroup> JointOptionGroups() { return kGroups; }

const JointChoice& ChosenOf(const JointOptionGroup& group, const JointOptions& options) {
  const auto chosen = static_cast<std::size_t>(options.*group.chosen);
  return group.choices[chosen < group.choices.size() ? chosen : 0];
}

}  // namespace lignara
