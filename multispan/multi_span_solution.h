#pragma once

#include <vector>

#include "multispan/beam_case.h"
#include "multispan/distribution_result.h"
#include "multispan/moment_curve.h"
#include "multispan/shear_curve.h"

namespace lignara {

/// A solved beam: what went in and all that came out.
struct MultiSpanSolution {
  BeamCase beam;
  DistributionResult moments;
  ShearDiagram shear;
  MomentCurve curve;
  MaximumMoment maximum;
  std::vector<float> spanMaxMoment;  ///< magnitude by span, from 1, ft-lbs
  std::vector<float> spanMaxShear;   ///< magnitude by span, from 1, lbs
};

/// Solves the beam of the model under its loads. The model has to have a length, an inertia and a
/// modulus above 0 in each span.
MultiSpanSolution solveMultiSpan(const MultiSpanModel& model);

}  // namespace lignara
