#include "multispan/reactions.h"

namespace lignara {
namespace {

void SetEndShears(const BeamSpan& span, int j, DistributionResult& r) {
  const double length = span.length;
  r.shearFromMoments[j] = (r.finalMoment(j, kLeftEnd) + r.finalMoment(j, kRightEnd)) / length;
  r.uniformShear(j, kLeftEnd) = length / 2 * span.uniform;
  r.uniformShear(j, kRightEnd) = length / 2 * span.uniform;
  if (!span.HasPointLoads()) return;
  for (const SpanPointLoad& load : span.points) {
    r.pointShear(j, kLeftEnd) += (length - load.x) / length * load.force;
    r.pointShear(j, kRightEnd) += load.x / length * load.force;
  }
}

/// An overhang takes all on its supported side.
void MoveToSupport(const BeamSpan& span, int j, int supported, DistributionResult& r) {
  const int loose = kLeftEnd + kRightEnd - supported;
  r.shearFromMoments[j] = 0;
  r.uniformShear(j, loose) = 0;
  r.uniformShear(j, supported) = span.length * span.uniform;
  r.pointShear(j, supported) += r.pointShear(j, loose);
  r.pointShear(j, loose) = 0;
}

/// The shear of a span's own loads at one of its ends.
double LoadShear(const DistributionResult& r, int j, int end) {
  return r.uniformShear(j, end) + r.pointShear(j, end);
}

}  // namespace

void FindReactions(const BeamCase& beam, DistributionResult& r) {
  const int n = beam.count;
  for (int j = 1; j <= n; ++j) SetEndShears(beam.Span(j), j, r);
  if (beam.right == EndSupport::None) MoveToSupport(beam.Span(n), n, kLeftEnd, r);
  if (beam.left == EndSupport::None) MoveToSupport(beam.Span(1), 1, kRightEnd, r);
  r.reaction[1] = LoadShear(r, 1, kLeftEnd) - r.shearFromMoments[1];
  for (int s = 2; s <= n; ++s) {
    r.reaction[s] = r.shearFromMoments[s - 1] - r.shearFromMoments[s] +
                    LoadShear(r, s - 1, kRightEnd) + LoadShear(r, s, kLeftEnd);
  }
  r.reaction[n + 1] = r.shearFromMoments[n] + LoadShear(r, n, kRightEnd);
}

}  // namespace lignara
