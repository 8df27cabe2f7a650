#include <gtest/gtest.h>

#include <random>

#include "tests/support/plane_truss.h"

namespace lignara {
namespace {

// Deflections of the program against the direct stiffness method on a truss that is built from the
// dimensions alone.

constexpr double kInchesPerFoot = 12;
constexpr double kAgreement = 5e-5;  // of the largest deflection
/// Scissors: their shape follows from angles with pi of four and five decimals.
constexpr double kScissorsAgreement = 3e-4;

void ChooseMembers(TestTruss& truss) {
  const double areas[] = {8.25, 5.25, 3.0, 2.25};
  const double moduli[] = {1.6e6, 1.4e6, 1.2e6, 1.0e6};
  for (std::size_t g = 0; g < kMemberGroups; ++g) {
    truss.session.Member.Groups[g].GroupArea = areas[g];
    truss.session.Member.Groups[g].GroupE = moduli[g];
  }
}

/// The truss with the lengths that the program counts with where they are not those of the picture:
/// a centre vertical always counts as long as the truss is high, and the diagonals of English
/// trusses have lengths of their own. A shorter bar of the same elongation is a softer one.
PlaneTruss WithCountedLengths(TestTruss& truss) {
  PlaneTruss joints(truss);
  for (PlaneTruss::Bar& bar : joints.bars) {
    const Family family = bar.member.family;
    double counted = joints.Length(bar);
    if (family == Family::CV) counted = truss.session.TrussHeight.value();
    if (truss.session.TrussType == "ENGLISH" && GroupOf(family) == MemberGroup::Diagonal) {
      counted = LengthOf(truss.model(), family)[bar.member.index].value();
    }
    bar.stiffness *= joints.Length(bar) / counted;
  }
  return joints;
}

/// Deflection by stiffness, inches.
double Sinks(const PlaneTruss& joints, char side, int index = 0) {
  return joints.Sinking()[static_cast<std::size_t>(joints.TopJoint(side, index))] * kInchesPerFoot;
}

void LoadAtRandom(TestTruss& truss, std::mt19937& random, bool symmetric) {
  std::uniform_real_distribution<double> load(0, 2000);
  for (int i = 0; i <= truss.model().PL.upper(); ++i) {
    truss.model().PL[i] = load(random);
    truss.model().PR[i] = symmetric ? truss.model().PL[i].value() : load(random);
  }
  truss.model().PT = load(random);
}

void RunWithMembers(TestTruss& truss) {
  ChooseMembers(truss);
  truss.Run();
}

void ExpectDeflection(const Float32& deflection, double expected, double largest,
                      const std::string& what, double agreement = kAgreement) {
  EXPECT_NEAR(deflection.value(), expected, agreement * largest) << what;
}

// All forces are exact on these types (FINK: where its diagonals lean to midspan), under the loads
// of the user and under each unit load, so every node agrees, whatever the loads.
TEST(Stiffness, AllNodesOfPitchedTrussesAgree) {
  std::mt19937 random(11);
  for (const auto& [type, spans] :
       std::initializer_list<std::pair<const char*, int>>{{"PRATT1", 4},
                                                          {"PRATT1", 8},
                                                          {"PRATT1", 14},
                                                          {"FINK", 4},
                                                          {"FINK", 6},
                                                          {"ENGLISH", 4},
                                                          {"ENGLISH", 8}}) {
    TestTruss truss = StandardTruss(type, spans);
    LoadAtRandom(truss, random, false);
    RunWithMembers(truss);
    const PlaneTruss joints = WithCountedLengths(truss);
    const double peak = Sinks(joints, 'T');
    const std::string what = std::string(type) + std::to_string(spans);
    ExpectDeflection(truss.model().DeflT[1], peak, peak, what);
    for (int k = 1; k < spans / 2; ++k) {
      ExpectDeflection(truss.model().DeflL[k], Sinks(joints, 'L', k), peak, what + " L");
      ExpectDeflection(truss.model().DeflR[k], Sinks(joints, 'R', k), peak, what + " R");
    }
  }
}

TEST(Stiffness, ScissorsAgreeWithAPostAsLongAsTheTrussIsHigh) {
  std::mt19937 random(12);
  TestTruss truss = StandardTruss("SCI", 4);
  LoadAtRandom(truss, random, false);
  RunWithMembers(truss);
  const PlaneTruss joints = WithCountedLengths(truss);
  const double peak = Sinks(joints, 'T');
  ExpectDeflection(truss.model().DeflT[1], peak, peak, "T", kScissorsAgreement);
  ExpectDeflection(truss.model().DeflL[1], Sinks(joints, 'L', 1), peak, "L", kScissorsAgreement);
  ExpectDeflection(truss.model().DeflR[1], Sinks(joints, 'R', 1), peak, "R", kScissorsAgreement);
}

TEST(Stiffness, KingPostAgrees) {
  TestTruss truss = StandardTruss("KINGPOST", 4);
  truss.model().PT = 1500;
  RunWithMembers(truss);
  const double peak = Sinks(WithCountedLengths(truss), 'T');
  ExpectDeflection(truss.model().DeflT[1], peak, peak, "T");
}

// Parallel chords: a unit load between the support and midspan turns the shear round behind itself,
// where the walk carries magnitudes on; so only midspan and the nodes over the supports are exact.
TEST(Stiffness, MidspanAndEndsOfParallelChordsAgree) {
  std::mt19937 random(13);
  for (const char* type : {"PRATT2", "HOWE"}) {
    for (const int spans : {4, 6, 10}) {
      TestTruss truss = StandardTruss(type, spans);
      LoadAtRandom(truss, random, true);
      RunWithMembers(truss);
      const PlaneTruss joints = WithCountedLengths(truss);
      const double peak = Sinks(joints, 'T');
      ExpectDeflection(truss.model().DeflT[1], peak, peak, type);
      ExpectDeflection(truss.model().DeflL[1], Sinks(joints, 'L', 1), peak, type);
      ExpectDeflection(truss.model().DeflR[1], Sinks(joints, 'R', 1), peak, type);
    }
  }
}

// Warren: the same; and without a top node at midspan the last nodes of the halves are exact, since
// the shear turns round at them only.
TEST(Stiffness, MidspanAndEndsOfWarrenAgree) {
  std::mt19937 random(14);
  for (const int spans : {4, 6, 8, 10}) {
    TestTruss truss = StandardTruss("WARREN", spans);
    LoadAtRandom(truss, random, true);
    RunWithMembers(truss);
    const PlaneTruss joints = WithCountedLengths(truss);
    const bool top = truss.model().WarrenChord == "TOP";
    const int last = (spans / 2 - 1) / 2;
    const double largest = Sinks(joints, 'L', last);
    ExpectDeflection(truss.model().DeflL[0], Sinks(joints, 'L', 0), largest, "end");
    ExpectDeflection(truss.model().DeflR[0], Sinks(joints, 'R', 0), largest, "end");
    if (top) {
      ExpectDeflection(truss.model().DeflT[1], Sinks(joints, 'T'), Sinks(joints, 'T'), "midspan");
    } else {
      ExpectDeflection(truss.model().DeflL[last], largest, largest, "last left");
      ExpectDeflection(truss.model().DeflR[last], Sinks(joints, 'R', last), largest, "last right");
    }
  }
}

}  // namespace
}  // namespace lignara
