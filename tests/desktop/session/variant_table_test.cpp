// Values and what came of them as a table, on the screen and as a CSV file.

#include "desktop/session/variant_table.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

const Reading kReaction{"TRUSS", {"Left Side"}};
const Reading kForces{"TRUSS", {"Axial Load (lbs)"}, true};

Variants Asked(const std::vector<Reading>& readings) {
  return {{"enter \"H (ft)\" 5", "press \"OK\""}, 0, {"5", "6", "7"}, readings};
}

VariantOutcome Read(const std::vector<RowTexts>& readings) { return {{}, readings}; }

std::string Heads(const VariantTable& table) { return FromQt(table.heads.join("; ")); }
std::string Row(const VariantTable& table, int row) { return FromQt(table.rows[row].join("; ")); }

RowTexts List(const QStringList& rows) {
  RowTexts list;
  for (const QString& row : rows) list << QStringList(row);
  return list;
}

TEST(VariantTable, HasARowForEachOutcomeSoFar) {
  const VariantTable table =
      TableOf(Asked({kReaction}), {Read({List({"12.5"})}), Read({List({"13"})})});
  EXPECT_EQ(Heads(table), "H (ft); Left Side");
  ASSERT_EQ(table.rows.size(), 2);
  EXPECT_EQ(Row(table, 0), "5; 12.5");
  EXPECT_EQ(Row(table, 1), "6; 13");
}

TEST(VariantTable, GivesRowsOfTheSameNamesAColumnEach) {
  const VariantTable table =
      TableOf(Asked({kForces}), {Read({List({"", "TL = 10.00", "CV = 0.00"})}),
                                 Read({List({"", "TL = 12.00", "CV = 0.50"})})});
  EXPECT_EQ(Heads(table), "H (ft); TL (lbs); CV (lbs)");
  EXPECT_EQ(Row(table, 1), "6; 12.00; 0.50");
}

TEST(VariantTable, JoinsRowsWhoseNamesOrNumberDiffer) {
  const RowTexts two = List({"TL 1 = 10", "TL 2 = 20"});
  for (const RowTexts& other : {List({"TL 1 = 11"}), List({"TL 1 = 11", "TR 2 = 21"})}) {
    const VariantTable table = TableOf(Asked({kForces}), {Read({two}), Read({other})});
    EXPECT_EQ(Heads(table), "H (ft); Axial Load (lbs)");
    EXPECT_EQ(Row(table, 0), "5; TL 1 = 10 | TL 2 = 20");
  }
}

TEST(VariantTable, JoinsRowsWithoutNamesThatDiffer) {
  const VariantTable table = TableOf(
      Asked({kForces}), {Read({List({"SPAN 1", "M = 2"})}), Read({List({"SPAN 2", "M = 3"})})});
  EXPECT_EQ(Row(table, 1), "6; SPAN 2 | M = 3");
}

TEST(VariantTable, TellsNamesThatOccurAgainApartByTheirHeadings) {
  const VariantTable table = TableOf(
      Asked({kForces}), {Read({List({"SPAN 1", "M = 2", "SPAN 2", "M = 3", "M = 4", "V = 1"})})});
  EXPECT_EQ(Heads(table),
            "H (ft); SPAN 1, M (lbs); SPAN 2, M (lbs); SPAN 2, M (row 5) (lbs); V (lbs)");
}

TEST(VariantTable, NamesTheRowsOfATableByTheirFirstText) {
  const Reading reactions{
      "MDOUTPUT", {"Support Reactions"}, true, {"Support", "R (lbs)", "M (ft-lbs)"}};
  const VariantTable table =
      TableOf(Asked({reactions}), {Read({{{"1", "473.21", "0."}, {"Max", "2", "3"}}}),
                                   Read({{{"1", "500.00", "1."}, {"Max", "4", "5"}}})});
  EXPECT_EQ(Heads(table),
            "H (ft); Support 1, R (lbs); Support 1, M (ft-lbs); Max, R (lbs); Max, M (ft-lbs)");
  EXPECT_EQ(Row(table, 1), "6; 500.00; 1.; 4; 5");
}

TEST(VariantTable, SaysMoreWhereTwoColumnsWouldHaveOneHead) {
  const Reading height{"TR_INPUT", {"H (ft)"}};
  const Reading slope{"TRUSS", {"Slope"}, true};
  const VariantTable table =
      TableOf(Asked({height, kForces, slope}),
              {Read({List({"5"}), List({"TL = 1"}), List({"TL (lbs) = 2"})})});
  EXPECT_EQ(Heads(table),
            "Value of H (ft); TR_INPUT: H (ft); Axial Load (lbs), TL; Slope, TL (lbs)");
}

TEST(VariantTable, TellsWhatWasSaidAndWhatCouldNotBeDone) {
  VariantOutcome said = Read({List({"TL = 1"})});
  said.said = QStringList{"NO STRESS", "NO DEF."};
  VariantOutcome stopped;
  stopped.stopLine = 2;
  stopped.reason = "the control is disabled";
  VariantOutcome unread = Read({{}});
  unread.reason = "the window TRUSS is not open";
  const VariantTable table = TableOf(Asked({kForces}), {said, stopped, unread});
  EXPECT_EQ(Heads(table), "H (ft); TL (lbs); Said; Not carried out");
  EXPECT_EQ(Row(table, 0), "5; 1; NO STRESS | NO DEF.; ");
  EXPECT_EQ(Row(table, 1), "6; ; ; press \"OK\": the control is disabled");
  EXPECT_EQ(Row(table, 2), "7; ; ; the window TRUSS is not open");
}

TEST(VariantTable, IsEmptyBeforeTheFirstOutcome) {
  EXPECT_TRUE(TableOf(Asked({kForces}), {}).rows.isEmpty());
}

TEST(VariantTable, IsACsvFileThatQuotesWhatWouldSplit) {
  const VariantTable table{{"H (ft)", "Type, \"kind\""}, {{"5", "a\nb"}, {"6", ""}}};
  EXPECT_EQ(FromQt(CsvOf(table)), "H (ft),\"Type, \"\"kind\"\"\"\n5,\"a\nb\"\n6,\n");
}

}  // namespace
}  // namespace lignara
