#pragma once

#include <vector>

#include "app/platform.h"
#include "beam/load_fields.h"
#include "beam/single_span_beam.h"

namespace lignara {

/// A check of a load and what the user reads where it fails.
struct LoadCheck {
  bool (*fails)(const SingleSpanBeam& beam, const LoadInput& input);
  const char* message;
};

/// The checks of a kind in their order; the first that fails is told.
struct LoadChecks {
  std::vector<LoadCheck> add;
  std::vector<LoadCheck> edit;  ///< not the same, as users know the program
};

LoadChecks PointLoadChecks();
LoadChecks UniformLoadChecks();
LoadChecks PointMomentChecks();
LoadChecks DisplacementChecks();
LoadChecks AxialLoadChecks();

/// Tells of the first check that fails. True where none does.
bool Passes(const std::vector<LoadCheck>& checks, const SingleSpanBeam& beam,
            const LoadInput& input, Platform& platform);

}  // namespace lignara
