#pragma once

#include <vector>

#include "app/stored_number.h"
#include "multispan/multi_span_solution.h"

namespace lignara {

/// Deflection of a solved beam at a distance x from its left end (ft), in inches (in cm under
/// `unitSystem` 1), positive downward.
///
/// Virtual work: the beam is solved anew under a unit load at x, and the product of both moment
/// curves is summed over the stations. A station on a joint counts for both spans.
double deflectionAt(const MultiSpanSolution& solution, double x, int unitSystem = 0);

/// The deflected shape at equal stations along the beam.
struct DeflectedShape {
  static constexpr int kStations = 50;

  double length = 0;                   ///< of the beam, ft
  Float32Array deflection{kStations};  ///< by station; 0 at the left end, inches
  Float32Array rotation{kStations};    ///< rad; at the left end that of the first station
  Float32 largest;                     ///< the deflection of the largest magnitude, with its sign
  int largestStation = 0;              ///< the first one of that magnitude

  double PlaceOf(int station) const { return length / kStations * station; }
  /// The station nearest to a place along the beam.
  int StationAt(double x) const;
};

/// One unit load after the other: as many solves as stations.
DeflectedShape FindDeflectedShape(const MultiSpanSolution& solution, int unitSystem = 0);

}  // namespace lignara
