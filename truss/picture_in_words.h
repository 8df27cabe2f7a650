#pragma once

#include <string>
#include <string_view>

#include "truss/truss_window.h"

namespace lignara {

/// A truss type as one says it: "King post truss" for "KINGPOST".
std::string TypeInWords(std::string_view keyword);

/// What the canvas shows, in words for who cannot see it: "Fink truss, 6 panels, after a run:
/// largest force TL 1 4829.91 lbs compression", or "... before a run".
std::string DescribeTruss(const TrussWindow& window, const SessionState& session);

}  // namespace lignara
