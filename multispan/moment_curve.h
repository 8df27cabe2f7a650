#pragma once

#include <vector>

#include "multispan/beam_case.h"
#include "multispan/distribution_result.h"
#include "multispan/shear_curve.h"

namespace lignara {

/// Bending moments at equal stations along the whole beam, found by integrating the shear, ft-lbs.
struct MomentCurve {
  int integrations = 0;         ///< stations that the beam is to have
  double length = 0;            ///< of the beam, ft
  std::vector<float> stations;  ///< from station 0, the left end of the beam

  /// The distance of a station from the left end. A part of the beam whose share of the stations is
  /// not whole has one less, so what lies behind it stands a little too far left.
  double PlaceOf(int station) const { return station * length / integrations; }
  /// 0 for a station that the curve does not have.
  float At(int station) const;
  /// The moment at the last station not behind x, without interpolation.
  float MomentAt(double x) const;
};

/// Integrates the shear from the moment at the left end of the beam. Each segment of the shear
/// diagram gets its whole number of stations, at equal distances over all of its length; one whose
/// share is below 1 adds nothing.
MomentCurve IntegrateShear(const ShearDiagram& shear, double firstMoment, double length,
                           int integrations);

/// The largest moment and where the search found it.
struct MaximumMoment {
  float moment = 0;     ///< magnitude, ft-lbs
  double location = 0;  ///< ft
};

/// Looks through the end moments, span by span, then through the curve. An end moment that becomes
/// the largest moves the location on by the length of its span, wherever the span stands; a station
/// has its own place. Of equal peaks of the curve the last one counts.
MaximumMoment FindMaximumMoment(const BeamCase& beam, const DistributionResult& result,
                                const MomentCurve& curve);

/// The largest magnitude of moment at the stations of each span, from 1; a station on a joint
/// belongs to both spans.
std::vector<float> LargestMoments(const BeamCase& beam, const MomentCurve& curve);

}  // namespace lignara
