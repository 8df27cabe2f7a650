#include "multispan/moment_distribution.h"

#include "multispan/end_class.h"
#include "multispan/reactions.h"

namespace lignara {
namespace {

constexpr double kCarryOver = 0.5;

void SetFixedEndMoments(const BeamSpan& span, Guarded<float>& left, Guarded<float>& right) {
  const double length = span.length;
  double fl = span.uniform * length * length / 12;
  double fr = fl;
  if (span.HasPointLoads()) {
    for (const SpanPointLoad& load : span.points) {
      const double a = load.x;
      const double b = length - a;
      fl += a * load.force * b * b / (length * length);
      fr += b * load.force * a * a / (length * length);
    }
  }
  left = -fl;
  right = fr;
}

/// The moment of an overhang's loads about its joint, `arm` being the distance of a load from it.
template <typename Arm>
double CantileverMoment(const BeamSpan& span, const Arm& arm) {
  double moment = span.length * span.uniform * span.length / 2;
  if (!span.HasPointLoads()) return moment;
  for (const SpanPointLoad& load : span.points) moment += arm(load.x) * load.force;
  return moment;
}

void FindFixedEndMoments(const BeamCase& beam, SpanEnds& fem) {
  for (int j = 1; j <= beam.count; ++j) {
    SetFixedEndMoments(beam.Span(j), fem(j, kLeftEnd), fem(j, kRightEnd));
  }
  if (beam.left == EndSupport::None) {
    const BeamSpan& first = beam.Span(1);
    fem(1, kRightEnd) = CantileverMoment(first, [&](double x) { return first.length - x; });
    fem(1, kLeftEnd) = 0;
  }
  if (beam.right == EndSupport::None) {
    fem(beam.count, kRightEnd) = 0;
    fem(beam.count, kLeftEnd) =
        -CantileverMoment(beam.Span(beam.count), [](double x) { return x; });
  }
}

/// The stiffness of a far end that is pinned is not reduced: it is released anew in every cycle.
void FindFactors(const BeamCase& beam, SpanEnds& factor) {
  const auto stiffness = [&](int j) {
    const BeamSpan& span = beam.Span(j);
    return span.e * span.i / span.length;
  };
  for (int j = 1; j < beam.count; ++j) {
    const double both = stiffness(j) + stiffness(j + 1);
    factor(j, 1) = stiffness(j) / both;
    factor(j, 2) = stiffness(j + 1) / both;
  }
}

/// The balancing and the carrying over of one beam.
class Distribution {
 public:
  Distribution(const BeamCase& beam, DistributionResult& result)
      : n_(beam.count), ends_(EndClassOf(beam.left, beam.right)), r_(result) {}

  void Run() {
    Balance(r_.fem);
    for (int j = 1; j <= n_; ++j) {
      for (const int end : {kLeftEnd, kRightEnd}) {
        r_.finalMoment(j, end) = r_.fem(j, end) + r_.balance(j, end);
      }
    }
    // Once nothing is left to carry, further cycles would add nothing.
    for (int cycle = 1; cycle <= n_ * n_ && IsAnythingLeft(); ++cycle) {
      CarryOver();
      Balance(r_.carry);
      Accumulate();
    }
  }

 private:
  /// Balances all joints of the moments of a table.
  void Balance(const SpanEnds& moment) {
    for (int j = ends_.firstJoint; j <= n_ - ends_.jointsBehindLast; ++j) {
      const double out = -(moment(j, kRightEnd) + moment(j + 1, kLeftEnd));
      r_.balance(j, kRightEnd) = out * r_.factor(j, 1);
      r_.balance(j + 1, kLeftEnd) = out * r_.factor(j, 2);
    }
    BalanceLeftEnd(moment);
    BalanceRightEnd(moment);
  }

  void BalanceLeftEnd(const SpanEnds& moment) {
    const bool release = ends_.leftStep == EndStep::Release;
    r_.balance(1, kLeftEnd) = release ? -moment(1, kLeftEnd) : 0.0;
    if (ends_.leftStep == EndStep::Shed) {
      r_.balance(2, kLeftEnd) = -moment(1, kRightEnd) - moment(2, kLeftEnd);
    }
  }

  void BalanceRightEnd(const SpanEnds& moment) {
    const bool release = ends_.rightStep == EndStep::Release;
    r_.balance(n_, kRightEnd) = release ? -moment(n_, kRightEnd) : 0.0;
    if (ends_.rightStep == EndStep::Shed) {
      r_.balance(n_ - 1, kRightEnd) = -moment(n_, kLeftEnd) - moment(n_ - 1, kRightEnd);
    }
  }

  void CarryOver() {
    for (int j = 1; j <= n_ - ends_.spansWithoutCarry; ++j) {
      r_.carry(j, kLeftEnd) = r_.balance(j, kRightEnd) * kCarryOver;
      r_.carry(j, kRightEnd) = r_.balance(j, kLeftEnd) * kCarryOver;
    }
  }

  void Accumulate() {
    for (int j = 1; j <= n_; ++j) {
      for (const int end : {kLeftEnd, kRightEnd}) {
        r_.finalMoment(j, end) += r_.carry(j, end) + r_.balance(j, end);
      }
    }
  }

  bool IsAnythingLeft() const {
    for (int j = 1; j <= n_; ++j) {
      if (r_.balance(j, kLeftEnd) != 0 || r_.balance(j, kRightEnd) != 0) return true;
    }
    return false;
  }

  int n_;
  const EndClass& ends_;
  DistributionResult& r_;
};

}  // namespace

DistributionResult Distribute(const BeamCase& beam) {
  DistributionResult result;
  RunStep([&] { FindFixedEndMoments(beam, result.fem); });
  RunStep([&] { FindFactors(beam, result.factor); });
  RunStep([&] { Distribution(beam, result).Run(); });
  RunStep([&] { FindReactions(beam, result); });
  return result;
}

}  // namespace lignara
