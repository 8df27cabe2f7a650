#include "tests/support/plain_beam.h"

#include <cmath>

namespace lignara {
namespace {

struct Force {
  double F, a, b;
};

struct Beam {
  int supportClass;
  double L, N, EI;
  int S;
};

std::vector<Force> ForcesOf(const SingleSpanBeam& beam, int j, const Beam& g) {
  const int kind = beam.loadKind[j].value();
  const double A = beam.loadA[j].value(), B = beam.loadB[j].value(), W = beam.loadW[j].value();
  const double Q = beam.equivalentLoads.value();
  std::vector<Force> forces;
  if (kind == 1) forces.push_back({beam.loadP[j].value(), A, g.L - A});
  if (kind >= 2 && kind <= 4) {
    const double dx = B / Q;
    for (int k = 1; k <= static_cast<int>(std::nearbyint(Q)); ++k) {
      const double a = k * dx - dx / 2 + A;
      const double share = kind == 2 ? 1 : kind == 3 ? (k - 0.5) / Q : (Q - (k - 0.5)) / Q;
      forces.push_back({share * W * dx, a, g.L - a});
    }
  }
  if (kind == 5) {
    const double dx = g.L / g.N;
    const double F = beam.loadM[j].value() / (2 * dx);
    forces.push_back({-F, A - dx, g.L - (A - dx)});
    forces.push_back({F, A + dx, g.L - (A + dx)});
  }
  return forces;
}

int SplitOf(const Force& f, const Beam& g) { return static_cast<int>(std::floor(f.a / g.L * g.N)); }

double LeftReaction(const Force& f, const Beam& g) {
  const double L = g.L, F = f.F, a = f.a, b = f.b;
  switch (g.supportClass) {
    case 1:
      return F * b / L;
    case 2:
      return (3 * L * L - b * b) * (F * b) / (2 * L * L * L);
    case 3:
      return b * b * F * (2 * L + a) / (2 * L * L * L);
    case 6:
      return F;
    case 8:
      return b * b * F * (3 * a + b) / (L * L * L);
    default:
      return 0;
  }
}

double RightReaction(const Force& f, const Beam& g) {
  const double L = g.L, F = f.F, a = f.a, b = f.b;
  switch (g.supportClass) {
    case 1:
      return F * a / L;
    case 2:
      return a * a * F * (2 * L + b) / (2 * L * L * L);
    case 3:
      return (3 * L * L - a * a) * (F * a) / (2 * L * L * L);
    case 7:
      return F;
    case 8:
      return a * a * F * (3 * b + a) / (L * L * L);
    default:
      return 0;
  }
}

double ShearAt(const Force& f, const Beam& g, bool left) {
  if (g.supportClass == 6) return left ? f.F : 0;
  if (g.supportClass == 7) return left ? 0 : f.F;
  return left ? LeftReaction(f, g) : -RightReaction(f, g);
}

double MomentAt(const Force& f, const Beam& g, bool left, double x) {
  const double L = g.L, F = f.F, a = f.a, b = f.b, y = L - x;
  const double R1 = LeftReaction(f, g), R2 = RightReaction(f, g);
  switch (g.supportClass) {
    case 1:
      return left ? F * b * x / L : F * a * y / L;
    case 2:
      return left ? y * R2 - (y - b) * F : y * R2;
    case 3:
      return left ? x * R1 : x * R1 - (x - a) * F;
    case 6:
      return left ? (a - x) * F : 0;
    case 7:
      return left ? 0 : (b - y) * F;
    case 8:
      return left ? x * R1 - F * a * b * b / (L * L) : y * R2 - F * b * a * a / (L * L);
    default:
      return 0;
  }
}

/// In feet.
double DeflectionAt(const Force& f, const Beam& g, bool left, double x) {
  const double L = g.L, F = f.F, a = f.a, b = f.b, y = L - x, EI = g.EI, L3 = L * L * L;
  switch (g.supportClass) {
    case 1:
      return left ? (L * L - b * b - x * x) * (F * b * x) / (6 * EI * L)
                  : (L * L - a * a - y * y) * (F * a * y) / (6 * EI * L);
    case 2:
      return left ? F * b / (12 * EI * L3) * (L - y) * (L - y) *
                        (3 * L * L * y - b * b * y - 2 * b * b * L)
                  : a * a * F * y / (12 * EI * L3) * (3 * L * L * b - 2 * L * y * y - b * y * y);
    case 3:
      return left ? b * b * F * x / (12 * EI * L3) * (3 * L * L * a - 2 * L * x * x - a * x * x)
                  : F * a / (12 * EI * L3) * (L - x) * (L - x) *
                        (3 * L * L * x - a * a * x - 2 * a * a * L);
    case 6:
      return left ? (L - y) * (L - y) * F / (6 * EI) * (3 * a - L + y)
                  : a * a * F / (6 * EI) * (3 * L - 3 * y - a);
    case 7:
      return left ? b * b * F / (6 * EI) * (3 * L - 3 * x - b)
                  : y * y * F / (6 * EI) * (3 * b - L + x);
    case 8:
      return left ? x * x * b * b * F / (6 * EI * L3) * (3 * a * L - 3 * a * x - x * b)
                  : y * y * a * a * F / (6 * EI * L3) * (3 * b * L - 3 * b * y - y * a);
    default:
      return 0;
  }
}

/// The couple leaves no spike in shear and deflection.
void Repair(std::vector<double>& curve, int s1, int s2) {
  if (s1 < 1) return;
  const double level = curve[static_cast<std::size_t>(s1 - 1)];
  for (int i = s1; i <= s2 && i < static_cast<int>(curve.size()); ++i) {
    curve[static_cast<std::size_t>(i)] = level;
  }
}

struct LoadCurves {
  std::vector<double> shear, moment, deflection;
};

LoadCurves CurvesOf(const std::vector<Force>& forces, const Beam& g) {
  const auto stations = static_cast<std::size_t>(g.S) + 1;
  LoadCurves c{std::vector<double>(stations), std::vector<double>(stations),
               std::vector<double>(stations)};
  for (const Force& f : forces) {
    for (int i = 0; i <= g.S; ++i) {
      const auto at = static_cast<std::size_t>(i);
      const bool left = i <= SplitOf(f, g);
      const double x = g.L / g.N * i;
      c.shear[at] += ShearAt(f, g, left);
      c.moment[at] += MomentAt(f, g, left, x);
      c.deflection[at] += DeflectionAt(f, g, left, x) * 12;
    }
  }
  return c;
}

void AddDisplacement(PlainRun& run, const SingleSpanBeam& beam, int j, const Beam& g) {
  const double Disp = beam.loadDisp[j].value(), L = g.L, L3 = L * L * L;
  const bool sixth = beam.loadKind[j].value() == 6;
  const int c = g.supportClass;
  if (c != 2 && c != 3 && c != 8) return;
  const double D = Disp / 12 * (c == 8 ? 12 : 3) * g.EI / L3;
  run.reaction1 += sixth ? D : -D;
  run.reaction2 += sixth ? -D : D;
  for (int i = 0; i <= g.S; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const double x = i * L / g.N, y = L - x;
    run.shear[at] += sixth ? D : -D;
    if (c == 2) run.moment[at] += sixth ? (L - x) * D : -D * (L - x);
    if (c == 3) run.moment[at] += sixth ? -D * x : x * D;
    if (c == 8) run.moment[at] += sixth ? (L / 2 - x) * D : (L / 2 - (L - x)) * D;
    if (c == 8) {
      const double G = -(Disp / 12) * 12 * g.EI / L3, u = sixth ? x : y;
      run.deflection[at] += (L - u) * (L - u) * G / (12 * g.EI) * (2 * u + L) * 12;
      continue;
    }
    const double G = -(Disp / 12) * 3 * g.EI / L3, u = c == 2 ? y : x;
    const double T = 2 * L3 - 3 * L * L * u + u * u * u;
    const bool displacedEnd = (c == 2) == sixth;
    run.deflection[at] +=
        displacedEnd ? (T * (-G) / (6 * g.EI) - Disp / 12) * 12 : T * G / (6 * g.EI) * 12;
  }
}

void Accumulate(std::vector<double>& total, const std::vector<double>& part) {
  for (std::size_t i = 0; i < total.size(); ++i) total[i] += part[i];
}

}  // namespace

PlainRun SolvePlainly(const SingleSpanBeam& beam, double E) {
  const double N = beam.accuracySteps.value();
  const Beam g{static_cast<int>(beam.supportClass), beam.spanLength.value(), N,
               E * 144 * beam.momentOfInertia.value() / 20736.0,
               static_cast<int>(std::nearbyint(N))};
  const auto stations = static_cast<std::size_t>(g.S) + 1;
  PlainRun run;
  run.shear.resize(stations);
  run.moment.resize(stations);
  run.deflection.resize(stations);
  for (int j = 1; j <= beam.loadCount.value(); ++j) {
    const int kind = beam.loadKind[j].value();
    if (kind == 6 || kind == 7) AddDisplacement(run, beam, j, g);
    const std::vector<Force> forces = ForcesOf(beam, j, g);
    LoadCurves c = CurvesOf(forces, g);
    if (kind == 5) {
      Repair(c.shear, SplitOf(forces[0], g), SplitOf(forces[1], g));
      Repair(c.deflection, SplitOf(forces[0], g), SplitOf(forces[1], g));
    }
    for (const Force& f : forces) {
      run.reaction1 += LeftReaction(f, g);
      run.reaction2 += RightReaction(f, g);
    }
    Accumulate(run.shear, c.shear);
    Accumulate(run.moment, c.moment);
    Accumulate(run.deflection, c.deflection);
  }
  return run;
}

}  // namespace lignara
