#pragma once

#include "beam/beam_window.h"
#include "statics/beam.h"

namespace lignara {

/// The beam as statics takes it: what the user entered, loads whole and where they stand. A
/// distributed load of negative length acts downward from A + B to A. `modulus` in psi.
ContinuousBeam StaticsBeamOf(const SingleSpanBeam& beam, double modulus, int unitSystem);

/// Holds the results of the run at hand against exact statics.
void CheckBeamStatics(BeamWindow& window, const SessionState& session);

}  // namespace lignara
