#include "beam/class_formulas.h"

#include <stdexcept>

namespace lignara {
namespace {

using P = PointComponent;
using enum SupportClass;
using enum BeamEnd;

// The fixed ends carry negative moments, as a sagging beam's do. A cantilever's moments are shown
// without that sign: positive where the beam hogs.
constexpr ClassFormulas kClassFormulas[] = {
    {
        .supportClass = SimpleSpan,
        .leftOfLoad = Left,
        .rightOfLoad = Right,
        .reactions = [](const P& p, double L) -> EndReactions {
          return {p.force * p.b / L, p.force * p.a / L};
        },
        .rightShear = -1,
        .momentLeft = [](const P& p, double L) -> Line {
          return {0, p.force * p.b / L};
        },
        .momentRight = [](const P& p, double L) -> Line {
          return {0, p.force * p.a / L};
        },
        .deflectionLeft = [](const P& p, double L) -> Cubic {
          const double k = p.force * p.b / (6 * L);
          return {0, k * p.a * (L + p.b), 0, -k};
        },
        .deflectionRight = [](const P& p, double L) -> Cubic {
          const double k = p.force * p.a / (6 * L);
          return {0, k * p.b * (L + p.a), 0, -k};
        },
    },
    {
        .supportClass = ProppedFixedLeft,
        .leftOfLoad = Left,
        .rightOfLoad = Right,
        .reactions = [](const P& p, double L) -> EndReactions {
          return {(3 * L * L - p.b * p.b) * p.force * p.b / (2 * L * L * L),
                  p.a * p.a * p.force * (2 * L + p.b) / (2 * L * L * L)};
        },
        .rightShear = -1,
        .momentLeft = [](const P& p, double L) -> Line {
          return {-p.force * p.a * p.b * (L + p.b) / (2 * L * L),
                  (3 * L * L - p.b * p.b) * p.force * p.b / (2 * L * L * L)};
        },
        .momentRight = [](const P& p, double L) -> Line {
          return {0, p.a * p.a * p.force * (2 * L + p.b) / (2 * L * L * L)};
        },
        .deflectionLeft = [](const P& p, double L) -> Cubic {
          const double k = p.force * p.b / (12 * L * L * L);
          return {0, 0, k * 3 * L * p.a * (L + p.b), -k * (3 * L * L - p.b * p.b)};
        },
        .deflectionRight = [](const P& p, double L) -> Cubic {
          const double k = p.a * p.a * p.force / (12 * L * L * L);
          return {0, k * 3 * L * L * p.b, 0, -k * (2 * L + p.b)};
        },
    },
    {
        .supportClass = ProppedFixedRight,
        .leftOfLoad = Left,
        .rightOfLoad = Right,
        .reactions = [](const P& p, double L) -> EndReactions {
          return {p.b * p.b * p.force * (2 * L + p.a) / (2 * L * L * L),
                  (3 * L * L - p.a * p.a) * p.force * p.a / (2 * L * L * L)};
        },
        .rightShear = -1,
        .momentLeft = [](const P& p, double L) -> Line {
          return {0, p.b * p.b * p.force * (2 * L + p.a) / (2 * L * L * L)};
        },
        .momentRight = [](const P& p, double L) -> Line {
          return {-p.force * p.a * p.b * (L + p.a) / (2 * L * L),
                  (3 * L * L - p.a * p.a) * p.force * p.a / (2 * L * L * L)};
        },
        .deflectionLeft = [](const P& p, double L) -> Cubic {
          const double k = p.b * p.b * p.force / (12 * L * L * L);
          return {0, k * 3 * L * L * p.a, 0, -k * (2 * L + p.a)};
        },
        .deflectionRight = [](const P& p, double L) -> Cubic {
          const double k = p.force * p.a / (12 * L * L * L);
          return {0, 0, k * 3 * L * p.b * (L + p.a), -k * (3 * L * L - p.a * p.a)};
        },
    },
    {
        .supportClass = CantileverFromLeft,
        .leftOfLoad = Left,
        .rightOfLoad = Left,
        .reactions = [](const P& p, double) -> EndReactions {
          return {p.force, 0};
        },
        .rightShear = -1,
        .momentLeft = [](const P& p, double) -> Line {
          return {p.a * p.force, -p.force};
        },
        .momentRight = [](const P&, double) -> Line {
          return {0, 0};
        },
        .deflectionLeft = [](const P& p, double) -> Cubic {
          return {0, 0, p.force * p.a / 2, -p.force / 6};
        },
        .deflectionRight = [](const P& p, double) -> Cubic {
          const double k = p.a * p.a * p.force / 6;
          return {-k * p.a, 3 * k, 0, 0};
        },
    },
    {
        .supportClass = CantileverFromRight,
        .leftOfLoad = Right,
        .rightOfLoad = Right,
        .reactions = [](const P& p, double) -> EndReactions {
          return {0, p.force};
        },
        .rightShear = +1,
        .momentLeft = [](const P&, double) -> Line {
          return {0, 0};
        },
        .momentRight = [](const P& p, double) -> Line {
          return {p.b * p.force, -p.force};
        },
        .deflectionLeft = [](const P& p, double) -> Cubic {
          const double k = p.b * p.b * p.force / 6;
          return {-k * p.b, 3 * k, 0, 0};
        },
        .deflectionRight = [](const P& p, double) -> Cubic {
          return {0, 0, p.force * p.b / 2, -p.force / 6};
        },
    },
    {
        .supportClass = FixedBothEnds,
        .leftOfLoad = Left,
        .rightOfLoad = Right,
        .reactions = [](const P& p, double L) -> EndReactions {
          return {p.b * p.b * p.force * (3 * p.a + p.b) / (L * L * L),
                  p.a * p.a * p.force * (3 * p.b + p.a) / (L * L * L)};
        },
        .rightShear = -1,
        .momentLeft = [](const P& p, double L) -> Line {
          return {-p.force * p.a * p.b * p.b / (L * L),
                  p.b * p.b * p.force * (3 * p.a + p.b) / (L * L * L)};
        },
        .momentRight = [](const P& p, double L) -> Line {
          return {-p.force * p.b * p.a * p.a / (L * L),
                  p.a * p.a * p.force * (3 * p.b + p.a) / (L * L * L)};
        },
        .deflectionLeft = [](const P& p, double L) -> Cubic {
          const double k = p.b * p.b * p.force / (6 * L * L * L);
          return {0, 0, k * 3 * p.a * L, -k * (3 * p.a + p.b)};
        },
        .deflectionRight = [](const P& p, double L) -> Cubic {
          const double k = p.a * p.a * p.force / (6 * L * L * L);
          return {0, 0, k * 3 * p.b * L, -k * (3 * p.b + p.a)};
        },
    },
};

constexpr LoadKind kLeft = LoadKind::LeftDisplacement;
constexpr LoadKind kRight = LoadKind::RightDisplacement;

// The moments of a displaced support bear the sign opposite to those of loads, so a sum of both is
// no statics: users know the program so, and its help says it.
constexpr DisplacementFormulas kDisplacementFormulas[] = {
    // class, side, stiffness, shear, u from, moment at u = 0, its slope, deflection in u / L
    {ProppedFixedLeft, kLeft, 3, +1, Right, 0, +1, {0, -1.5, 0, 0.5}},
    {ProppedFixedLeft, kRight, 3, -1, Right, 0, -1, {-1, 1.5, 0, -0.5}},
    {ProppedFixedRight, kLeft, 3, +1, Left, 0, -1, {-1, 1.5, 0, -0.5}},
    {ProppedFixedRight, kRight, 3, -1, Left, 0, +1, {0, -1.5, 0, 0.5}},
    {FixedBothEnds, kLeft, 12, +1, Left, 0.5, -1, {-1, 0, 3, -2}},
    {FixedBothEnds, kRight, 12, -1, Right, 0.5, -1, {-1, 0, 3, -2}},
};

}  // namespace

const ClassFormulas& FormulasOf(SupportClass supportClass) {
  for (const ClassFormulas& formulas : kClassFormulas) {
    if (formulas.supportClass == supportClass) return formulas;
  }
  throw std::logic_error("no formulas for an unstable beam");
}

const DisplacementFormulas* FindDisplacementFormulas(SupportClass supportClass, LoadKind kind) {
  for (const DisplacementFormulas& formulas : kDisplacementFormulas) {
    if (formulas.supportClass == supportClass && formulas.kind == kind) return &formulas;
  }
  return nullptr;
}

}  // namespace lignara
