#include <gtest/gtest.h>

#include <random>

#include "tests/support/plane_truss.h"

namespace lignara {
namespace {

// Member forces and reactions of the program, put on the joints of a truss that is built from the
// dimensions alone: at every joint they have to balance the load.

/// What the right angle of four decimals and 32 bits may leave, as a part of the largest force.
constexpr double kBalance = 3e-5;
/// Scissors: their shape follows from angles with pi of four and five decimals.
constexpr double kScissorsBalance = 3e-4;

double LargestForce(const PlaneTruss& truss) {
  double largest = 1;
  for (const PlaneTruss::Bar& bar : truss.bars) {
    largest = std::max(largest, std::fabs(bar.force));
  }
  return largest;
}

void ExpectBalance(TestTruss& truss) {
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  const PlaneTruss joints(truss);
  const double balance = truss.session.TrussType == "SCI" ? kScissorsBalance : kBalance;
  // Reactions are read from the screen, with their two decimals.
  EXPECT_LT(joints.WorstUnbalance(), 0.01 + balance * LargestForce(joints))
      << truss.session.TrussType << ", " << truss.session.TrussSpans.value() << " panels";
}

void LoadAtRandom(TestTruss& truss, std::mt19937& random) {
  std::uniform_real_distribution<double> load(0, 2000);
  for (int i = 0; i <= truss.model().PL.upper(); ++i) {
    truss.model().PL[i] = load(random);
    truss.model().PR[i] = load(random);
  }
  truss.model().PT = load(random);
}

TEST(Statics, EqualLoadsBalanceAtEveryJointOfAllTypes) {
  for (const char* type :
       {"PRATT1", "ENGLISH", "FINK", "KINGPOST", "SCI", "PRATT2", "HOWE", "WARREN"}) {
    for (const int spans : {4, 6, 8, 10, 12}) {
      // The third diagonal of a Fink leans outward at this slope, see below.
      if (std::string(type) == "FINK" && spans > 6) continue;
      TestTruss truss = StandardTruss(type, spans);
      truss.LoadAllNodes(1000);
      ExpectBalance(truss);
    }
  }
}

// The method of sections about the heel is exact for any loads on the pitched types. FINK: as long
// as all diagonals lean towards midspan, that is I cos^2 A > I - 1 for all but the last: the slope
// of a diagonal is found from a root, which does not tell to which side it leans.
TEST(Statics, RandomLoadsBalanceOnPitchedTypes) {
  std::mt19937 random(20240501);
  for (const char* type : {"PRATT1", "ENGLISH", "FINK"}) {
    for (const int spans : {4, 6, 8, 12, 16}) {
      for (const double pitch : {0.25, 0.4, 0.6}) {
        const double cosine2 = 1 / (1 + pitch * pitch);
        const int inner = spans / 2 - 1;
        if (std::string(type) == "FINK" && inner * cosine2 <= inner - 1 + 0.01) continue;
        TestTruss truss(type, spans, 6.5 * spans, pitch * 3.25 * spans);
        LoadAtRandom(truss, random);
        ExpectBalance(truss);
      }
    }
  }
}

TEST(Statics, RandomLoadsBalanceOnScissorsAndKingPost) {
  std::mt19937 random(7);
  for (const double inner : {2.0, 5.0, 8.0}) {
    TestTruss scissors("SCI", 4, 36, 14, inner);
    LoadAtRandom(scissors, random);
    ExpectBalance(scissors);
  }
  TestTruss post("KINGPOST", 4, 26, 7);
  LoadAtRandom(post, random);
  ExpectBalance(post);
}

// Parallel chords: magnitudes of the shear are carried on, so the walk is exact as long as the
// shear of a half does not turn round before midspan. Symmetric loads never do that.
TEST(Statics, SymmetricRandomLoadsBalanceOnParallelChords) {
  std::mt19937 random(99);
  for (const char* type : {"PRATT2", "HOWE", "WARREN"}) {
    for (const int spans : {4, 6, 8, 14}) {
      TestTruss truss(type, spans, 7.0 * spans, 6.5);
      LoadAtRandom(truss, random);
      for (int i = 0; i <= spans / 2; ++i) truss.model().PR[i] = truss.model().PL[i];
      ExpectBalance(truss);
    }
  }
}

// Warren: the signs of the diagonals follow the shear, so a shear that turns round at the last node
// before midspan is exact as well. Further out the bottom chord behind the turned diagonals is not.
TEST(Statics, WarrenBalancesWhereTheShearTurnsAtTheLastNode) {
  TestTruss truss = StandardTruss("WARREN", 6);
  truss.model().PL[0] = 300;
  truss.model().PL[1] = 1200;
  truss.model().PR[0] = 300;
  truss.model().PR[1] = 600;
  ExpectBalance(truss);
}

TEST(Statics, BothElementsOfALongWarrenMemberBearTheSame) {
  TestTruss truss = StandardTruss("WARREN", 12);
  truss.LoadAllNodes(1000);
  truss.ChooseMembers(10, 1e6);
  truss.Run();
  const ActiveModel& m = truss.model();
  for (const auto* t : {&m.AX_TL, &m.AX_TR}) {
    for (int i = 2; i <= 6; i += 2) EXPECT_EQ((*t)[i].value(), (*t)[i - 1].value());
  }
  for (const auto* c : {&m.AX_CL, &m.AX_CR}) {
    for (int i = 3; i <= 6; i += 2) EXPECT_EQ((*c)[i].value(), (*c)[i - 1].value());
  }
}

TEST(Statics, HalvesAgreeOnTheChordsAtMidspan) {
  std::mt19937 random(3);
  for (const char* type : {"PRATT1", "FINK"}) {
    TestTruss truss = StandardTruss(type, 6);
    LoadAtRandom(truss, random);
    truss.Analyse();
    const double left = truss.model().AX_CL[3].value();
    EXPECT_NEAR(truss.model().AX_CR[3].value(), left, 0.01 + kBalance * left);
  }
}

}  // namespace
}  // namespace lignara
