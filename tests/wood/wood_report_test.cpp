#include "wood/wood_report.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// A print zone of blanks.
const std::string kZone(14, ' ');

/// A window with a grade and all of the panel's state in it.
WoodDataBaseWindow FilledWindow() {
  WoodDataBaseWindow window;
  RecordingPlatform platform;
  window.DataBaseFamily = WoodFamily::Western;
  window.woodTypes = "Douglas Fir-Larch, Douglas Fir";
  window.selection = {"No.2", "900.00", "575.00", "95.00", "625.00", "1350.00", "1600000"};
  OpenFactorPanel(window, platform);
  ChooseFactorRow(window, platform, FactorList::Width, 3);           // 6 in
  ChooseFactorRow(window, platform, FactorList::LoadDuration, 3);    // 1.15
  ChooseFactorRow(window, platform, FactorList::ShearCondition, 2);  // 1.33
  AnswerFactorPair(window, platform, FactorPair::RepetitiveUse, true);
  AnswerFactorPair(window, platform, FactorPair::FlatUse, true);  // 1.15
  AnswerFactorPair(window, platform, FactorPair::Moisture, true);
  CalculateFactors(window, platform);
  return window;
}

// Fb 1.15 x 1.3 x 1.15 x 1.15 x 0.85 = 1.68; Ft 1.3 x 1.15 = 1.495; Fc along the grain
// 1.1 x 1.15 x 0.8 = 1.012; Fc across 0.67; E 0.9. The Fv multiplier (1.48) does not appear.
constexpr const char* kFile =
    "DESIGN INPUT INFORMATION\n"
    "\n"
    "FINAL ALLOWABLE STRESSES\n"
    "\n"
    "Fb            Fv            Ft            Fa            Fa\n"
    "                                          parallel      across\n"
    "\n"
    "900.00        95.00         575.00        1350.00       625.00\n"
    "\n"
    "MEMBER INPUT INFORMATION\n"
    "\n"
    "MEMBER WIDTH = 6 in\n"
    "MEMBER THICKNESS = 2 or 3 in\n"
    "GRADE = Select\n"
    "LOAD DURATION = 2 mo (snow)\n"
    "SHEAR CONDITION = Split < 1/2 thru\n"
    "TYPE = Douglas Fir-Larch, Douglas Fir\n"
    "\n"
    "INDIVIDUAL ADJUSTMENT FACTORS\n"
    "REPETATIVE USE: 1.2\n"
    "SIZE, BENDING: 1.3\n"
    "LOAD DURATION: 1.2\n"
    "FLAT USE: 1.2\n"
    "WET USE, BENDING: 0.9\n"
    "SIZE, TENSION: 1.3\n"
    "SHEAR CONDITION: 1.3\n"
    "WET USE, SHEAR: 1.0\n"
    "SIZE, AXIAL PARALLEL TO GRAIN: 1.1\n"
    "WET USE, AXIAL PARALLEL TO GRAIN: 0.8\n"
    "WET USE, AXIAL PERP. TO GRAIN: 0.7\n"
    "WET USE, YOUNGS MOD.: 0.9\n"
    "\n"
    "FINAL STRESS MULTIPLIERS, COMBINATION OF ABOVE FACTORS\n"
    "\n"
    "Fb            Fv            Ft            Fa            Fa            E\n"
    "                                          parallel      across\n"
    "\n"
    "1.7           1.7           1.5           1.0           0.7           0.9\n"
    "\n";

/// The same report on paper: ten lines ahead, and every line that is not blank one zone further in.
std::string Printed(const std::string& file) {
  std::string text(10, '\n');
  std::istringstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    text += (line.empty() ? "" : kZone + line) + "\n";
  }
  return text;
}

TEST(WoodReport, FileFormLetterForLetter) {
  EXPECT_EQ(ReportText(WoodReport(FilledWindow(), WoodReportForm::File)), kFile);
}

TEST(WoodReport, PrintedFormLetterForLetter) {
  EXPECT_EQ(ReportText(WoodReport(FilledWindow(), WoodReportForm::Printed)), Printed(kFile));
}

TEST(WoodReport, PrintedFormHasTimesAt10Points) {
  const Report report = WoodReport(FilledWindow(), WoodReportForm::Printed);
  EXPECT_EQ(report.fontName, "Times New Roman");
  EXPECT_EQ(report.fontSize, 10);
}

TEST(WoodReport, BeforeThePanelWasOpened) {
  const std::string empty = kZone + kZone + kZone + kZone;  // five empty values
  const std::string expected =
      "DESIGN INPUT INFORMATION\n\nFINAL ALLOWABLE STRESSES\n\n"
      "Fb            Fv            Ft            Fa            Fa\n"
      "                                          parallel      across\n\n" +
      empty +
      "\n\nMEMBER INPUT INFORMATION\n\nMEMBER WIDTH = \nMEMBER THICKNESS = \nGRADE = \n"
      "LOAD DURATION = \nSHEAR CONDITION = \nTYPE = \n\n"
      "INDIVIDUAL ADJUSTMENT FACTORS\nREPETATIVE USE: 0.0\nSIZE, BENDING: 0.0\n"
      "LOAD DURATION: 0.0\nFLAT USE: 0.0\nWET USE, BENDING: 0.0\nSIZE, TENSION: 0.0\n"
      "SHEAR CONDITION: 0.0\nWET USE, SHEAR: 0.0\nSIZE, AXIAL PARALLEL TO GRAIN: 0.0\n"
      "WET USE, AXIAL PARALLEL TO GRAIN: 0.0\nWET USE, AXIAL PERP. TO GRAIN: 0.0\n"
      "WET USE, YOUNGS MOD.: 0.0\n\n"
      "FINAL STRESS MULTIPLIERS, COMBINATION OF ABOVE FACTORS\n\n"
      "Fb            Fv            Ft            Fa            Fa            E\n"
      "                                          parallel      across\n\n"
      "0.0           0.0           0.0           0.0           0.0           0.0\n\n";
  EXPECT_EQ(ReportText(WoodReport(WoodDataBaseWindow(), WoodReportForm::File)), expected);
}

TEST(WoodReport, BlankRowsHaveEmptyTexts) {
  WoodDataBaseWindow window = FilledWindow();
  RecordingPlatform platform;
  ChooseFactorRow(window, platform, FactorList::Width, 0);
  const std::string text = ReportText(WoodReport(window, WoodReportForm::File));
  EXPECT_NE(text.find("\nMEMBER WIDTH = \n"), std::string::npos);
}

TEST(WoodReport, RefusedCalculationShowsTheBoxesItStored) {
  WoodDataBaseWindow window = FilledWindow();
  RecordingPlatform platform;
  window.panel.flatUse = "0";
  window.panel.repetitive = "2.5";
  CalculateFactors(window, platform);
  const std::string text = ReportText(WoodReport(window, WoodReportForm::File));
  EXPECT_NE(text.find("\nREPETATIVE USE: 2.5\n"), std::string::npos);
  EXPECT_NE(text.find("\nFLAT USE: 0.0\n"), std::string::npos);
  // The multipliers are still those of the last calculation.
  EXPECT_NE(text.find("\n1.7           1.7           1.5  "), std::string::npos);
}

TEST(WoodReport, PrintHidesNothingOfAClosedPanel) {
  WoodDataBaseWindow window = FilledWindow();
  RecordingPlatform platform;
  CancelFactors(window);
  PrintWoodReport(window, platform);
  ASSERT_EQ(platform.printed.size(), 1U);
  EXPECT_EQ(ReportText(platform.printed[0]), Printed(kFile));
}

TEST(WoodReport, SaveReplacesTheChosenFile) {
  DataFolder folder;
  folder.Write("report.txt", std::string(5000, 'x'));
  RecordingPlatform platform;
  platform.fileAnswers = {folder.Path("report.txt")};
  SaveWoodReport(FilledWindow(), platform);
  EXPECT_EQ(platform.filters, Texts{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
  EXPECT_EQ(FileBytes(folder.Path("report.txt")), kFile);
  EXPECT_TRUE(platform.messages.empty());
}

TEST(WoodReport, CancelOfTheSaveDialogWritesNothing) {
  RecordingPlatform platform;
  platform.fileAnswers = {std::nullopt};
  SaveWoodReport(FilledWindow(), platform);
  EXPECT_EQ(platform.filters.size(), 1U);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(platform.printed.empty());
}

}  // namespace
}  // namespace lignara
