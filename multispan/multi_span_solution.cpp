#include "multispan/multi_span_solution.h"

#include "multispan/moment_distribution.h"

namespace lignara {

MultiSpanSolution solveMultiSpan(const MultiSpanModel& model) {
  MultiSpanSolution s;
  s.beam = RealLoads(model);
  s.moments = Distribute(s.beam);
  s.shear = FindShear(s.beam, s.moments);
  s.curve = IntegrateShear(s.shear, s.moments.finalMoment(1, kLeftEnd), s.beam.TotalLength(),
                           model.curveIntegrations.value());
  s.maximum = FindMaximumMoment(s.beam, s.moments, s.curve);
  s.spanMaxMoment = LargestMoments(s.beam, s.curve);
  s.spanMaxShear = LargestShears(s.shear);
  return s;
}

}  // namespace lignara
