#include <gtest/gtest.h>

#include "beam/report.h"
#include "tests/support/beam_fixture.h"
#include "tests/support/data_folder.h"

namespace lignara {
namespace {

using enum SupportType;

class BeamReport : public testing::Test {
 protected:
  Texts Lines(const Report& report) const {
    Texts lines;
    for (const Report::Item& item : report.items()) {
      if (const auto* line = std::get_if<ReportLine>(&item)) lines.push_back(line->Text());
      if (std::holds_alternative<NewPage>(item)) lines.push_back("<page>");
      if (std::holds_alternative<Drawing>(item)) lines.push_back("<drawing>");
    }
    return lines;
  }
  Texts FileLines() const { return Lines(BeamTextReport(beam.window, beam.session)); }
  Texts From(const std::string& heading, const Texts& lines) const {
    return Texts(std::find(lines.begin(), lines.end(), heading), lines.end());
  }

  TestBeam beam;
};

TEST_F(BeamReport, BeginsWithHeaderResultsAndInput) {
  beam.session.Header = {"Library", "Roof", "A. Baker", "3 May"};
  beam.Constants("1500000", "64");
  beam.window.unbraced = "4";
  beam.Point("5", "1000");
  beam.Run();
  EXPECT_EQ(FileLines(), Texts({"Library",
                                "Roof",
                                "ENGINEER: A. Baker",
                                "DATE: 3 May",
                                "",
                                "RESULTS",
                                "Code check was not run, no stress results to print.",
                                "Left Support Reaction = 500.00 lbs",
                                "Right Support Reaction = 500.00 lbs",
                                "Member axial load = 0.00 lbs",
                                "Max. Moment = 2500.00 ft-lbs",
                                "Max. Shear = 500.00 ft-lbs",
                                "Max. Deflection = 0.3750 in",
                                "INPUT DATA",
                                "Member = CUSTOM",
                                "Length = 10.00",
                                "Unbraced Length = 4.00",
                                "Youngs Modulus = 1500000.00",
                                "Moment of Inertia = 64.00 in^4",
                                "Gross Area = 1.00 in^2",
                                "Shear Area = 0.67 in^2",
                                "Section Modulus = 1.00 in^3",
                                "Member depth = 0.00 in",
                                "Member width = 0.00 in",
                                "Left support is pinned.",
                                "Right support is pinned.",
                                "Moment is about strong axis.",
                                "APPLIED LOADS",
                                "Load No. (1)",
                                "Load is point load",
                                "P = 1000.00 lbs",
                                "Location from left = 5.00"}));
}

TEST_F(BeamReport, ListsTheStressCheck) {
  beam.window.check.rows = {"ACTUAL STRESSES", "", "ALLOWABLE STRESSES"};
  const Texts lines = FileLines();
  EXPECT_EQ(Texts(lines.begin() + 5, lines.begin() + 10),
            Texts({"RESULTS", "ACTUAL STRESSES", "", "ALLOWABLE STRESSES",
                   "Left Support Reaction = 0.00 lbs"}));
}

TEST_F(BeamReport, NamesSupportsAndAxis) {
  beam.Supports(Fixed, Free);
  beam.window.beam.loadAxis = 1;
  Texts lines = From("Left support is fixed.", FileLines());
  EXPECT_EQ(
      Texts(lines.begin(), lines.begin() + 3),
      Texts({"Left support is fixed.", "Right support is free.", "Moment is about weak axis."}));
}

TEST_F(BeamReport, TellsEachKindOfLoad) {
  beam.Supports(Fixed, Fixed);
  beam.Uniform("1", "2.5", "100");
  beam.Add(LoadKind::SlopedLeftZero, {{"A", "1"}, {"B", "2"}, {"W", "90"}});
  beam.Add(LoadKind::SlopedRightZero, {{"A", "3"}, {"B", "4"}, {"W", "80"}});
  beam.Moment("6", "-50");
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "0.5"}});
  beam.Add(LoadKind::RightDisplacement, {{"Disp", "-0.25"}});
  beam.Axial("-720");
  EXPECT_EQ(From("APPLIED LOADS", FileLines()),
            Texts({"APPLIED LOADS",
                   "Load No. (1)",
                   "Load is level uniform",
                   "w = 100.00 lbs/ft",
                   "Start location from left = 1.00",
                   "Length of applied uniform load = 2.50ft",
                   "Load No. (2)",
                   "Load is sloped uniform, left side = 0 lbs/ft",
                   "Max w = 90.00 lbs/ft",
                   "Start location from left = 1.00",
                   "Length of applied uniform load = 2.00ft",
                   "Load No. (3)",
                   "Load is sloped uniform, right side = 0 lbs/ft",
                   "Max w = 80.00 lbs/ft",
                   "Start location from left = 3.00",
                   "Length of applied uniform load = 4.00ft",
                   "Load No. (4)",
                   "Load is point moment",
                   "M = -50.00 ft-lbs",
                   "Location from left = 6.00",
                   "Load No. (5)",
                   "Load is left support displacement",
                   "Left support displacement = 0.50 in",
                   "Load No. (6)",
                   "Load is right support displacement",
                   "Right support displacement = -0.25 in",
                   "Load No. (7)",
                   "Load is Axial",
                   "Axial Load = -720.00 lbs"}));
}

TEST_F(BeamReport, TakesTheSpanForABlankUnbracedLength) {
  beam.Length("12");
  EXPECT_EQ(FileLines()[15], "Length = 12.00");
  EXPECT_EQ(FileLines()[16], "Unbraced Length = 12.00");
}

TEST_F(BeamReport, PrintsTheTextThenTheDiagrams) {
  beam.Point("5", "1000");
  beam.Run();
  PrintBeamReport(beam.window, beam.session, beam.platform);
  ASSERT_EQ(beam.platform.printed.size(), 1u);
  const Texts lines = Lines(beam.platform.printed[0]);
  const Texts text = FileLines();
  EXPECT_EQ(Texts(lines.begin(), lines.begin() + static_cast<long>(text.size())), text);
  EXPECT_EQ(Texts(lines.begin() + static_cast<long>(text.size()), lines.end()),
            Texts({"<page>", "SHEAR DIAGRAM", "Max. Shear = 500.00 lbs", "<drawing>",
                   "MOMENT DIAGRAM", "Max. Moment = 2500.00 ft-lbs", "<drawing>", "DEFLECTED SHAPE",
                   "Max. Def. = 36.0000 in", "<drawing>", "BEAM SYSTEM", "<drawing>"}));
}

TEST_F(BeamReport, GoesOnBelowTheHeaderWhereItIsLong) {
  beam.session.Header.Title = "Library";
  for (int i = 0; i < 20; ++i) beam.Point("5", "1000");
  PrintBeamReport(beam.window, beam.session, beam.platform);
  const Texts lines = Lines(beam.platform.printed[0]);
  const Texts next = From("<page>", lines);
  EXPECT_EQ(Texts(next.begin(), next.begin() + 7),
            Texts({"<page>", "Library", "", "ENGINEER: ", "DATE: ", "", "APPLIED LOADS"}));
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "APPLIED LOADS"), 1);
}

TEST_F(BeamReport, RepeatsTheHeadingOfTheLoadsOnFurtherPages) {
  beam.Point("5", "1000");
  Texts heads;
  const Report report = BeamTextReport(beam.window, beam.session);
  for (const Report::Item& item : report.items()) {
    const auto* line = std::get_if<ReportLine>(&item);
    if (line != nullptr && line->heads) heads.push_back(line->Text());
  }
  EXPECT_EQ(heads, Texts({"APPLIED LOADS"}));
}

TEST_F(BeamReport, BeforeARunPrintsZerosAndNoDiagrams) {
  PrintBeamDiagrams(beam.window, beam.session, beam.platform);
  EXPECT_EQ(Lines(beam.platform.printed[0]),
            Texts({"SHEAR DIAGRAM", "Max. Shear = 0.00 lbs", "MOMENT DIAGRAM",
                   "Max. Moment = 0.00 ft-lbs", "DEFLECTED SHAPE", "Max. Def. = 0.0000 in",
                   "BEAM SYSTEM", "<drawing>"}));
}

TEST_F(BeamReport, PrintsTheDiagramsAlone) {
  beam.Point("5", "1000");
  beam.Axial("-20");
  beam.Run();
  PrintBeamDiagrams(beam.window, beam.session, beam.platform);
  Texts lines = Lines(beam.platform.printed[0]);
  EXPECT_EQ(lines.front(), "SHEAR DIAGRAM");
  EXPECT_EQ(lines.back(), "Compression Axial Load");
  SelectLoad(beam.window, 1);
  beam.window.Field(LoadField::P) = "20";
  EditLoad(beam.window, beam.platform);
  PrintBeamDiagrams(beam.window, beam.session, beam.platform);
  EXPECT_EQ(Lines(beam.platform.printed[1]).back(), "Tension Axial Load");
}

TEST_F(BeamReport, PrintsMetricUnitsOfTheDiagrams) {
  beam.session.unitSystem = 1;
  beam.Run();
  PrintBeamDiagrams(beam.window, beam.session, beam.platform);
  const Texts lines = Lines(beam.platform.printed[0]);
  EXPECT_EQ(lines[1], "Max. Shear = 0.00 N");
  EXPECT_EQ(lines[4], "Max. Moment = 0.00 N-m");
  EXPECT_EQ(lines[7], "Max. Def. = 0.0000 cm");
}

TEST_F(BeamReport, BearsTheFontOfTheSession) {
  beam.session.ReportFont.Name = "Arial";
  beam.session.ReportFont.Size = 8;
  PrintBeamReport(beam.window, beam.session, beam.platform);
  EXPECT_EQ(beam.platform.printed[0].fontName, "Arial");
  EXPECT_EQ(beam.platform.printed[0].fontSize, 8);
}

TEST_F(BeamReport, IsSavedAsText) {
  const DataFolder folder;
  beam.platform.fileAnswers = {folder.Path("beam.txt")};
  SaveBeamReport(beam.window, beam.session, beam.platform);
  EXPECT_EQ(FileBytes(folder.Path("beam.txt")),
            ReportText(BeamTextReport(beam.window, beam.session)));
  EXPECT_EQ(beam.platform.filters, Texts({"Text(*.txt)|*.txt|All(*.*)|*.*|"}));
}

TEST_F(BeamReport, IsNotSavedWhereTheUserCancels) {
  beam.platform.fileAnswers = {std::nullopt};
  SaveBeamReport(beam.window, beam.session, beam.platform);
  EXPECT_EQ(beam.Boxes(), Texts());
}

}  // namespace
}  // namespace lignara
