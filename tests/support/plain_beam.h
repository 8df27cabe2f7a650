#pragma once

#include <vector>

#include "beam/single_span_beam.h"

namespace lignara {

/// A run worked out component by component and station by station, straight from the textbook's
/// formulas, in double precision: slow, and with nothing to get wrong. It shares no code with the
/// program's own.
struct PlainRun {
  std::vector<double> shear, moment, deflection;  ///< lbs, ft-lbs, in
  double reaction1 = 0, reaction2 = 0;
};

/// `E` in psi; inertia and loads are the beam's. The beam is classified.
PlainRun SolvePlainly(const SingleSpanBeam& beam, double E);

}  // namespace lignara
