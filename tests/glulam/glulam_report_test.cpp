#include "glulam/glulam_report.h"

#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

class GlulamReportTest : public GlulamTest {
 protected:
  GlulamReportTest() { LoadDouglasFir(); }

  std::string Text() { return ReportText(GlulamReport(window, session)); }
  bool Has(const std::string& line) {
    return ("\n" + Text()).find("\n" + line + "\n") != std::string::npos;
  }
};

TEST_F(GlulamReportTest, LetterForLetter) {
  Press("2 Month");
  Press("Uniform");
  Enter("10.5", "12", " 6 ");
  EXPECT_EQ(Text(),
            "\n\n\n"
            "E-Rated Southern Pine\n"
            "\n"
            "Combination Symbol = 24F-V4\n"
            "Species outer layer/core layer = DF/DF\n"
            "\n"
            "USE CONDITIONS\n"
            "Wood is considered Dry.\n"
            "Load duration is 2 months.\n"
            "Main load configuration is uniform.\n"
            "\n"
            "SLENDERNESS DATA\n"
            "Assumed unbraced length is 10.5 ft\n"
            "Depth = 12 in\n"
            "Width =  6  in\n"
            "\n"
            "ALLOWABLES\n"
            "Allowable bending stress in tension zone = 2760.00 psi\n"
            "Allowable bending stress in compression zone = 2128.00 psi\n"
            "Compression stress perp. to grain, tension face = 748.00 psi\n"
            "Compression stress perp. to grain, compression face = 748.00 psi\n"
            "Horizontal Shear stress = 305.00 psi\n"
            "Modulus of Elasticity to be used for bending about strong axis = 1800000.00 psi\n"
            "Allowable bending stress about the weak axis = 1668.00 psi\n"
            "Allowable compression perp. to grain in the weak axis = 560.00 psi\n"
            "Horizontal Shear stress in the weak axis = 265.00 psi\n"
            "Horizontal shear stress, when there is no edge glue = 106.00 psi\n"
            "Modulus of Elasticity to be used for bending about weak axis = 1600000.00 psi\n"
            "Allowable tension stress, parallel to grain = 1265.00 psi\n"
            "Allowable compression stress, parallel to grain = 1898.00 psi\n"
            "Modulus of Elasticity to be used with axial loads = 1840000.00 psi\n");
}

TEST_F(GlulamReportTest, WetUse) {
  ChooseWetUse();
  EXPECT_TRUE(Has("Wood is considered Wet."));
  EXPECT_FALSE(Has("Wood is considered Dry."));
}

TEST_F(GlulamReportTest, ALineForEachDuration) {
  const std::vector<std::pair<const char*, const char*>> lines = {
      {"> 10 yr.", "Load duration is over 10 years."},
      {"2 Month", "Load duration is 2 months."},
      {"7 Day", "Load duration is 7 days."},
      {"Wind/Earth Qk.", "Load type is Wind or Earthquake."},
      {"Impact", "Load type is impact."}};
  for (const auto& [caption, line] : lines) {
    Press(caption);
    EXPECT_TRUE(Has(line)) << line;
  }
}

TEST_F(GlulamReportTest, NoLineWithoutADurationAndPointLoadsWithoutALoadType) {
  EXPECT_NE(Text().find("Wood is considered Dry.\n"
                        "Main load configuration is multiple point loads.\n"
                        "\n"),
            std::string::npos);
}

TEST_F(GlulamReportTest, ALineForEachLoadType) {
  const std::vector<std::pair<const char*, const char*>> lines = {
      {"Single Consentrated", "Main load configuration is single consentrated."},
      {"Uniform", "Main load configuration is uniform."},
      {"1/3 Point Consentrated", "Main load configuration is multiple point loads."}};
  for (const auto& [caption, line] : lines) {
    Press(caption);
    EXPECT_TRUE(Has(line)) << line;
  }
}

TEST_F(GlulamReportTest, EachFileByItsName) {
  const std::vector<const char*> names = {"Visually Graded Western Species",
                                          "E-Rated Western Species",
                                          "Visually graded Southern Pine", "E-Rated Southern Pine"};
  for (int option = 1; option <= 4; ++option) {
    LoadCombinationFile(window, session, platform, option);
    EXPECT_TRUE(Has(names[static_cast<std::size_t>(option) - 1]));
  }
}

TEST_F(GlulamReportTest, BeforeTheFirstFileTheNamesAndValuesAreBlank) {
  session.GlulamCombinations = GlulamCombinationTable();
  OpenGlulamWindow(window, session, platform);
  const std::string text = Text();
  EXPECT_EQ(text.find("\n\n\n\n\nCombination Symbol = \nSpecies outer layer/core layer = \n\n"),
            0U);
  EXPECT_TRUE(Has("Assumed unbraced length is 0.00 ft"));
  EXPECT_TRUE(Has("Horizontal Shear stress =  psi"));
}

TEST_F(GlulamReportTest, IsPrintedOnOnePageInTimesAtTenPoints) {
  session.ReportFont.Name = "Arial";
  session.ReportFont.Size = 8;
  PrintGlulamReport(window, session, platform);
  ASSERT_EQ(platform.printed.size(), 1U);
  const Report& report = platform.printed[0];
  EXPECT_EQ(report.fontName, "Times New Roman");
  EXPECT_EQ(report.fontSize, 10);
  EXPECT_EQ(ReportText(report), Text());
  for (const Report::Item& item : report.items()) {
    EXPECT_TRUE(std::holds_alternative<ReportLine>(item));
  }
}

TEST_F(GlulamReportTest, IsSavedToTheChosenFile) {
  platform.fileAnswers.push_back(folder.Path("report.txt"));
  SaveGlulamReport(window, session, platform);
  EXPECT_EQ(platform.filters, std::vector<std::string>{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
  EXPECT_EQ(FileBytes(folder.Path("report.txt")), Text());
}

TEST_F(GlulamReportTest, ACancelledDialogLeavesNoFile) {
  platform.fileAnswers.push_back(std::nullopt);
  SaveGlulamReport(window, session, platform);
  EXPECT_EQ(FileBytes(folder.Path("report.txt")), "");
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace lignara
