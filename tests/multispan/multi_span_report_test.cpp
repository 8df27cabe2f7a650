#include <filesystem>
#include <fstream>
#include <sstream>

#include "multispan/results_window.h"
#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class MultiSpanReportTest : public MultiSpanTest {
 protected:
  MultiSpanReportTest() {
    Open(2);
    for (int j = 1; j <= 2; ++j) {
      EnterSpan(10 * j, 120);
      model().spanUnbraced[j] = 4.125;
      model().spanSectionModulus[j] = 21.39;
      model().spanArea[j] = 13.88;
      model().spanShearArea[j] = 9.25;
      model().spanB[j] = 1.5;
      model().spanD[j] = 9.25;
      model().spanMember[static_cast<std::size_t>(j)] = "Hem-Fir, 2X10";
    }
    Previous();
    EnterLoad("500", "2.5");
    ShowNextLoad(window, session);
    EnterLoad("-250.5", "7");
    session.Header = {"Library roof", "North wing", "A. Baker", "3 May"};
    Run();
    ShowMultiSpanResults(results, session);
  }

  std::string Text() { return ReportText(MultiSpanReport(results, session)); }
  /// The lines of a report, and a word for what is no line.
  static Texts Items(const Report& report) {
    Texts items;
    for (const Report::Item& item : report.items()) {
      if (const auto* line = std::get_if<ReportLine>(&item)) items.push_back(line->Text());
      if (std::holds_alternative<NewPage>(item)) items.push_back("<page>");
      if (std::holds_alternative<Drawing>(item)) items.push_back("<drawing>");
    }
    return items;
  }

  MultiSpanResults results;
};

constexpr const char* kInput =
    "INPUT DATA\n\n"
    "MEMBER(1) = Hem-Fir, 2X10\nNA\nLength = 10.00 ft\nUnbraced Length = 4.13 ft\n"
    "Moment of Inertia = 100.00 in^4\nSection Modulus = 21.39 in^3\n"
    "Young's Modulus = 1600000.00 psi\nGross Area = 13.88 in^2\nShear Area = 9.25 in^2\n"
    "Member depth = 9.25 in\nMember width = 1.50 in\nUniform Load = 120.00 lbs/ft\n"
    "Point Load = 500.00 lbs at 2.50 ft from left end.\n"
    "Point Load = -250.50 lbs at 7.00 ft from left end.\n"
    "MEMBER(2) = Hem-Fir, 2X10\n\nLength = 20.00 ft\nUnbraced Length = 4.13 ft\n"
    "Moment of Inertia = 100.00 in^4\nSection Modulus = 21.39 in^3\n"
    "Young's Modulus = 1600000.00 psi\nGross Area = 13.88 in^2\nShear Area = 9.25 in^2\n"
    "Member depth = 9.25 in\nMember width = 1.50 in\nUniform Load = 120.00 lbs/ft\n";

TEST_F(MultiSpanReportTest, HasHeaderResultsAndInput) {
  EXPECT_EQ(Text(), std::string("Library roof\nNorth wing\nENGINEER: A. Baker\nDATE: 3 May\n\n"
                                "RESULTS\n") +
                        kInput);
}

TEST_F(MultiSpanReportTest, ListsTheStressCheckUnderResults) {
  results.stressRows = {"ACTUAL STRESSES", "Span 1 Hem-Fir, 2X10"};
  EXPECT_NE(Text().find("RESULTS\nACTUAL STRESSES\nSpan 1 Hem-Fir, 2X10\nINPUT DATA\n\n"),
            std::string::npos);
}

TEST_F(MultiSpanReportTest, ListsTheFirstEntriesUpToTheCount) {
  Previous();
  EnterLoad("0", "2.5");  // the first load is free now, and the count is 1
  const std::string text = Text();
  EXPECT_NE(text.find("Point Load = 0.00 lbs at 2.50 ft from left end.\nMEMBER(2)"),
            std::string::npos);
}

// A list of many spans goes on on further pages: what it belongs to is said again there.
TEST_F(MultiSpanReportTest, HeadingsAndMembersStandAgainOnFurtherPages) {
  results.stressRows = {"ACTUAL STRESSES",         "Span 1 GLU-LAM",        "ALLOWABLE STRESSES",
                        "ALLOWABLE STRESS VALUES", "MEMBER USE CONDITIONS", "SPAN 1"};
  Texts heads;
  const Report report = MultiSpanReport(results, session);
  for (const Report::Item& item : report.items()) {
    const auto* line = std::get_if<ReportLine>(&item);
    if (line != nullptr && line->heads) heads.push_back(line->Text());
  }
  EXPECT_EQ(heads, (Texts{"RESULTS", "ACTUAL STRESSES", "ALLOWABLE STRESSES",
                          "ALLOWABLE STRESS VALUES", "MEMBER USE CONDITIONS",
                          "MEMBER(1) = Hem-Fir, 2X10", "MEMBER(2) = Hem-Fir, 2X10"}));
}

TEST_F(MultiSpanReportTest, ReadsTheModelAsItIsNow) {
  model().spanUniform[1] = 999;
  EXPECT_NE(Text().find("Uniform Load = 999.00 lbs/ft"), std::string::npos);
}

TEST_F(MultiSpanReportTest, PrintAddsTheDiagrams) {
  session.ReportFont.Name = "Arial";
  PrintMultiSpanReport(results, session, platform);
  ASSERT_EQ(platform.printed.size(), 1u);
  EXPECT_EQ(platform.printed[0].fontName, "Arial");
  EXPECT_EQ(ReportText(platform.printed[0]).substr(0, Text().size()), Text());
  Texts items = Items(platform.printed[0]);
  items.erase(items.begin(), items.end() - 15);
  EXPECT_EQ(items[0], "<page>");
  EXPECT_EQ(items[1], "SHEAR DIAGRAM");
  EXPECT_EQ(items[2].substr(0, 13), "Max. Shear = ");
  EXPECT_EQ(items[3], "<drawing>");
  EXPECT_EQ(items[5], "MOMENT DIAGRAM");
  EXPECT_EQ(items[6].substr(0, 14), "Max. MOMENT = ");
  EXPECT_EQ(items[9], "DEFLECTED SHAPE");
  EXPECT_EQ(items[10].substr(0, 12), "Max. Def. = ");
  EXPECT_EQ((Texts{items[12], items[13], items[14]}),
            (Texts{"<page>", "BEAM SYSTEM", "<drawing>"}));
}

TEST_F(MultiSpanReportTest, DiagramsAloneStartOnTheFirstPage) {
  PrintMultiSpanDiagrams(results, session, platform);
  const Texts items = Items(platform.printed.at(0));
  ASSERT_EQ(items.size(), 14u);
  EXPECT_EQ((Texts{items[0], items[3], items[4], items[7], items[8], items[12]}),
            (Texts{"SHEAR DIAGRAM", "<page>", "MOMENT DIAGRAM", "<page>", "DEFLECTED SHAPE",
                   "BEAM SYSTEM"}));
}

TEST_F(MultiSpanReportTest, DiagramsBearTheirPeaks) {
  // Without point loads, spans of 10 and 20 ft under 120: M = 120 (1000 + 8000) / (8 x 30) = 4500.
  model().pointCount[1] = 0;
  model().pointLoad[1][1] = 0;
  model().pointX[1][1] = 0;
  Run();
  ShowMultiSpanResults(results, session);
  PrintMultiSpanDiagrams(results, session, platform);
  const Texts items = Items(platform.printed.at(0));
  EXPECT_EQ(items[1], "Max. Shear = 1425.00");  // 1200 + 4500 / 20
  EXPECT_EQ(items[5].substr(0, 18), "Max. MOMENT = 4500");
}

// Saving.

TEST_F(MultiSpanReportTest, IsSavedOverAnOldFile) {
  const std::string path = testing::TempDir() + "multi_span_report.txt";
  std::ofstream(path) << std::string(20000, 'x');
  platform.fileAnswers = {path};
  SaveMultiSpanReport(results, session, platform);
  EXPECT_EQ(platform.filters, Texts{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
  std::stringstream saved;
  saved << std::ifstream(path).rdbuf();
  EXPECT_EQ(saved.str(), Text());
  std::filesystem::remove(path);
}

TEST_F(MultiSpanReportTest, IsNotSavedWhenTheDialogIsCancelled) {
  platform.fileAnswers = {std::nullopt};
  SaveMultiSpanReport(results, session, platform);
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace lignara
