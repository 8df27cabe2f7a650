#pragma once

#include <vector>

#include "multispan/beam_case.h"
#include "multispan/moment_distribution.h"

namespace lignara {

/// A beam of equal stiffness, E = 1600000 psi and I = 100 in^4, to be loaded by tests.
inline BeamCase BeamOf(const std::vector<double>& lengths, EndSupport left, EndSupport right,
                       double uniform = 0) {
  BeamCase beam;
  beam.count = static_cast<int>(lengths.size());
  beam.left = left;
  beam.right = right;
  beam.spans.emplace_back();
  for (const double length : lengths) {
    BeamSpan span;
    span.length = length;
    span.e = 1600000;
    span.i = 100;
    span.uniform = uniform;
    beam.spans.push_back(span);
  }
  return beam;
}

/// Left and right moment of each span, one after the other.
inline std::vector<double> EndMoments(const DistributionResult& result, int spans) {
  std::vector<double> moments;
  for (int j = 1; j <= spans; ++j) {
    moments.push_back(result.finalMoment(j, kLeftEnd));
    moments.push_back(result.finalMoment(j, kRightEnd));
  }
  return moments;
}

inline std::vector<double> Reactions(const DistributionResult& result, int spans) {
  std::vector<double> reactions;
  for (int r = 1; r <= spans + 1; ++r) reactions.push_back(result.reaction[r]);
  return reactions;
}

inline void ExpectNear(const std::vector<double>& actual, const std::vector<double>& expected,
                       double tolerance) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_NEAR(actual[i], expected[i], tolerance) << i;
  }
}

}  // namespace lignara
