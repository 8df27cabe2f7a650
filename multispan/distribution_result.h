#pragma once

#include <array>
#include <cstddef>

#include "app/multi_span_model.h"
#include "multispan/guarded_step.h"

namespace lignara {

/// The columns of a table by span ends.
inline constexpr int kLeftEnd = 1;
inline constexpr int kRightEnd = 2;

/// Two numbers for each span, one an end. It reaches one span beyond the longest beam, since an end
/// step may write beside a beam of one span.
class SpanEnds {
 public:
  Guarded<float>& operator()(int span, int end) { return cells_[Index(span, end)]; }
  const Guarded<float>& operator()(int span, int end) const { return cells_[Index(span, end)]; }

 private:
  static constexpr int kSpans = MultiSpanModel::kSpans + 2;

  static std::size_t Index(int span, int end) {
    if (span < 0 || span >= kSpans) throw StepFault();
    return static_cast<std::size_t>(2 * span + end - 1);
  }

  std::array<Guarded<float>, 2 * static_cast<std::size_t>(kSpans)> cells_;
};

/// What the distribution of moments finds. Moments in ft-lbs, forces in lbs.
///
/// A downward load makes the left end moment negative and the right one positive. A final left
/// moment is the value of the bending moment there, sagging positive.
struct DistributionResult {
  SpanEnds fem;           ///< fixed-end moments
  SpanEnds factor;        ///< at the joint right of span j: the shares of span j and of span j + 1
  SpanEnds balance;       ///< the latest balancing moments
  SpanEnds carry;         ///< the latest moments carried over
  SpanEnds finalMoment;   ///< the sum of all
  SpanEnds uniformShear;  ///< end shears of the simple span
  SpanEnds pointShear;
  GuardedList<Guarded<float>> shearFromMoments{MultiSpanModel::kSpans};
  GuardedList<Guarded<double>> reaction{500};  ///< 1 to spans + 1
};

}  // namespace lignara
