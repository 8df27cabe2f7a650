#include "truss/stress_check.h"

#include <gtest/gtest.h>

#include "tests/support/truss_fixture.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// All groups 2X6 (1.5 in by 5.5 in, 8.25 in^2), Ft 1200 and Fa 1400 psi.
void ChooseTwoBySix(TestTruss& truss) {
  truss.ChooseMembers(8.25, 1600000);
  for (TrussMemberGroup& group : truss.session.Member.Groups) {
    group.GroupB = 1.5;
    group.GroupD = 5.5;
    group.GroupFt = 1200;
    group.GroupFa = 1400;
  }
}

/// The stress list of a truss under 1000 lbs on each node.
Texts StressList(TestTruss& truss) {
  truss.LoadAllNodes(1000);
  truss.Analyse();
  TrussJob job = truss.Job();
  Texts rows;
  CheckStresses(job, rows);
  return rows;
}

TestTruss ChosenTruss(const char* type, int spans = 4) {
  TestTruss truss = StandardTruss(type, spans);
  ChooseTwoBySix(truss);
  return truss;
}

/// The four lines of a member.
Texts LinesOf(const Texts& rows, const std::string& label) {
  const auto at = std::find(rows.begin(), rows.end(), label);
  return at == rows.end() ? Texts{} : Texts(at, at + 4);
}

float EulerValue(double length, double modulus, double b, double d) {
  Float32 result = 99;
  TRUSS_ALL_COMP(length, modulus, b, d, result);
  return result.value();
}

TEST(EulerValue, SmallerSideCounts) {
  // 10 ft, 1.5 in: slenderness 120 / 1.5 = 80; 0.3 x 1600000 / 80^2 = 75
  EXPECT_FLOAT_EQ(EulerValue(10, 1600000, 1.5, 5.5), 75);
  EXPECT_FLOAT_EQ(EulerValue(10, 1600000, 5.5, 1.5), 75);
}

TEST(EulerValue, SidesNotAboveZeroGiveZero) {
  RecordingPlatform platform;
  const FaultScope faults(platform);
  EXPECT_EQ(EulerValue(10, 1600000, 0, 5.5), 0);
  EXPECT_EQ(EulerValue(10, 1600000, 1.5, 0), 0);
  EXPECT_EQ(EulerValue(10, 1600000, 1.5, -1), 0);
  EXPECT_TRUE(platform.messages.empty());
}

TEST(EulerValue, AMemberWithoutLengthHasNone) {
  RecordingPlatform platform;
  const FaultScope faults(platform);
  EXPECT_EQ(EulerValue(0, 1600000, 1.5, 5.5), 0);
  EXPECT_EQ(EulerValue(-4, 1600000, 1.5, 5.5), 0);
  EXPECT_TRUE(platform.messages.empty());
}

TEST(StressCheck, FourLinesByHand) {
  TestTruss truss = ChosenTruss("KINGPOST");
  truss.model().PT = 1200;
  truss.Analyse();
  TrussJob job = truss.Job();
  Texts rows;
  CheckStresses(job, rows);
  // Rafter 600/0.6 = 1000 lbs, / 8.25 = 121.21; tie 600/0.75 = 800 lbs: 96.97. Bracing 1.5 x 50/12.
  const std::string allowable = "Allowable axial stress = 1200.00 psi with full lateral bracing.";
  const std::string bracing = "Assumes min. lateral bracing of 6.25 ft";
  EXPECT_EQ(rows, (Texts{"",      "TL1", "Actual Stress =  121.21 psi", allowable,
                         bracing, "TR1", "Actual Stress = 121.21 psi",  allowable,
                         bracing, "CL1", "Actual Stress = 96.97 psi",   allowable,
                         bracing, "CR1", "Actual Stress = 96.97 psi)",  allowable,
                         bracing, "CV",  "Actual Stress = 0.00 psi",    allowable,
                         bracing}));
}

TEST(StressCheck, AllowableIsTheLesserAndOnlyTensionEndsWithAFullStop) {
  struct Case {
    double ft, fa;
    const char* line;
  };
  for (const Case& c : {Case{1200, 1400,
                             "Allowable axial stress = 1200.00 psi with full lateral "
                             "bracing."},
                        Case{1500, 1400,
                             "Allowable axial stress = 1400.00 psi with full lateral "
                             "bracing"},
                        Case{1400, 1400,
                             "Allowable axial stress = 1400.00 psi with full lateral "
                             "bracing."}}) {
    TestTruss truss = ChosenTruss("PRATT1");
    truss.session.Member.Group(MemberGroup::Top).GroupFt = c.ft;
    truss.session.Member.Group(MemberGroup::Top).GroupFa = c.fa;
    EXPECT_EQ(LinesOf(StressList(truss), "(TL 1)").at(2), c.line);
  }
}

TEST(StressCheck, NoWoodTypeShowsAnAllowableOfZeroWithoutAMessage) {
  TestTruss truss = ChosenTruss("PRATT1");
  truss.session.Member.Group(MemberGroup::Bottom).GroupFt = 0;
  truss.session.Member.Group(MemberGroup::Bottom).GroupFa = 0;
  EXPECT_EQ(LinesOf(StressList(truss), "(CL 2)").at(2),
            "Allowable axial stress = 0.00 psi with full lateral bracing.");
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(StressCheck, EachFamilyReadsItsGroup) {
  TestTruss truss = ChosenTruss("HOWE", 6);
  for (int g = 0; g < kMemberGroups; ++g) {
    truss.session.Member.Groups[static_cast<std::size_t>(g)].GroupFt = 100 * (g + 1);
  }
  const Texts rows = StressList(truss);
  for (const auto& [label, ft] :
       std::initializer_list<std::pair<const char*, const char*>>{{"(TL 1)", "100"},
                                                                  {"(TR 3)", "100"},
                                                                  {"(CL 2)", "200"},
                                                                  {"(CR 1)", "200"},
                                                                  {"(VL 2)", "300"},
                                                                  {"(VR 1)", "300"},
                                                                  {"CV", "300"},
                                                                  {"(DL 2)", "400"},
                                                                  {"(DR 3)", "400"}}) {
    EXPECT_EQ(LinesOf(rows, label).at(2),
              std::string("Allowable axial stress = ") + ft + ".00 psi with full lateral bracing.")
        << label;
  }
}

TEST(StressCheck, TensionAndCompressionOfTheSameSizeShowTheSameLines) {
  TestTruss truss = ChosenTruss("PRATT1");
  truss.Analyse();
  truss.model().AX_CL[1] = 1000;
  truss.model().AX_CL[2] = -1000;
  TrussJob job = truss.Job();
  Texts rows;
  CheckStresses(job, rows);
  Texts pulled = LinesOf(rows, "(CL 1)");
  Texts pushed = LinesOf(rows, "(CL 2)");
  pulled.erase(pulled.begin());
  pushed.erase(pushed.begin());
  EXPECT_EQ(pulled, pushed);
  EXPECT_EQ(pulled[0], "Actual Stress = 121.21 psi");  // 1000 / 8.25
}

TEST(StressCheck, BracingFollowsFromTheSectionAlone) {
  TestTruss truss = ChosenTruss("PRATT1", 8);
  const Texts rows = StressList(truss);
  for (const char* label : {"(TL 1)", "(TL 4)", "(VL 1)", "(DR 4)"}) {
    EXPECT_EQ(LinesOf(rows, label).at(3), "Assumes min. lateral bracing of 6.25 ft") << label;
  }
}

TEST(StressCheck, WiderThanDeepTakesTheDepth) {
  TestTruss truss = ChosenTruss("PRATT1");
  truss.session.Member.Group(MemberGroup::Top).GroupB = 5.5;
  truss.session.Member.Group(MemberGroup::Top).GroupD = 3;
  EXPECT_EQ(LinesOf(StressList(truss), "(TL 1)").at(3), "Assumes min. lateral bracing of 12.50 ft");
}

TEST(StressCheck, SidesNotAboveZeroAreWrittenAsTheyStand) {
  TestTruss truss = ChosenTruss("PRATT1");
  truss.session.Member.Group(MemberGroup::Top).GroupB = -1.2;
  const Texts rows = StressList(truss);
  EXPECT_EQ(LinesOf(rows, "(TL 1)").at(3), "Assumes min. lateral bracing of -5.00 ft");
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(StressCheck, WordingOfTheTopLeftChord) {
  for (const auto& [type, words] :
       std::initializer_list<std::pair<const char*, const char*>>{{"PRATT2", "Actual Stress  = "},
                                                                  {"HOWE", "Actual Stress  = "},
                                                                  {"ENGLISH", "Actual Stress  = "},
                                                                  {"WARREN", "Actual Stress  = "},
                                                                  {"PRATT1", "Actual Stress = "},
                                                                  {"FINK", "Actual Stress = "}}) {
    TestTruss truss = ChosenTruss(type, 6);
    const Texts rows = StressList(truss);
    for (const char* label : {"(TL 1)", "(TL 3)"}) {
      const std::string line = LinesOf(rows, label).at(1);
      const std::size_t value = line.find_first_of("0123456789");
      EXPECT_EQ(line.substr(0, value), words) << type;
      EXPECT_EQ(line.substr(line.find('.', value) + 3), " psi") << type;
    }
    for (const char* label : {"(TR 1)", "(CL 3)", "(CR 1)", "(DL 2)", "(DR 3)"}) {
      const std::string line = LinesOf(rows, label).at(1);
      EXPECT_EQ(line.substr(0, line.find_first_of("0123456789")), "Actual Stress = ") << type;
      EXPECT_EQ(line.substr(line.size() - 4), " psi");
    }
  }
}

TEST(StressCheck, WordingOfScissorsIsTheCommonOne) {
  TestTruss truss = ChosenTruss("SCI");
  const Texts rows = StressList(truss);
  for (const char* label : {"TL1", "TR1", "TL2", "TR2", "VL1", "VR1", "CL1", "CR1", "CV"}) {
    const Texts lines = LinesOf(rows, label);
    ASSERT_EQ(lines.size(), 4u) << label;
    EXPECT_EQ(lines[1].rfind("Actual Stress = ", 0), 0u) << label;
    EXPECT_EQ(lines[1].substr(lines[1].size() - 4), " psi") << label;
  }
}

TEST(StressCheck, IndexSelectsTheElement) {
  TestTruss truss = ChosenTruss("SCI");
  truss.Analyse();
  truss.model().AX_TL[1] = 825;
  truss.model().AX_TL[2] = 1650;
  TrussJob job = truss.Job();
  Texts rows;
  CheckStresses(job, rows);
  EXPECT_EQ(LinesOf(rows, "TL1").at(1), "Actual Stress = 100.00 psi");
  EXPECT_EQ(LinesOf(rows, "TL2").at(1), "Actual Stress = 200.00 psi");
}

TEST(StressCheck, BlankLineThenFourLinesForEachMemberOfTheType) {
  for (const TrussTypeInfo& type : TrussTypes()) {
    TestTruss truss = ChosenTruss(type.keyword.c_str(), 6);
    const Texts rows = StressList(truss);
    const auto members = MembersOf(type.checkedMembers, HalfSpans(truss.session));
    ASSERT_EQ(rows.size(), 1 + 4 * members.size()) << type.keyword;
    EXPECT_EQ(rows[0], "");
    for (std::size_t i = 0; i < members.size(); ++i) {
      EXPECT_EQ(rows[1 + 4 * i], StressLabel(members[i])) << type.keyword;
    }
  }
}

// An English truss has no diagonal in its end panels, but its list names one. A member that is not
// there has no Euler value, which is no fault; its lines come all the same.
TEST(StressCheck, EnglishListsEndDiagonalsWithoutLength) {
  TestTruss truss = ChosenTruss("ENGLISH", 6);
  const FaultScope faults(truss.platform);
  const Texts rows = StressList(truss);
  EXPECT_TRUE(truss.platform.messages.empty());
  EXPECT_EQ(LinesOf(rows, "(DL 1)").at(1), "Actual Stress = 0.00 psi");
  EXPECT_EQ(LinesOf(rows, "(DR 1)").at(3), "Assumes min. lateral bracing of 6.25 ft");
}

TEST(StressCheck, WorkingValuesAreThoseOfTheMemberLastChecked) {
  TestTruss truss = ChosenTruss("KINGPOST");
  StressList(truss);
  const ActiveModel& m = truss.model();
  // The centre post, 12 ft: slenderness 144/1.5 = 96 and 50 at the bracing distance.
  EXPECT_EQ(m.MemberFt.value(), 1200);
  EXPECT_EQ(m.MemberFa.value(), 1400);
  EXPECT_EQ(m.MinBracingLength.value(), 6.25);
  EXPECT_FLOAT_EQ(m.FceAtLength.value(), static_cast<float>(0.3 * 1600000 / (96 * 96)));
  EXPECT_FLOAT_EQ(m.FceAtBracing.value(), 192);  // 480000 / 2500
}

TEST(StressCheck, AreaTestIsForZero) {
  MemberSelection selection;
  EXPECT_FALSE(HasAreas(selection));
  for (TrussMemberGroup& group : selection.Groups) group.GroupArea = -1;
  EXPECT_TRUE(HasAreas(selection));
  selection.Group(MemberGroup::Diagonal).GroupArea = 0;
  EXPECT_FALSE(HasAreas(selection));
}

}  // namespace
}  // namespace lignara
