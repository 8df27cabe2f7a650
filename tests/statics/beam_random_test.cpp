// Beams of all supports under all loads at random: equilibrium of each section, continuity at each
// support, and deflections by virtual work, none of which the solver asks for.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "statics/beam.h"

namespace lignara {
namespace {

using enum BeamHold;

constexpr double kExact = 1e-9;  // of the largest load

class RandomBeams {
 public:
  explicit RandomBeams(unsigned seed) : random_(seed) {}

  double Between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  int Whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

  LoadedSpan Span() {
    LoadedSpan span{Between(2, 40), Between(1e5, 1e8), {}, {}, {}};
    const auto place = [&] { return Between(0, span.length); };
    for (int k = Whole(0, 4); k > 0; --k) span.forces.push_back({Between(-500, 2000), place()});
    for (int k = Whole(0, 2); k > 0; --k) span.moments.push_back({Between(-3000, 3000), place()});
    for (int k = Whole(0, 3); k > 0; --k) {
      const double start = place();
      span.spreads.push_back({start, Between(start, span.length), Between(-50, 300),
                              Whole(0, 1) == 0 ? 0 : Between(0, 300)});
    }
    return span;
  }

  ContinuousBeam Beam(BeamHold left, BeamHold right, int spans) {
    ContinuousBeam beam{{}, left, right, {}, 0, 0};
    for (int j = 0; j < spans; ++j) beam.spans.push_back(Span());
    for (int j = 0; j <= spans; ++j) beam.rises.push_back(Between(-0.01, 0.01));
    beam.leftTurn = Between(-0.001, 0.001);
    beam.rightTurn = Between(-0.001, 0.001);
    return beam;
  }

  /// Every pair of supports, with as few spans as stand, and with many.
  template <typename Check>
  void ForEach(const Check& check) {
    constexpr BeamHold kHolds[] = {Free, Pinned, Fixed};
    for (const BeamHold left : kHolds) {
      for (const BeamHold right : kHolds) {
        for (const int spans : {1, 2, 3, 7, 51}) {
          const ContinuousBeam beam = Beam(left, right, spans);
          const BeamStatics statics = SolveStatics(beam);
          if (!statics.mechanism) check(beam, statics);
        }
      }
    }
  }

 private:
  std::mt19937 random_;
};

// What stands left of a section.
struct Actions {
  double force = 0;   ///< upward
  double moment = 0;  ///< clockwise about the section
};

void Add(Actions& sum, double upward, double arm) {
  sum.force += upward;
  sum.moment += upward * arm;
}

/// A spread load up to x as a rectangle and a triangle.
void AddSpread(Actions& sum, const SpreadLoad& load, double x) {
  const double end = std::min(load.end, x);
  if (end <= load.start) return;
  const double width = end - load.start;
  const double rise = (load.atEnd - load.atStart) * width / (load.end - load.start);
  Add(sum, -load.atStart * width, x - load.start - width / 2);
  Add(sum, -rise * width / 2, x - load.start - width * 2 / 3);
}

void AddLoads(Actions& sum, const LoadedSpan& span, double x) {
  for (const PointForce& load : span.forces) {
    if (load.x < x) Add(sum, -load.force, x - load.x);
  }
  for (const PointMoment& load : span.moments) {
    if (load.x < x) sum.moment += load.moment;
  }
  for (const SpreadLoad& load : span.spreads) AddSpread(sum, load, x);
}

/// All that acts left of a section at x in span j.
Actions LeftOf(const ContinuousBeam& beam, const BeamStatics& statics, std::size_t j, double x) {
  Actions sum;
  sum.moment = statics.leftFixing;
  double start = 0;
  for (std::size_t i = 0; i < j; ++i) start -= beam.spans[i].length;
  for (std::size_t i = 0; i <= j; ++i) {
    Add(sum, statics.reactions[i], x - start);
    AddLoads(sum, beam.spans[i], x - start);
    start += beam.spans[i].length;
  }
  return sum;
}

SectionState StateAt(const SpanStatics& span, double x) {
  for (const BeamStretch& stretch : span.curves.stretches) {
    if (x <= stretch.start + stretch.length) return stretch.At(x - stretch.start);
  }
  return span.curves.last;
}

double LargestLoad(const ContinuousBeam& beam, const BeamStatics& statics) {
  double largest = 0;
  for (const LoadedSpan& span : beam.spans) {
    for (const PointForce& load : span.forces) largest = std::max(largest, std::fabs(load.force));
  }
  for (const double reaction : statics.reactions) largest = std::max(largest, std::fabs(reaction));
  return largest;
}

double LengthOf(const ContinuousBeam& beam) {
  double length = 0;
  for (const LoadedSpan& span : beam.spans) length += span.length;
  return length;
}

TEST(StaticsOfRandomBeams, EverySectionIsInEquilibrium) {
  RandomBeams random(1);
  random.ForEach([&](const ContinuousBeam& beam, const BeamStatics& statics) {
    const double force = kExact * LargestLoad(beam, statics);
    for (std::size_t j = 0; j < beam.spans.size(); ++j) {
      for (int k = 0; k < 5; ++k) {
        const double x = random.Between(0, beam.spans[j].length);
        const Actions left = LeftOf(beam, statics, j, x);
        const SectionState section = StateAt(statics.spans[j], x);
        EXPECT_NEAR(section.shear, left.force, force);
        EXPECT_NEAR(section.moment, left.moment, force * LengthOf(beam));
      }
    }
  });
}

TEST(StaticsOfRandomBeams, TheWholeIsInEquilibrium) {
  RandomBeams(2).ForEach([](const ContinuousBeam& beam, const BeamStatics& statics) {
    const std::size_t last = beam.spans.size() - 1;
    const double force = kExact * LargestLoad(beam, statics);
    const Actions all = LeftOf(beam, statics, last, beam.spans[last].length + 1e-9);
    EXPECT_NEAR(all.force + statics.reactions.back(), 0, force);
    EXPECT_NEAR(all.moment, statics.rightFixing, force * LengthOf(beam));
  });
}

/// Both ends of a span: where a support stands, the beam lies on it, and goes on across it.
void ExpectOnSupports(const ContinuousBeam& beam, const BeamStatics& statics, std::size_t j) {
  const SpanCurves& curves = statics.spans[j].curves;
  if (j > 0 || beam.left != Free) {
    EXPECT_NEAR(curves.first.deflection, -beam.rises[j], 1e-9);
  }
  if (j + 1 < beam.spans.size() || beam.right != Free) {
    EXPECT_NEAR(curves.last.deflection, -beam.rises[j + 1], 1e-9);
  }
  if (j == 0) return;
  EXPECT_NEAR(curves.first.slope, statics.spans[j - 1].curves.last.slope, 1e-9);
  EXPECT_NEAR(curves.first.moment, statics.spans[j - 1].curves.last.moment, 1e-5);
}

/// A fixed end turns as it is told, any other has no moment, and a free one no reaction.
void ExpectEnd(BeamHold hold, const SectionState& end, double turn, double reaction) {
  const double wrong = hold == Fixed ? end.slope - turn : end.moment;
  EXPECT_NEAR(wrong, 0, hold == Fixed ? 1e-10 : 1e-5);
  EXPECT_NEAR(hold == Free ? reaction : 0, 0, 1e-7);
}

TEST(StaticsOfRandomBeams, SupportsHoldTheBeam) {
  RandomBeams(3).ForEach([](const ContinuousBeam& beam, const BeamStatics& statics) {
    for (std::size_t j = 0; j < beam.spans.size(); ++j) ExpectOnSupports(beam, statics, j);
    ExpectEnd(beam.left, statics.spans.front().curves.first, beam.leftTurn,
              statics.reactions.front());
    ExpectEnd(beam.right, statics.spans.back().curves.last, beam.rightTurn,
              statics.reactions.back());
  });
}

/// The same beam with the same stretches, but a single force of 1 at a place.
ContinuousBeam UnderUnitForce(const ContinuousBeam& beam, std::size_t span) {
  ContinuousBeam unit = beam;
  for (LoadedSpan& s : unit.spans) {
    for (PointForce& load : s.forces) load.force = 0;
    for (PointMoment& load : s.moments) load.moment = 0;
    for (SpreadLoad& load : s.spreads) load.atStart = load.atEnd = 0;
  }
  unit.spans[span].forces.back().force = 1;
  unit.rises.clear();
  unit.leftTurn = unit.rightTurn = 0;
  return unit;
}

/// The integral of M m / E I over a stretch by three Gauss points, exact to the fifth degree.
double InnerWork(const BeamStretch& real, const BeamStretch& unit) {
  const double root = std::sqrt(0.6);
  double sum = 0;
  for (const auto& [place, weight] : {std::pair{-root, 5.0}, {0.0, 8.0}, {root, 5.0}}) {
    const double u = real.length * (1 + place) / 2;
    sum += weight / 18 * real.Moment().At(u) * unit.Moment().At(u);
  }
  return sum * real.length / real.stiffness;
}

double InnerWork(const BeamStatics& real, const BeamStatics& unit) {
  double sum = 0;
  for (std::size_t j = 0; j < real.spans.size(); ++j) {
    const auto &a = real.spans[j].curves.stretches, &b = unit.spans[j].curves.stretches;
    for (std::size_t k = 0; k < a.size(); ++k) sum += InnerWork(a[k], b[k]);
  }
  return sum;
}

/// What the unit beam's supports do on the way of the real ones.
double SupportWork(const ContinuousBeam& beam, const BeamStatics& unit) {
  double sum = 0;
  for (std::size_t i = 0; i < beam.rises.size(); ++i) sum += unit.reactions[i] * beam.rises[i];
  if (beam.left == Fixed) sum += unit.leftFixing * beam.leftTurn;
  if (beam.right == Fixed) sum -= unit.rightFixing * beam.rightTurn;
  return sum;
}

TEST(StaticsOfRandomBeams, DeflectionsAgreeWithVirtualWork) {
  RandomBeams random(4);
  random.ForEach([&](const ContinuousBeam& solved, const BeamStatics&) {
    ContinuousBeam beam = solved;
    const auto span =
        static_cast<std::size_t>(random.Whole(0, static_cast<int>(beam.spans.size()) - 1));
    const double x = random.Between(0, beam.spans[span].length);
    beam.spans[span].forces.push_back({0, x});
    const BeamStatics statics = SolveStatics(beam);
    const BeamStatics unit = SolveStatics(UnderUnitForce(beam, span));
    const double work = InnerWork(statics, unit) - SupportWork(beam, unit);
    const double scale = std::max(std::fabs(work), 0.01);
    EXPECT_NEAR(StateAt(statics.spans[span], x).deflection, work, 1e-9 * scale);
  });
}

void ExpectWithin(double value, const CurveRange& range) {
  const double room = 1e-12 * std::max({1.0, range.most, -range.least});
  EXPECT_LE(value, range.most + room);
  EXPECT_GE(value, range.least - room);
}

/// The range is as wide as the samples tell, give or take what lies between two of them.
struct Sampled {
  CurveRange range{-1e300, 1e300};
  void Take(double value) { range = {std::max(range.most, value), std::min(range.least, value)}; }
  void ExpectCloseTo(const CurveRange& exact) const {
    const double step = 0.02 * (exact.most - exact.least);
    EXPECT_NEAR(range.most, exact.most, step);
    EXPECT_NEAR(range.least, exact.least, step);
  }
};

TEST(StaticsOfRandomBeams, RangesHoldAllValuesAndNoMore) {
  RandomBeams(5).ForEach([](const ContinuousBeam& beam, const BeamStatics& statics) {
    if (beam.spans.size() > 7) return;
    for (const SpanStatics& span : statics.spans) {
      Sampled shear, moment, deflection;
      for (const BeamStretch& stretch : span.curves.stretches) {
        for (int k = 0; k <= 40; ++k) {
          const SectionState at = stretch.At(stretch.length * k / 40);
          ExpectWithin(at.shear, span.shear);
          ExpectWithin(at.moment, span.moment);
          ExpectWithin(at.deflection, span.deflection);
          shear.Take(at.shear);
          moment.Take(at.moment);
          deflection.Take(at.deflection);
        }
      }
      shear.ExpectCloseTo(span.shear);
      moment.ExpectCloseTo(span.moment);
      deflection.ExpectCloseTo(span.deflection);
    }
  });
}

}  // namespace
}  // namespace lignara
