#include <gtest/gtest.h>

#include "tests/support/opened_truss.h"
#include "truss/canvas.h"
#include "truss/top_nodes.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// 30 ft by 7.5 ft; scissors rise to 3 ft inside.
OpenedTruss Example(const std::string& type, int spans = 6) {
  const bool fixed = type == "KINGPOST" || type == "SCI";
  return OpenedTruss(type, fixed ? 4 : spans, 30, 7.5, 3);
}

void Enter(OpenedTruss& truss, int row, const std::string& load) {
  truss.window.nodeRow = row;
  truss.window.nodeLoad = load;
  EnterNodeLoad(truss.window, truss.session, truss.platform);
}

void EnterAll(OpenedTruss& truss, const std::string& load) {
  truss.window.nodeLoad = load;
  EnterAllNodeLoads(truss.window, truss.session, truss.platform);
}

/// The labels of the rows behind the blank one.
Texts Labels(const OpenedTruss& truss) {
  Texts labels;
  for (std::size_t row = 1; row < truss.window.nodeRows.size(); ++row) {
    const std::string& text = truss.window.nodeRows[row];
    labels.push_back(text.substr(0, text.find(" = ")));
  }
  return labels;
}

TEST(NodeList, RowsByType) {
  struct Row {
    const char* type;
    int spans;
    Texts labels;
  };
  const Row rows[] = {
      {"KINGPOST", 4, {"PT"}},
      {"SCI", 4, {"PL1", "PT", "PR1"}},
      {"PRATT1", 6, {"PL 1", "PL 2", "PT", "PR 1", "PR 2"}},
      {"ENGLISH", 6, {"PL 1", "PL 2", "PT", "PR 1", "PR 2"}},
      {"FINK", 6, {"PL 1", "PL 2", "PT", "PR 1", "PR 2"}},
      {"PRATT2", 6, {"PL 1", "PL 2", "PL 3", "PT", "PR 1", "PR 2", "PR 3"}},
      {"HOWE", 4, {"PL 1", "PL 2", "PT", "PR 1", "PR 2"}},
      // NS/2 even: the midspan node lies on the top chord.
      {"WARREN", 4, {"PL 0", "PT", "PR 0"}},
      {"WARREN", 8, {"PL 0", "PL 1", "PT", "PR 0", "PR 1"}},
      // NS/2 odd: it lies on the bottom chord.
      {"WARREN", 6, {"PL 0", "PL 1", "PR 0", "PR 1"}},
      {"WARREN", 10, {"PL 0", "PL 1", "PL 2", "PR 0", "PR 1", "PR 2"}},
  };
  for (const Row& row : rows) {
    const OpenedTruss truss = Example(row.type, row.spans);
    EXPECT_EQ(Labels(truss), row.labels) << row.type << row.spans;
    EXPECT_EQ(truss.window.nodeRows[0], "");
    EXPECT_EQ(truss.window.nodeRow, -1);
  }
}

TEST(NodeList, ValuesHaveTwoDecimalsAndNoSignOnZero) {
  OpenedTruss truss = Example("PRATT1");
  EXPECT_EQ(truss.window.nodeRows,
            (Texts{"", "PL 1 = 0.00", "PL 2 = 0.00", "PT = 0.00", "PR 1 = 0.00", "PR 2 = 0.00"}));
  Enter(truss, 1, "-0.001");
  Enter(truss, 2, "1234.565");
  Enter(truss, 3, "-5.25");
  EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 0.00");
  // 1234.565 is kept as 1234.565 to seven digits and rounds half away from zero.
  EXPECT_EQ(truss.window.nodeRows[2], "PL 2 = 1234.57");
  EXPECT_EQ(truss.window.nodeRows[3], "PT = -5.25");
}

/// "Enter" in each row in turn with the row's number, then the list as a whole.
Texts FilledRowByRow(OpenedTruss& truss) {
  const int rows = static_cast<int>(truss.window.nodeRows.size());
  for (int row = 1; row < rows; ++row) Enter(truss, row, std::to_string(row));
  EXPECT_TRUE(truss.platform.messages.empty());
  return truss.window.nodeRows;
}

TEST(EnterLoad, PutsTheFieldIntoTheSelectedRowOfPitchedTypes) {
  for (const char* type : {"PRATT1", "ENGLISH", "FINK"}) {
    OpenedTruss truss = Example(type);
    EXPECT_EQ(FilledRowByRow(truss),
              (Texts{"", "PL 1 = 1.00", "PL 2 = 2.00", "PT = 3.00", "PR 1 = 4.00", "PR 2 = 5.00"}))
        << type;
  }
}

TEST(EnterLoad, PutsTheFieldIntoTheSelectedRowOfFlatTypes) {
  for (const char* type : {"PRATT2", "HOWE"}) {
    OpenedTruss truss = Example(type, 4);
    EXPECT_EQ(FilledRowByRow(truss),
              (Texts{"", "PL 1 = 1.00", "PL 2 = 2.00", "PT = 3.00", "PR 1 = 4.00", "PR 2 = 5.00"}))
        << type;
  }
}

TEST(EnterLoad, PutsTheFieldIntoTheSelectedRowOfWarrenTrusses) {
  OpenedTruss top = Example("WARREN", 8);
  EXPECT_EQ(FilledRowByRow(top),
            (Texts{"", "PL 0 = 1.00", "PL 1 = 2.00", "PT = 3.00", "PR 0 = 4.00", "PR 1 = 5.00"}));
  OpenedTruss bottom = Example("WARREN", 6);
  EXPECT_EQ(FilledRowByRow(bottom),
            (Texts{"", "PL 0 = 1.00", "PL 1 = 2.00", "PR 0 = 3.00", "PR 1 = 4.00"}));
}

TEST(EnterLoad, PutsTheFieldIntoTheSelectedRowOfFixedShapes) {
  OpenedTruss scissors = Example("SCI");
  EXPECT_EQ(FilledRowByRow(scissors), (Texts{"", "PL1 = 1.00", "PT = 2.00", "PR1 = 3.00"}));
  OpenedTruss king = Example("KINGPOST");
  EXPECT_EQ(FilledRowByRow(king), (Texts{"", "PT = 1.00"}));
}

TEST(EnterLoad, FieldIsReadByItsNumericPrefix) {
  OpenedTruss truss = Example("PRATT1");
  Enter(truss, 1, " 250 lbs");
  EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 250.00");
  Enter(truss, 1, "none");
  EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 0.00");
}

TEST(EnterLoad, TheSameRowStaysSelected) {
  OpenedTruss truss = Example("PRATT1");
  Enter(truss, 4, "100");
  EXPECT_EQ(truss.window.nodeRow, 4);
}

TEST(EnterLoad, BlankRowOfPitchedAndFlatTypesGoesToAnElementNobodyReads) {
  for (const char* type : {"PRATT1", "ENGLISH", "FINK", "PRATT2", "HOWE"}) {
    OpenedTruss truss = Example(type);
    const Texts before = truss.window.nodeRows;
    Enter(truss, 0, "100");
    EXPECT_EQ(truss.model().PL[0].value(), 100.0f) << type;
    EXPECT_EQ(truss.window.nodeRows, before) << type;
    EXPECT_TRUE(truss.platform.messages.empty()) << type;
  }
}

TEST(EnterLoad, BlankRowOfWarrenIsAFault) {
  for (const int spans : {6, 8}) {
    OpenedTruss truss = Example("WARREN", spans);
    const Texts before = truss.window.nodeRows;
    Enter(truss, 0, "100");
    EXPECT_EQ(truss.platform.TakeTexts(), Texts{"There is no element of that number"});
    EXPECT_EQ(truss.window.nodeRows, before);
  }
}

TEST(EnterLoad, BlankRowOfFixedShapes) {
  OpenedTruss scissors = Example("SCI");
  const Texts before = scissors.window.nodeRows;
  Enter(scissors, 0, "100");
  EXPECT_EQ(scissors.window.nodeRows, before);
  EXPECT_TRUE(scissors.platform.messages.empty());
  OpenedTruss king = Example("KINGPOST");
  Enter(king, 0, "100");
  EXPECT_EQ(king.window.nodeRows, (Texts{"", "PT = 100.00"}));
}

TEST(EnterLoad, WithoutASelectedRow) {
  for (const char* type : {"PRATT1", "ENGLISH", "FINK", "PRATT2", "HOWE", "WARREN"}) {
    OpenedTruss truss = Example(type);
    const Texts before = truss.window.nodeRows;
    truss.window.nodeRows.clear();
    Enter(truss, -1, "100");
    EXPECT_EQ(truss.platform.TakeTexts(), Texts{"There is no element of that number"}) << type;
    EXPECT_EQ(truss.window.nodeRows, before) << "refilled all the same: " << type;
  }
  OpenedTruss scissors = Example("SCI");
  Enter(scissors, -1, "100");
  EXPECT_TRUE(scissors.platform.messages.empty());
  EXPECT_EQ(scissors.model().PT.value(), 0.0f);
  OpenedTruss king = Example("KINGPOST");
  Enter(king, -1, "100");
  EXPECT_EQ(king.model().PT.value(), 100.0f);
}

TEST(EnterLoad, NumberTooLargeToKeepChangesNothing) {
  OpenedTruss truss = Example("PRATT1");
  Enter(truss, 1, "100");
  for (const char* load : {"1e39", "-1e39", "1e999"}) {
    Enter(truss, 1, load);
    EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"}) << load;
    EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 100.00");
    EnterAll(truss, load);
    EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"}) << load;
    EXPECT_EQ(truss.window.nodeRows[3], "PT = 0.00");
  }
}

// Below 1e-45 a 32-bit number is 0, which is a load like any other and no fault.
TEST(EnterLoad, NumberTooSmallToKeepIsNoLoad) {
  OpenedTruss truss = Example("PRATT1");
  for (const char* load : {"1e-50", "-1e-50", "1e-400"}) {
    Enter(truss, 1, "100");
    Enter(truss, 1, load);
    EXPECT_EQ(truss.window.nodeRows[1], "PL 1 = 0.00") << load;
    EnterAll(truss, "100");
    EnterAll(truss, load);
    EXPECT_EQ(truss.window.nodeRows[3], "PT = 0.00") << load;
  }
  EXPECT_TRUE(truss.platform.messages.empty());
}

/// The elements of PL (PR is the same) after "All" with 7, and PT.
struct Filled {
  const char* type;
  int spans;
  std::vector<float> elements;
  float peak;
};

TEST(AllLoads, FillTheElementsOfTheType) {
  const Filled rows[] = {
      {"PRATT1", 6, {0, 7, 7, 0}, 7},
      {"ENGLISH", 6, {0, 7, 7, 0}, 7},
      {"FINK", 6, {0, 7, 7, 0}, 7},
      {"KINGPOST", 4, {0, 7, 0}, 7},
      {"SCI", 4, {0, 7, 0}, 7},
      {"PRATT2", 6, {0, 7, 7, 7}, 7},
      {"HOWE", 6, {0, 7, 7, 7}, 7},
      // One element further than the list shows.
      {"WARREN", 8, {7, 7, 7, 0, 0}, 7},
      {"WARREN", 4, {7, 7, 0}, 7},
      // No node at midspan, so no PT.
      {"WARREN", 6, {7, 7, 0, 0}, 0},
      {"WARREN", 10, {7, 7, 7, 0, 0, 0}, 0},
  };
  for (const Filled& row : rows) {
    OpenedTruss truss = Example(row.type, row.spans);
    EnterAll(truss, "7");
    ASSERT_EQ(truss.model().PL.upper() + 1, static_cast<int>(row.elements.size()));
    ASSERT_EQ(truss.model().PR.upper() + 1, static_cast<int>(row.elements.size()));
    for (int i = 0; i <= truss.model().PL.upper(); ++i) {
      const float expected = row.elements[static_cast<std::size_t>(i)];
      EXPECT_EQ(truss.model().PL[i].value(), expected) << row.type << row.spans << " PL" << i;
      EXPECT_EQ(truss.model().PR[i].value(), expected) << row.type << row.spans << " PR" << i;
    }
    EXPECT_EQ(truss.model().PT.value(), row.peak) << row.type << row.spans;
    EXPECT_TRUE(truss.platform.messages.empty());
  }
}

TEST(AllLoads, RefillTheListAndKeepTheSelectedRow) {
  OpenedTruss truss = Example("SCI");
  truss.window.nodeRow = 2;
  EnterAll(truss, "-100");
  EXPECT_EQ(truss.window.nodeRows, (Texts{"", "PL1 = -100.00", "PT = -100.00", "PR1 = -100.00"}));
  EXPECT_EQ(truss.window.nodeRow, 2);
}

TEST(SelectNode, WritesTheLoadInPlainForm) {
  OpenedTruss truss = Example("PRATT1");
  Enter(truss, 1, "100");
  Enter(truss, 3, "0.5");
  Enter(truss, 5, "-1500000000");
  const std::pair<int, const char*> fields[] = {{1, "100"}, {2, "0"}, {3, "0.5"}, {5, "-1.5E+09"}};
  for (const auto& [row, text] : fields) {
    SelectNode(truss.window, truss.session, truss.platform, row);
    EXPECT_EQ(truss.window.nodeLoad, text);
    EXPECT_EQ(truss.window.nodeRow, row);
    EXPECT_EQ(truss.window.view.markedRow, row);
  }
}

TEST(SelectNode, BlankRowLeavesTheField) {
  OpenedTruss truss = Example("PRATT1");
  truss.window.nodeLoad = "250";
  SelectNode(truss.window, truss.session, truss.platform, 0);
  EXPECT_EQ(truss.window.nodeLoad, "250");
  EXPECT_EQ(truss.window.nodeRow, 0);
  EXPECT_TRUE(truss.platform.messages.empty());
}

TEST(SelectNode, FollowsTheRowsOfEachType) {
  OpenedTruss warren = Example("WARREN", 8);
  Enter(warren, 4, "40");  // PR 0
  SelectNode(warren.window, warren.session, warren.platform, 4);
  EXPECT_EQ(warren.window.nodeLoad, "40");
  OpenedTruss flat = Example("HOWE", 4);
  Enter(flat, 5, "50");  // PR 2
  SelectNode(flat.window, flat.session, flat.platform, 5);
  EXPECT_EQ(flat.window.nodeLoad, "50");
}

TEST(TopNodes, WarrenWithoutAChordForItsMidspanNodeHasNone) {
  OpenedTruss truss = Example("WARREN");
  truss.model().WarrenChord = "";
  SHOW_NODE_LOADS(truss.window, truss.session);
  EXPECT_EQ(truss.window.nodeRows, Texts{""});
}

TEST(TopNodes, ReportNamesTheHalvesBeforeThePeak) {
  Texts labels;
  for (const TopNode& node : TopNodesInReport({1, 2, true})) {
    labels.push_back(NodeLabel(node, "PRATT1"));
  }
  EXPECT_EQ(labels, (Texts{"LN 1", "LN 2", "RN 1", "RN 2", "TN"}));
  EXPECT_EQ(NodeLabel({NodeSide::Left, 1}, "SCI"), "LN1");
  EXPECT_EQ(NodeLabel({NodeSide::Right, 0}, "WARREN"), "RN 0");
}

TEST(EnterAndGoOn, EntersTheLoadAndSelectsTheNextRowUpToTheLast) {
  OpenedTruss truss = Example("SCI");
  SelectNode(truss.window, truss.session, truss.platform, 1);
  for (const char* load : {"100", "200", "300", "400"}) {
    truss.window.nodeLoad = load;
    EnterNodeLoadAndGoOn(truss.window, truss.session, truss.platform);
  }
  // Three nodes: the fourth load overwrites that of the last.
  EXPECT_EQ(truss.window.nodeRows, Texts({"", "PL1 = 100.00", "PT = 200.00", "PR1 = 400.00"}));
  EXPECT_EQ(truss.window.nodeRow, 3);
  EXPECT_EQ(truss.window.view.markedRow, 3);
}

TEST(EnterAndGoOn, ShowsTheLoadOfTheNextNode) {
  OpenedTruss truss = Example("SCI");
  EnterAll(truss, "75");
  SelectNode(truss.window, truss.session, truss.platform, 1);
  truss.window.nodeLoad = "10";
  EnterNodeLoadAndGoOn(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.window.nodeLoad, "75");
}

TEST(EnterAndGoOn, GoesNowhereWhereNoRowIsSelected) {
  OpenedTruss truss = Example("FINK");
  truss.window.nodeLoad = "10";
  EnterNodeLoadAndGoOn(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.window.nodeRow, -1);
}

}  // namespace
}  // namespace lignara
