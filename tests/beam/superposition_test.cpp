#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/support/beam_fixture.h"
#include "tests/support/plain_beam.h"
#include "tests/support/typed.h"

namespace lignara {
namespace {

using enum SupportType;

constexpr double kE = 1600000, kI = 98.9;

struct Ends {
  SupportType left, right;
};
constexpr Ends kSolvable[] = {{Pinned, Pinned}, {Fixed, Pinned}, {Pinned, Fixed},
                              {Fixed, Free},    {Free, Fixed},   {Fixed, Fixed}};

/// The results are stored in 32 bits, and so is the stiffness.
constexpr double kTolerance = 1e-6;

double Peak(const std::vector<double>& curve) {
  double peak = 0;
  for (const double value : curve) peak = std::max(peak, std::fabs(value));
  return peak;
}

void ExpectCurve(const std::vector<double>& plain, const Float32Array& fast, const char* what) {
  const double limit = kTolerance * Peak(plain) + 1e-9;
  for (std::size_t i = 0; i < plain.size(); ++i) {
    ASSERT_NEAR(fast[static_cast<int>(i)].value(), plain[i], limit) << what << " at station " << i;
  }
}

/// RUN against the plain double loop.
void ExpectPlainSums(TestBeam& beam) {
  beam.Constants(Typed(kE), Typed(kI));
  beam.Run();
  ASSERT_EQ(beam.Boxes(), Texts());
  const PlainRun plain = SolvePlainly(beam.window.beam, kE);
  ExpectCurve(plain.shear, beam.window.results.shearTotal, "shear");
  ExpectCurve(plain.moment, beam.window.results.momentTotal, "moment");
  ExpectCurve(plain.deflection, beam.window.results.deflTotal, "deflection");
  const double loads = std::fabs(plain.reaction1) + std::fabs(plain.reaction2);
  EXPECT_NEAR(beam.window.results.reaction1.value(), plain.reaction1, kTolerance * loads);
  EXPECT_NEAR(beam.window.results.reaction2.value(), plain.reaction2, kTolerance * loads);
}

void AddOneOf(TestBeam& beam, LoadKind kind) {
  switch (kind) {
    case LoadKind::PointLoad:
      return beam.Point("3.7", "1250");
    case LoadKind::PointMoment:
      return beam.Moment("6.1", "-830");
    case LoadKind::LeftDisplacement:
    case LoadKind::RightDisplacement:
      return beam.Add(kind, {{"Disp", "0.35"}});
    case LoadKind::AxialLoad:
      return beam.Axial("500");
    default:
      return beam.Add(kind, {{"A", "1.3"}, {"B", "6.9"}, {"W", "140"}});
  }
}

class EachClass : public testing::TestWithParam<int> {
 protected:
  EachClass() {
    const Ends& ends = kSolvable[GetParam()];
    beam.Supports(ends.left, ends.right);
  }

  bool Takes(LoadKind kind) const {
    const bool displacement =
        kind == LoadKind::LeftDisplacement || kind == LoadKind::RightDisplacement;
    return !displacement || GetParam() == 1 || GetParam() == 2 || GetParam() == 5;
  }

  TestBeam beam;
};

TEST_P(EachClass, SumsEachKindAsThePlainLoopDoes) {
  for (int code = 1; code <= kLoadKinds; ++code) {
    const auto kind = static_cast<LoadKind>(code);
    if (!Takes(kind)) continue;
    SCOPED_TRACE(code);
    RemoveAllLoads(beam.window);
    AddOneOf(beam, kind);
    ASSERT_EQ(beam.Loads(), 1);
    ExpectPlainSums(beam);
  }
}

TEST_P(EachClass, SumsAllKindsTogetherAsThePlainLoopDoes) {
  for (int code = 1; code <= kLoadKinds; ++code) {
    if (Takes(static_cast<LoadKind>(code))) AddOneOf(beam, static_cast<LoadKind>(code));
  }
  ExpectPlainSums(beam);
}

TEST_P(EachClass, SumsRandomLoadsAtOddAccuraciesAsThePlainLoopDoes) {
  std::mt19937 random(20 + GetParam());
  std::uniform_real_distribution<double> place(0.1, 9.9), size(-900, 900);
  for (const auto& [N, Q] : {std::pair{500.0, 100.0},
                             {37.4, 7.3},
                             {2.0, 1.0},
                             {0.4, 3.0},
                             {1999.0, 0.4},
                             {250.0, 250.0}}) {
    RemoveAllLoads(beam.window);
    for (int i = 0; i < 12; ++i) {
      const double A = place(random);
      const std::string a = Typed(A), b = Typed((9.95 - A) / 2);
      beam.Point(a, Typed(size(random)));
      beam.Add(static_cast<LoadKind>(2 + i % 3), {{"A", a}, {"B", b}, {"W", Typed(size(random))}});
      // A moment needs stations on both sides.
      if (N > 20) beam.Moment(a, Typed(size(random)));
    }
    beam.window.beam.accuracySteps = N;
    beam.window.beam.equivalentLoads = Q;
    SCOPED_TRACE(N);
    ExpectPlainSums(beam);
    beam.window.beam.accuracySteps = 500;
  }
}

TEST_P(EachClass, KeepsItsDigitsAtManyStations) {
  beam.window.beam.accuracySteps = 8000;
  beam.window.beam.equivalentLoads = 400;
  AddOneOf(beam, LoadKind::PointMoment);
  AddOneOf(beam, LoadKind::SlopedLeftZero);
  ExpectPlainSums(beam);
}

TEST_P(EachClass, TakesComponentsBeyondTheEndWithTheLeftFormula) {
  beam.Uniform("1", "2", "100");
  // Editing asks for B alone, so the load may reach past the right end.
  beam.Edit(1, LoadKind::LevelUniform, {{"A", "4"}, {"B", "7"}, {"W", "100"}});
  ASSERT_EQ(beam.window.beam.loadB[1].value(), 7.0f);
  ExpectPlainSums(beam);
}

INSTANTIATE_TEST_SUITE_P(Solvable, EachClass, testing::Range(0, 6));

}  // namespace
}  // namespace lignara
