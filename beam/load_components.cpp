#include "beam/load_components.h"

#include <cmath>
#include <limits>

#include "beam/load_kinds.h"

namespace lignara {
namespace {

using enum LoadKind;

struct Load {
  LoadKind kind;
  double a, b, p, m, w;
};

Load LoadOf(const SingleSpanBeam& beam, int load) {
  return {beam.KindOf(load),        beam.loadA[load].value(), beam.loadB[load].value(),
          beam.loadP[load].value(), beam.loadM[load].value(), beam.loadW[load].value()};
}

/// The mean intensity of strip k of Q, as a share of W.
double StripShare(LoadKind kind, int k, double Q) {
  if (kind == SlopedLeftZero) return (k - 0.5) / Q;
  if (kind == SlopedRightZero) return (Q - (k - 0.5)) / Q;
  return 1.0;
}

void AddStrips(const Load& load, double L, double Q, std::vector<PointComponent>& components) {
  const double dx = load.b / Q;
  const int count = static_cast<int>(std::nearbyint(Q));
  for (int k = 1; k <= count; ++k) {
    const double a = k * dx - dx / 2 + load.a;
    components.push_back({StripShare(load.kind, k, Q) * load.w * dx, a, L - a});
  }
}

/// A positive moment is an upward force to the left of a downward one.
void AddCouple(const Load& load, double L, double N, std::vector<PointComponent>& components) {
  const double dx = L / N;
  const double force = load.m / (2 * dx);
  components.push_back({-force, load.a - dx, L - (load.a - dx)});
  components.push_back({force, load.a + dx, L - (load.a + dx)});
}

bool HasFault(double number) { return !(std::fabs(number) <= std::numeric_limits<float>::max()); }

/// Whether the widths and the count of the strips can be had at all.
bool CanBreak(const Load& load, double L, double N, double Q) {
  if (load.kind == PointMoment) return N != 0 && !HasFault(L / N);
  if (!IsDistributed(load.kind)) return true;
  return Q != 0 && !HasFault(load.b / Q) &&
         std::nearbyint(Q) <= std::numeric_limits<std::int16_t>::max();
}

}  // namespace

bool ActsThroughForces(LoadKind kind) {
  return kind == PointLoad || IsDistributed(kind) || kind == PointMoment;
}

BreakUp BreakIntoComponents(const SingleSpanBeam& beam, int index,
                            std::vector<PointComponent>& components) {
  components.clear();
  const Load load = LoadOf(beam, index);
  const double L = beam.spanLength.value();
  const double N = beam.accuracySteps.value();
  const double Q = beam.equivalentLoads.value();
  if (!ActsThroughForces(load.kind)) return BreakUp::Done;
  if (!(L > 0)) return BreakUp::NoLength;
  if (!CanBreak(load, L, N, Q)) return BreakUp::Fault;
  if (load.kind == PointLoad) components.push_back({load.p, load.a, L - load.a});
  if (IsDistributed(load.kind)) AddStrips(load, L, Q, components);
  if (load.kind == PointMoment) AddCouple(load, L, N, components);
  for (const PointComponent& p : components) {
    if (HasFault(p.force) || HasFault(p.a)) return BreakUp::Fault;
  }
  return BreakUp::Done;
}

}  // namespace lignara
