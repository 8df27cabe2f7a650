#include "app/report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lignara {
namespace {

//                       1             2             3
//             01234567890123 45678901234567 89012345678901
TEST(PrintZones, ItemsStartAtMultiplesOfFourteen) {
  EXPECT_EQ(PrintZones({"MEMBER", "TYPE", "AREA"}),
            "MEMBER        "
            "TYPE          "
            "AREA");
}

TEST(PrintZones, NothingStandsBehindTheLastItem) {
  EXPECT_EQ(PrintZones({"MEMBER"}), "MEMBER");
  EXPECT_EQ(PrintZones({"A", ""}), "A             ");
}

TEST(PrintZones, AnItemOfThirteenLeavesOneBlank) {
  EXPECT_EQ(PrintZones({std::string(13, 'x'), "y"}), std::string(13, 'x') + " y");
}

TEST(PrintZones, AnItemOfExactlyFourteenPushesTheNextToTheZoneAfter) {
  EXPECT_EQ(PrintZones({std::string(14, 'x'), "y"}),
            std::string(14, 'x') + std::string(14, ' ') + "y");
}

TEST(PrintZones, ALongItemPushesTheNextToTheNextFreeZone) {
  EXPECT_EQ(PrintZones({std::string(15, 'x'), "y"}),
            std::string(15, 'x') + std::string(13, ' ') + "y");
  EXPECT_EQ(PrintZones({std::string(27, 'x'), "y"}), std::string(27, 'x') + " y");
  EXPECT_EQ(PrintZones({std::string(28, 'x'), "y", "z"}),
            std::string(28, 'x') + std::string(14, ' ') + "y" + std::string(13, ' ') + "z");
}

TEST(PrintZones, EmptyItemsKeepTheirZone) {
  EXPECT_EQ(PrintZones({"", "", "AREA"}), std::string(28, ' ') + "AREA");
  EXPECT_EQ(PrintZones({"", "TYPE"}), std::string(14, ' ') + "TYPE");
}

TEST(PrintZones, EmptyZonesMayStandAhead) {
  EXPECT_EQ(PrintZones(1, {"Fb", "Fv"}), std::string(14, ' ') + "Fb" + std::string(12, ' ') + "Fv");
  EXPECT_EQ(PrintZones(3, {"parallel"}), std::string(42, ' ') + "parallel");
  EXPECT_EQ(PrintZones(0, {"Fb"}), "Fb");
}

TEST(PrintZones, NoItemsAreAnEmptyLine) {
  EXPECT_EQ(PrintZones({}), "");
  EXPECT_EQ(PrintZones(2, {}), "");
}

TEST(ReportText, EndsEachLineAndLeavesOutPagesAndDrawings) {
  Report report;
  report.Line();
  report.Line("TITLE:   ");
  report.StartPage();
  report.Draw({100, 50, 5, {LineShape{0, 0, 1, 1}}});
  report.Line("");
  report.Line("END");
  EXPECT_EQ(ReportText(report), "\nTITLE:   \n\nEND\n");
}

TEST(ReportText, SetsHeadsAsAnyColumnsAndOnce) {
  Report heads;
  heads.Heads({"MEMBER", "TYPE"}, 1);
  Report columns;
  columns.Columns({"MEMBER", "TYPE"}, 1);
  EXPECT_EQ(ReportText(heads), ReportText(columns));
}

TEST(ReportText, SetsColumnsAndIndentedLinesInZones) {
  Report report;
  report.Line("WOOD TYPE", 1);
  report.Columns({"Fb", "Fv"});
  report.Columns({"parallel", "across"}, 3);
  EXPECT_EQ(ReportText(report), std::string(14, ' ') + "WOOD TYPE\n" + "Fb            Fv\n" +  //
                                    std::string(42, ' ') + "parallel      across\n");
}

TEST(ReportText, OfAnEmptyReportIsEmpty) { EXPECT_EQ(ReportText(Report()), ""); }

TEST(Report, KeepsItsItemsInOrder) {
  Report report;
  report.Columns({"one", "two"}, 1);
  report.StartPage();
  report.Draw({100, 50, 5, {}});
  ASSERT_EQ(report.items().size(), 3u);
  const auto& line = std::get<ReportLine>(report.items()[0]);
  EXPECT_EQ(line.emptyZones, 1u);
  EXPECT_EQ(line.items, (std::vector<std::string>{"one", "two"}));
  EXPECT_TRUE(std::holds_alternative<NewPage>(report.items()[1]));
  EXPECT_EQ(std::get<Drawing>(report.items()[2]).width, 100);
}

TEST(Report, IsSetInTimesAtTenPointsUnlessToldOtherwise) {
  const Report report;
  EXPECT_EQ(report.fontName, "Times New Roman");
  EXPECT_EQ(report.fontSize, 10);
}

}  // namespace
}  // namespace lignara
