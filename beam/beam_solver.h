#pragma once

#include "app/platform.h"
#include "beam/single_span_beam.h"
#include "beam/station_sums.h"

namespace lignara {

/// What a run found. It stays until a later run comes to its end.
struct BeamResults {
  StationGrid grid;            ///< span and stations of that run
  Float32Array shearTotal;     ///< at stations 0 to S + 2, lbs
  Float32Array momentTotal;    ///< ft-lbs
  Float32Array deflTotal;      ///< in, downward
  Float32Array rotationTotal;  ///< radians, once the deflected shape was drawn
  Float32 reaction1;           ///< lbs, upward
  Float32 reaction2;
  Float32 maxShear;  ///< the value at the first station of largest magnitude, with its sign
  Float32 maxMoment;
  Float32 maxDeflection;
};

enum class SolveOutcome {
  Solved,
  Stopped,    ///< `abortRun` is set
  NoStations  ///< their number does not fit 16 bits, which was shown as a fault
};

/// Shear, moment and deflection of a classified beam at all stations, by superposition of point
/// forces. Results are written only where it is solved.
///
/// The user is told of a span of 0 or less and of a load that cannot be broken up; a modulus,
/// inertia or accuracy of 0 or less stops without a word, since the constants were complained of
/// before.
SolveOutcome SolveBeam(SingleSpanBeam& beam, const SessionState& session, BeamResults& results,
                       Platform& platform);

/// Fills the rotations of a solved beam: the slope between a station and the one before, in the
/// unit of the deflections.
void FillRotations(BeamResults& results, const SessionState& session);

}  // namespace lignara
