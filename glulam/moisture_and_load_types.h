#pragma once

#include <array>
#include <cstddef>

namespace lignara {

/// A choice that tells how a glulam member is used: its button, the code by which it is handed
/// over, and its line in each list. The user chooses one of a kind, or none.
struct GlulamUseCondition {
  const char* caption;
  int code;
  const char* reportLine;  ///< in the report of the data base
  const char* beamLine;    ///< in the stress check of a single-span beam
  const char* spanLine;    ///< in the stress check of a multi-span beam
};

/// "Dry Use" and "Wet Use".
inline constexpr std::array<GlulamUseCondition, 2> kGlulamMoistures = {{
    {
        .caption = "Dry Use",
        .code = 1,
        .reportLine = "Wood is considered Dry.",
        .beamLine = "Member is considered dry.",
        .spanLine = "Wood is considered Dry.",
    },
    {
        .caption = "Wet Use",
        .code = 2,
        .reportLine = "Wood is considered Wet.",
        .beamLine = "Member is considered wet.",
        .spanLine = "Wood is considered Wet.",
    },
}};

/// "Main Load Type". It changes what is reported and handed over, never a stress.
inline constexpr std::array<GlulamUseCondition, 3> kGlulamLoadTypes = {{
    {
        .caption = "Single Consentrated",
        .code = 1,
        .reportLine = "Main load configuration is single consentrated.",
        .beamLine = "Primary load is single consentrated.",
        .spanLine = "Primary load type is single consentrated.",
    },
    {
        .caption = "Uniform",
        .code = 2,
        .reportLine = "Main load configuration is uniform.",
        .beamLine = "Primary load is uniform.",
        .spanLine = "Primary load type is uniform.",
    },
    {
        .caption = "1/3 Point Consentrated",
        .code = 3,
        .reportLine = "Main load configuration is multiple point loads.",
        .beamLine = "Primary load is multiple point loads.",
        .spanLine = "Primary load type is multiple point loads.",
    },
}};

/// The row of a code; nullptr where it is none of them, as before the first choice.
template <std::size_t N>
constexpr const GlulamUseCondition* FindUseCondition(
    const std::array<GlulamUseCondition, N>& choices, int code) {
  for (const GlulamUseCondition& choice : choices) {
    if (choice.code == code) return &choice;
  }
  return nullptr;
}

}  // namespace lignara
