#pragma once

#include <array>

#include "glulam/moisture_and_load_types.h"

namespace lignara {

/// A duration of the load, with the factor on the allowables.
struct GlulamDuration {
  GlulamUseCondition use;
  double factor;
  bool actsOnAll;  ///< also on the values that take no other duration
};

/// "Duration", in the order of the buttons. The codes do not run in that order: beams know wind as
/// 3 and seven days as 4.
inline constexpr std::array<GlulamDuration, 5> kGlulamDurations = {{
    {
        .use =
            {
                .caption = "> 10 yr.",
                .code = 1,
                .reportLine = "Load duration is over 10 years.",
                .beamLine = "Load duration is > 10 years.",
                .spanLine = "Load duration is greater than 10 years.",
            },
        .factor = 0.9,
        .actsOnAll = true,
    },
    {
        .use =
            {
                .caption = "2 Month",
                .code = 2,
                .reportLine = "Load duration is 2 months.",
                .beamLine = "Load duration is 2 months.",
                .spanLine = "Load duration is 2 months.",
            },
        .factor = 1.15,
        .actsOnAll = false,
    },
    {
        .use =
            {
                .caption = "7 Day",
                .code = 4,
                .reportLine = "Load duration is 7 days.",
                .beamLine = "Load duration is 7 days.",
                .spanLine = "Load duration is 7 days.",
            },
        .factor = 1.25,
        .actsOnAll = false,
    },
    {
        .use =
            {
                .caption = "Wind/Earth Qk.",
                .code = 3,
                .reportLine = "Load type is Wind or Earthquake.",
                .beamLine = "Load type is wind/earthquake.",
                .spanLine = "Load type is wind/earthquake.",
            },
        .factor = 1.33,
        .actsOnAll = false,
    },
    {
        .use =
            {
                .caption = "Impact",
                .code = 5,
                .reportLine = "Load type is impact.",
                .beamLine = "Load type is impact.",
                .spanLine = "Load type is impact.",
            },
        .factor = 2,
        .actsOnAll = false,
    },
}};

/// The row of a code; nullptr where it is none of them, as before the first choice.
constexpr const GlulamUseCondition* FindGlulamDuration(int code) {
  for (const GlulamDuration& duration : kGlulamDurations) {
    if (duration.use.code == code) return &duration.use;
  }
  return nullptr;
}

}  // namespace lignara
