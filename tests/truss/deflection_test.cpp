#include "truss/deflection.h"

#include <gtest/gtest.h>

#include "tests/support/truss_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// Area x modulus of all groups is 1e7 lbs.
TestTruss ChosenTruss(const char* type, int spans = 4) {
  TestTruss truss = StandardTruss(type, spans);
  truss.ChooseMembers(10, 1e6);
  return truss;
}

// 32 ft, 12 ft high, 1000 lbs on the peak: rafters -833.33 (20 ft), ties 666.67 (16 ft), and a
// thousandth of it under the unit load. 2 x 833.33 x 0.83333 x 20 + 2 x 666.67 x 0.66667 x 16
// = 27777.8 + 14222.2 = 42000; x 12 / 1e7 = 0.0504 in.
TEST(Deflection, KingPostByHand) {
  TestTruss truss = ChosenTruss("KINGPOST");
  truss.model().PT = 1000;
  truss.Run();
  EXPECT_NEAR(truss.model().DeflT[1].value(), 0.0504, 1e-6);
  EXPECT_EQ(truss.window.deflectionRows, Texts{"TN = 0.050"});
}

TEST(Deflection, KingPostNodesOfTheHalvesGetNoForce) {
  TestTruss truss = ChosenTruss("KINGPOST");
  truss.LoadAllNodes(1000);
  truss.Run();
  EXPECT_EQ(truss.model().DeflL[1].value(), 0);
  EXPECT_EQ(truss.model().DeflR[1].value(), 0);
  EXPECT_NEAR(truss.model().DeflT[1].value(), 0.0504, 1e-6);
}

// 4 panels of 8 ft, 6 ft high, 500 and 1000 lbs on the nodes, 1000 at midspan. Forces of the run in
// a half: V 2000, 1500; T 2000, 2666.67; C 0, 2000; D 2500, 833.33; CV 1000. Under 1 lb at midspan:
// V 0.5, 0.5; T 0.66667, 1.33333; C 0, 0.66667; D 0.83333, 0.83333; CV 1.
//   V (0.5 x 2000 + 0.5 x 1500) x 6 = 10500       T (1333.33 + 3555.56) x 8 = 39111.1
//   C 1333.33 x 8 = 10666.7                       D (2083.33 + 694.44) x 10 = 27777.8
// Both halves 176111, CV 1000 x 6 = 6000: 182111 x 12 / 1e7 = 0.218533 in.
// Under 1 lb over the left support only VL 1 is strained, by 1: 2000 x 6 x 12 / 1e7 = 0.0144 in.
TEST(Deflection, Pratt2ByHand) {
  TestTruss truss = ChosenTruss("PRATT2");
  for (Float32Array* loads : {&truss.model().PL, &truss.model().PR}) {
    (*loads)[1] = 500;
    (*loads)[2] = 1000;
  }
  truss.model().PT = 1000;
  truss.Run();
  const ActiveModel& m = truss.model();
  EXPECT_NEAR(m.DeflT[1].value(), 0.218533, 2e-6);
  EXPECT_NEAR(m.DeflL[1].value(), 0.0144, 1e-6);
  EXPECT_NEAR(m.DeflR[1].value(), 0.0144, 1e-6);
  // The last node is worked out and not listed; element 0 is empty and listed.
  EXPECT_GT(m.DeflL[2].value(), 0);
  EXPECT_EQ(truss.window.deflectionRows,
            (Texts{"LN 0 = 0.000", "RN 0 = 0.000", "LN 1 = 0.014", "RN 1 = 0.014", "TN = 0.219"}));
}

TEST(Deflection, GroupsHaveStiffnessesOfTheirOwn) {
  TestTruss truss = ChosenTruss("PRATT2");
  for (Float32Array* loads : {&truss.model().PL, &truss.model().PR}) {
    (*loads)[1] = 500;
    (*loads)[2] = 1000;
  }
  truss.model().PT = 1000;
  // The parts of the hand calculation above, over areas of 1, 2, 4 and 5 in^2: top 2 x 39111.1,
  // bottom 2 x 10666.7 / 2, vertical (2 x 10500 + 6000) / 4, diagonal 2 x 27777.8 / 5.
  for (const auto& [group, area] :
       std::initializer_list<std::pair<MemberGroup, double>>{{MemberGroup::Top, 1},
                                                             {MemberGroup::Bottom, 2},
                                                             {MemberGroup::Vertical, 4},
                                                             {MemberGroup::Diagonal, 5}}) {
    truss.session.Member.Group(group).GroupArea = area;
  }
  truss.Run();
  const double sum = 78222.2 + 10666.7 + 6750 + 11111.1;
  EXPECT_NEAR(truss.model().DeflT[1].value(), sum * 12 / 1e6, 2e-5);
}

TEST(Deflection, CentreVerticalCountsWithTheFullHeightOfScissorsToo) {
  TestTruss truss = ChosenTruss("SCI");
  truss.model().PT = 1000;
  truss.Run();
  const double soft = truss.model().DeflT[1].value();
  truss.session.Member.Group(MemberGroup::Vertical).GroupArea = 1e12;
  truss.Run();
  const double stiff = truss.model().DeflT[1].value();
  // Rafter above the node: 20 x 500 / 8 = 1250, so CV = 2 x 1250 x 0.6 - 1000 = 500, and 0.5 under
  // 1 lb: 500 x 0.5 x 15 x 12 / 1e7 = 0.0045 in, though the post is 10 ft long. The webs bear
  // nothing from a load on the peak.
  EXPECT_NEAR(soft - stiff, 0.0045, 5e-6);
}

TEST(Deflection, NoLoadsNoDeflections) {
  for (const char* type :
       {"PRATT1", "FINK", "ENGLISH", "KINGPOST", "SCI", "PRATT2", "HOWE", "WARREN"}) {
    TestTruss truss = ChosenTruss(type, 6);
    truss.Run();
    ASSERT_FALSE(truss.window.deflectionRows.empty()) << type;
    for (const std::string& row : truss.window.deflectionRows) {
      EXPECT_EQ(row.substr(row.find('=')), "= 0.000") << type << " " << row;
    }
  }
}

TEST(Deflection, UpliftTurnsTheSignedPartsRound) {
  TestTruss truss = ChosenTruss("KINGPOST");
  truss.model().PT = -1000;
  truss.Run();
  // The force of a rafter is a root of squares, compression in any case, so its part of the hand
  // calculation stays positive; that of the tie turns round.
  EXPECT_NEAR(truss.model().DeflT[1].value(), (27777.8 - 14222.2) * 12 / 1e7, 1e-6);
  TestTruss flat = ChosenTruss("HOWE");
  flat.model().PL[1] = -1000;
  flat.Run();
  // 1000 x 1 x 6 x 12 / 1e7, upward
  EXPECT_NEAR(flat.model().DeflL[1].value(), -0.0072, 1e-6);
  EXPECT_EQ(flat.window.deflectionRows.at(2), "LN 1 = -0.007");
}

/// The labels of a list.
Texts LabelsOf(const Texts& rows) {
  Texts labels;
  for (const std::string& row : rows) labels.push_back(row.substr(0, row.find(" = ")));
  return labels;
}

TEST(DeflectionList, PitchedTypesListTheirInnerNodesByTurns) {
  for (const char* type : {"PRATT1", "FINK", "ENGLISH"}) {
    TestTruss truss = ChosenTruss(type, 6);
    truss.Run();
    EXPECT_EQ(LabelsOf(truss.window.deflectionRows), (Texts{"LN 1", "RN 1", "LN 2", "RN 2", "TN"}))
        << type;
  }
  TestTruss scissors = ChosenTruss("SCI");
  scissors.Run();
  EXPECT_EQ(LabelsOf(scissors.window.deflectionRows), (Texts{"LN 1", "RN 1", "TN"}));
}

TEST(DeflectionList, ParallelChordsStartWithZeroAndEndBeforeTheLastNode) {
  for (const char* type : {"PRATT2", "HOWE"}) {
    TestTruss truss = ChosenTruss(type, 6);
    truss.LoadAllNodes(1000);
    truss.Run();
    EXPECT_EQ(LabelsOf(truss.window.deflectionRows),
              (Texts{"LN 0", "RN 0", "LN 1", "RN 1", "LN 2", "RN 2", "TN"}))
        << type;
    EXPECT_EQ(truss.window.deflectionRows.at(0), "LN 0 = 0.000");
    EXPECT_GT(truss.model().DeflL[3].value(), 0);
  }
}

TEST(DeflectionList, WarrenShowsEverySecondElement) {
  for (const auto& [spans, labels] : std::initializer_list<std::pair<int, Texts>>{
           {4, {"LN 0", "RN 0", "TN"}},
           {8, {"LN 0", "RN 0", "LN 2", "RN 2", "TN"}},
           {6, {"LN 0", "RN 0", "LN 2", "RN 2"}},
           {10, {"LN 0", "RN 0", "LN 2", "RN 2", "LN 4", "RN 4"}}}) {
    TestTruss truss = ChosenTruss("WARREN", spans);
    truss.LoadAllNodes(1000);
    truss.Run();
    EXPECT_EQ(LabelsOf(truss.window.deflectionRows), labels) << spans;
  }
}

TEST(DeflectionList, WarrenElementsBeyondTheNodesStayZero) {
  TestTruss truss = ChosenTruss("WARREN", 8);  // nodes 0 and 1, elements to 3
  truss.LoadAllNodes(1000);
  truss.Run();
  const ActiveModel& m = truss.model();
  EXPECT_GT(m.DeflL[0].value(), 0);
  EXPECT_GT(m.DeflL[1].value(), 0);
  EXPECT_EQ(m.DeflL[2].value(), 0);
  EXPECT_EQ(m.DeflL[3].value(), 0);
  EXPECT_EQ(truss.window.deflectionRows.at(2), "LN 2 = 0.000");
}

TEST(DeflectionList, WarrenWithoutAMidspanNodeHasNoPeak) {
  TestTruss truss = ChosenTruss("WARREN", 6);
  truss.LoadAllNodes(1000);
  truss.Run();
  EXPECT_EQ(truss.model().DeflT[1].value(), 0);
}

TEST(DeflectionList, EndsOfAWarrenSinkByTheirVertical) {
  TestTruss truss = ChosenTruss("WARREN", 4);
  truss.model().PL[0] = 500;
  truss.Run();
  // VL 1 alone: 500 x 1 x 6 x 12 / 1e7
  EXPECT_NEAR(truss.model().DeflL[0].value(), 0.0036, 1e-7);
  EXPECT_EQ(truss.window.deflectionRows.at(0), "LN 0 = 0.004");
}

TEST(Deflection, EveryAreaAndModulusIsNeeded) {
  for (int g = 0; g < kMemberGroups; ++g) {
    for (Float32 TrussMemberGroup::*property :
         {&TrussMemberGroup::GroupArea, &TrussMemberGroup::GroupE}) {
      for (const double value : {0.0, -1.0}) {
        TestTruss truss = ChosenTruss("KINGPOST");
        truss.model().PT = 1000;
        truss.session.Member.Groups[static_cast<std::size_t>(g)].*property = value;
        truss.Analyse();
        TrussJob job = truss.Job();
        Texts rows = {"of an older run"};
        DEFLECTIONS_PEAKED(job, rows);
        EXPECT_EQ(truss.platform.TakeTexts(),
                  Texts{"AREA OR MOD. PROP. NOT SELECTED, NO DEF. WILL BE CALCULATED"});
        EXPECT_EQ(truss.model().ErrorFlag.value(), 1);
        EXPECT_EQ(rows, Texts{"of an older run"});
        EXPECT_NEAR(truss.model().AX_TL[1].value(), -833.33, 0.02);
        EXPECT_EQ(truss.model().PT.value(), 1000);
      }
    }
  }
}

TEST(SaveResults, MovesLoadsAndForcesAndLeavesZeros) {
  TestTruss truss = StandardTruss("PRATT2", 4);
  truss.LoadAllNodes(1000);
  truss.ChooseMembers(10, 1e6);
  truss.Run();  // creates the save fields
  ActiveModel& m = truss.model();
  const float top = m.AX_TL[2].value();
  TrussJob job = truss.Job();
  SAVE_RESULTS(job);
  EXPECT_EQ(m.PL[1].value(), 0);
  EXPECT_EQ(m.PT.value(), 0);
  EXPECT_EQ(m.AX_TL[2].value(), 0);
  EXPECT_EQ(m.AX_CV[1].value(), 0);
  EXPECT_EQ(m.SavePL[1].value(), 1000);
  EXPECT_EQ(m.SavePR[2].value(), 1000);
  EXPECT_EQ(m.SavePT.value(), 1000);
  EXPECT_EQ(m.SaveTL[2].value(), top);
  EXPECT_EQ(m.SaveCV[1].value(), -1000);
  RESTORE_RESULTS(job);
  EXPECT_EQ(m.PL[1].value(), 1000);
  EXPECT_EQ(m.PT.value(), 1000);
  EXPECT_EQ(m.AX_TL[2].value(), top);
  EXPECT_EQ(m.AX_CV[1].value(), -1000);
  EXPECT_EQ(m.SavePL[1].value(), 0);
  EXPECT_EQ(m.SavePT.value(), 0);
  EXPECT_EQ(m.SaveTL[2].value(), 0);
  EXPECT_EQ(m.SaveCV[1].value(), 0);
}

TEST(SaveResults, FieldsHaveTheirBounds) {
  TestTruss truss = ChosenTruss("PRATT1", 6);
  truss.Run();
  const ActiveModel& m = truss.model();
  EXPECT_EQ(m.SaveVL.upper(), 6);
  EXPECT_EQ(m.SavePR.upper(), 6);
  EXPECT_EQ(m.SaveCV.upper(), 2);
  EXPECT_EQ(m.DeflL.upper(), 3);
  EXPECT_EQ(m.DeflR.upper(), 3);
  EXPECT_EQ(m.DeflT.upper(), 1);
}

TEST(Deflection, ForcesAreBroughtBackAndComponentsAreOfTheLastUnitLoad) {
  TestTruss truss = ChosenTruss("PRATT1", 6);
  truss.LoadAllNodes(1000);
  truss.Run();
  const ActiveModel& m = truss.model();
  EXPECT_NEAR(m.AX_DL[2].value(), 1201.85, 0.03);
  EXPECT_NEAR(m.AX_CL[3].value(), 2000, 0.05);
  // 1 lb on the peak: 0.5 lb reactions, 0.66667 along, no diagonal strained.
  EXPECT_NEAR(m.TLH[1].value(), 0.66667, 1e-5);
  EXPECT_EQ(m.DLV[2].value(), 0);
}

TEST(Deflection, WarrenKeepsTheDiagonalSignsOfTheLastUnitLoad) {
  TestTruss truss = ChosenTruss("WARREN", 8);
  truss.model().PL[1] = 4000;  // turns the third diagonal round
  truss.Analyse();
  EXPECT_EQ(truss.model().SGN_DL[3].value(), -1);
  truss.Run();
  EXPECT_EQ(truss.model().SGN_DL[3].value(), 1);  // under 1 lb on midspan it is pulled
  EXPECT_NEAR(truss.model().AX_DL[3].value(), -1666.67, 0.05);
}

}  // namespace
}  // namespace lignara
