#include "truss/report.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/reported_truss.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// The lines between a heading and the next line that equals `end`.
Texts Section(const Texts& lines, const std::string& heading, const std::string& end) {
  const auto first = std::find(lines.begin(), lines.end(), heading);
  EXPECT_NE(first, lines.end()) << heading;
  return {first + 1, std::find(first + 1, lines.end(), end)};
}

/// The first column of the rows of a section.
Texts RowNames(const Texts& lines, const std::string& heading, const std::string& end) {
  Texts names;
  for (const std::string& line : Section(lines, heading, end)) {
    const std::string name = line.substr(0, kPrintZone);
    names.push_back(name.substr(0, name.find_last_not_of(' ') + 1));
  }
  return names;
}

/// The words before " = " of the rows of a list that stands between two blank lines.
Texts Labels(const Texts& lines, const std::string& heading, const std::string& end) {
  Texts labels;
  for (const std::string& line : Section(lines, heading, end)) {
    if (!line.empty()) labels.push_back(line.substr(0, line.find(" = ")));
  }
  return labels;
}

// King post, 16 ft by 6 ft: rafters of sqrt(8^2 + 6^2) = 10 ft. Under 1200 lbs each support takes
// 600; the tie 600 x 8 / 6 = 800, the rafters 600 x 10 / 6 = 1000 lbs. Deflection with A = 10 in^2
// and E = 1e6 psi, unit forces 5/6 and 2/3: 2 x (1000 x 5/6 x 10 + 800 x 2/3 x 8) x 12 / 1e7 =
// 0.03024 in. Stresses 1000 / 10 and 800 / 10 psi; allowable the lesser of 1200 and 1400; bracing
// at 1.5 x 50 / 12 = 6.25 ft.
TEST(TrussReport, KingPostLetterForLetter) {
  OpenedTruss truss = AfterRun("KINGPOST", 4, 16, 6);
  truss.session.ReportTitle = "Barn";
  truss.session.ReportDescription = "North wing";
  truss.session.LastWoodTypes = "Douglas Fir-Larch";
  truss.session.LastGrade = "No. 1";
  const std::string expected =
      "\n"
      "TITLE:   Barn\n"
      "DESCRIPTION:   North wing\n"
      "TRUSS TYPE IS: KING POST TRUSS\n"
      "\n"
      "MEMBER INFORMATION\n"
      "\n"
      "Note, if Area = 10000 then no member types were selected.\n"
      "MEMBER        TYPE          AREA          LENGTH        AXIAL\n"
      "                            in^2          ft            LOAD(lb)\n"
      "TOP MEMBERS\n"
      "TL 1          2X6           10.0          10.0          1000.0\n"
      "TR 1          2X6           10.0          10.0          1000.0\n"
      "BOTTOM MEMBERS\n"
      "CL 1          2X6           10.0          8.0           800.0\n"
      "CR 1          2X6           10.0          8.0           800.0\n"
      "DIAGONAL MEMBERS\n"
      "VERT. MEMBERS\n"
      "CV            2X6           10.0          6.0           0.0\n"
      "\n"
      "TITLE:   Barn\n"
      "DESCRIPTION:   North wing\n"
      "\n"
      "APPLIED LOADS (LBS)\n"
      "\n"
      "TN = 1200.0\n"
      "\n"
      "TRUSS END REACTIONS\n"
      "\n"
      // 15 characters run into the second zone, so R2 starts in the third.
      "R1 = 600.00 lbs             R2 = 600.00 lbs\n"
      "\n"
      "DEFLECTIONS (in)\n"
      "\n"
      "TN = 0.0302\n"
      "WOOD TYPE\n"
      "\n"
      "WOOD TYPE IS: Douglas Fir-Larch\n"
      "GRADE IS: No. 1\n"
      "\n"
      "REVIEW OF STRESSES\n"
      "\n"
      "\n"
      "TL1\n"
      "Actual Stress =  100.00 psi\n"
      "Allowable axial stress = 1200.00 psi with full lateral bracing.\n"
      "Assumes min. lateral bracing of 6.25 ft\n"
      "TR1\n"
      "Actual Stress = 100.00 psi\n"
      "Allowable axial stress = 1200.00 psi with full lateral bracing.\n"
      "Assumes min. lateral bracing of 6.25 ft\n"
      "CL1\n"
      "Actual Stress = 80.00 psi\n"
      "Allowable axial stress = 1200.00 psi with full lateral bracing.\n"
      "Assumes min. lateral bracing of 6.25 ft\n"
      "CR1\n"
      "Actual Stress = 80.00 psi)\n"
      "Allowable axial stress = 1200.00 psi with full lateral bracing.\n"
      "Assumes min. lateral bracing of 6.25 ft\n"
      "CV\n"
      "Actual Stress = 0.00 psi\n"
      "Allowable axial stress = 1200.00 psi with full lateral bracing.\n"
      "Assumes min. lateral bracing of 6.25 ft\n";
  EXPECT_EQ(ReportText(TRUSS_FILE(truss.window, truss.session)), expected);
}

TEST(TrussReport, TypeLineHasTheTitleOfTheType) {
  for (const TrussTypeInfo& type : TrussTypes()) {
    OpenedTruss truss = Example(type.keyword);
    EXPECT_EQ(FileLines(truss)[3], "TRUSS TYPE IS: " + type.title);
  }
}

TEST(TrussReport, EmptyTitleKeepsItsThreeBlanks) {
  OpenedTruss truss = Example("PRATT1");
  const Texts lines = FileLines(truss);
  EXPECT_EQ(lines[1], "TITLE:   ");
  EXPECT_EQ(lines[2], "DESCRIPTION:   ");
}

struct MemberRows {
  const char* type;
  Texts diagonal, vertical;
};

TEST(TrussReport, RowsOfDiagonalsAndVerticalsByType) {
  const MemberRows rows[] = {
      {"PRATT1", {"DL 2", "DL 3", "DR 2", "DR 3"}, {"VL 1", "VL 2", "VR 1", "VR 2"}},
      {"FINK", {"DL 2", "DL 3", "DR 2", "DR 3"}, {"VL 1", "VL 2", "VR 1", "VR 2"}},
      {"ENGLISH",
       {"DL 1", "DL 2", "DL 3", "DR 1", "DR 2", "DR 3"},
       {"VL 1", "VL 2", "VL 3", "VR 1", "VR 2", "VR 3", "CV"}},
      {"KINGPOST", {}, {"CV"}},
      {"SCI", {}, {"VL 1", "VR 1", "CV"}},
      {"PRATT2", {"DL 2", "DL 3", "DR 2", "DR 3"}, {"VL 1", "VL 2", "VR 1", "VR 2", "CV"}},
      {"HOWE", {"DL 2", "DL 3", "DR 2", "DR 3"}, {"VL 1", "VL 2", "VR 1", "VR 2", "CV"}},
      {"WARREN", {"DL 2", "DL 3", "DR 2", "DR 3"}, {"VL 1", "VR 1"}},
  };
  for (const MemberRows& row : rows) {
    OpenedTruss truss = Example(row.type);
    const Texts lines = FileLines(truss);
    EXPECT_EQ(RowNames(lines, "DIAGONAL MEMBERS", "VERT. MEMBERS"), row.diagonal) << row.type;
    EXPECT_EQ(RowNames(lines, "VERT. MEMBERS", ""), row.vertical) << row.type;
  }
}

TEST(TrussReport, RowsOfChords) {
  OpenedTruss panels = Example("HOWE");
  Texts lines = FileLines(panels);
  EXPECT_EQ(RowNames(lines, "TOP MEMBERS", "BOTTOM MEMBERS"),
            (Texts{"TL 1", "TL 2", "TL 3", "TR 1", "TR 2", "TR 3"}));
  EXPECT_EQ(RowNames(lines, "BOTTOM MEMBERS", "DIAGONAL MEMBERS"),
            (Texts{"CL 1", "CL 2", "CL 3", "CR 1", "CR 2", "CR 3"}));
  OpenedTruss scissors = Example("SCI");
  lines = FileLines(scissors);
  EXPECT_EQ(RowNames(lines, "TOP MEMBERS", "BOTTOM MEMBERS"),
            (Texts{"TL 1", "TR 1", "TL 2", "TR 2"}));
  EXPECT_EQ(RowNames(lines, "BOTTOM MEMBERS", "DIAGONAL MEMBERS"), (Texts{"CL 1", "CR 1"}));
}

TEST(TrussReport, RowsTakeSizeAndAreaOfTheMembersGroup) {
  OpenedTruss truss = Example("PRATT1");
  const std::pair<MemberGroup, const char*> sizes[] = {{MemberGroup::Top, "2X4"},
                                                       {MemberGroup::Bottom, "2X8"},
                                                       {MemberGroup::Vertical, "4X4"},
                                                       {MemberGroup::Diagonal, "GLU-LAM 14 ch."}};
  double area = 5.25;
  for (const auto& [group, size] : sizes) {
    truss.session.Member.Group(group).GroupSizeName = size;
    truss.session.Member.Group(group).GroupArea = area;
    area += 5;
  }
  truss.model().LEN_TL[1] = 5.55;
  truss.model().AX_TL[1] = -1234.56;
  truss.model().LEN_DL[2] = 8.25;
  truss.model().AX_DL[2] = 77;
  const Texts lines = FileLines(truss);
  EXPECT_EQ(Section(lines, "TOP MEMBERS", "BOTTOM MEMBERS")[0],
            "TL 1          2X4           5.3           5.6           1234.6");
  EXPECT_EQ(Section(lines, "BOTTOM MEMBERS", "DIAGONAL MEMBERS")[0].substr(14, 18),
            "2X8           10.3");
  EXPECT_EQ(Section(lines, "VERT. MEMBERS", "")[0].substr(14, 18), "4X4           15.3");
  // A name of 14 characters fills its zone and pushes the area into the next but one.
  EXPECT_EQ(Section(lines, "DIAGONAL MEMBERS", "VERT. MEMBERS")[0],
            "DL 2          GLU-LAM 14 ch.              20.3          8.3           77.0");
}

TEST(TrussReport, LoadsAndDeflectionsListLeftThenRightThenPeak) {
  const NodeLabels rows[] = {
      {"PRATT1", 6, {"LN 1", "LN 2", "RN 1", "RN 2", "TN"}},
      {"ENGLISH", 4, {"LN 1", "RN 1", "TN"}},
      {"FINK", 4, {"LN 1", "RN 1", "TN"}},
      {"KINGPOST", 4, {"TN"}},
      {"SCI", 4, {"LN1", "RN1", "TN"}},
      {"PRATT2", 4, {"LN 1", "LN 2", "RN 1", "RN 2", "TN"}},
      {"HOWE", 4, {"LN 1", "LN 2", "RN 1", "RN 2", "TN"}},
      {"WARREN", 8, {"LN 0", "LN 1", "RN 0", "RN 1", "TN"}},
      {"WARREN", 6, {"LN 0", "LN 1", "RN 0", "RN 1"}},
  };
  for (const NodeLabels& row : rows) {
    OpenedTruss truss = AfterRun(row.type, row.spans, 30, 7.5, 3);
    const Texts lines = FileLines(truss);
    EXPECT_EQ(Labels(lines, "APPLIED LOADS (LBS)", "TRUSS END REACTIONS"), row.labels) << row.type;
    EXPECT_EQ(Labels(lines, "DEFLECTIONS (in)", "WOOD TYPE"), row.labels) << row.type;
  }
}

TEST(TrussReport, LoadsHaveOneAndDeflectionsFourDecimals) {
  OpenedTruss truss = AfterRun("PRATT2", 4, 30, 7.5);
  truss.model().PL[1] = 100.25;
  truss.model().PR[2] = -50;
  truss.model().DeflL[1] = 0.12345;
  truss.model().DeflR[2] = -0.00004;
  truss.model().DeflT[1] = 1;
  const Texts lines = FileLines(truss);
  EXPECT_EQ(
      Section(lines, "APPLIED LOADS (LBS)", "TRUSS END REACTIONS"),
      (Texts{"", "LN 1 = 100.3", "LN 2 = 0.0", "RN 1 = 0.0", "RN 2 = -50.0", "TN = 1200.0", ""}));
  const Texts deflections = Section(lines, "DEFLECTIONS (in)", "WOOD TYPE");
  EXPECT_EQ(deflections[1], "LN 1 = 0.1235");
  EXPECT_EQ(deflections[4], "RN 2 = 0.0000");
  EXPECT_EQ(deflections[5], "TN = 1.0000");
}

// The deflections leave the reactions of the last unit load in the model.
TEST(TrussReport, ReactionsAreTheTextsOnTheScreen) {
  OpenedTruss truss = Example("PRATT1");
  truss.window.leftReaction = "12345678.90";
  truss.window.rightReaction = "2.00";
  EXPECT_EQ(Section(FileLines(truss), "TRUSS END REACTIONS", "DEFLECTIONS (in)"),
            (Texts{"", "R1 = 12345678.90 lbs        R2 = 2.00 lbs", ""}));
}

TEST(TrussReport, StressLinesStandAsInTheList) {
  OpenedTruss truss = Example("PRATT1");
  truss.window.stressRows = {"", "(TL 1)", "Actual Stress = 1.00 psi"};
  const Texts lines = FileLines(truss);
  EXPECT_EQ(Section(lines, "REVIEW OF STRESSES", "no such line"),
            (Texts{"", "", "(TL 1)", "Actual Stress = 1.00 psi"}));
}

float AreaOf(const OpenedTruss& truss, MemberGroup group) {
  return truss.session.Member.Group(group).GroupArea.value();
}

constexpr MemberGroup kGroups[] = {MemberGroup::Top, MemberGroup::Bottom, MemberGroup::Vertical,
                                   MemberGroup::Diagonal};

// Top's area is set to 0 after the run.
TEST(NoMemberRule, ShowsAreasOf10000AndLeavesZeros) {
  OpenedTruss truss = Example("PRATT1");
  truss.session.Member.Group(MemberGroup::Top).GroupArea = 0;
  for (const std::string& line : FileLines(truss)) {
    if (line.find("2X6") != std::string::npos) {
      EXPECT_EQ(line.substr(28, 14), "10000.0       ");
    }
  }
  for (const MemberGroup group : kGroups) EXPECT_EQ(AreaOf(truss, group), 0.0f);
}

TEST(NoMemberRule, AsksTheTopGroupAlone) {
  OpenedTruss truss = Example("PRATT1");
  for (const MemberGroup group : kGroups) {
    if (group != MemberGroup::Top) truss.session.Member.Group(group).GroupArea = 0;
  }
  const Texts lines = FileLines(truss);
  EXPECT_EQ(Section(lines, "TOP MEMBERS", "BOTTOM MEMBERS")[0].substr(28, 4), "10.0");
  EXPECT_EQ(Section(lines, "BOTTOM MEMBERS", "DIAGONAL MEMBERS")[0].substr(28, 4), "0.0 ");
  EXPECT_EQ(AreaOf(truss, MemberGroup::Top), 10.0f);
}

TEST(NoMemberRule, RealTopAreaOf10000IsSetToZero) {
  OpenedTruss truss = Example("PRATT1");
  truss.session.Member.Group(MemberGroup::Top).GroupArea = 10000;
  FileLines(truss);
  for (const MemberGroup group : kGroups) EXPECT_EQ(AreaOf(truss, group), 0.0f);
}

TEST(NoMemberRule, HoldsOnPaperToo) {
  OpenedTruss truss = Example("PRATT1");
  truss.session.Member.Group(MemberGroup::Top).GroupArea = 0;
  PrintTruss(truss.window, truss.session, truss.platform);
  EXPECT_NE(ReportText(truss.platform.printed.at(0)).find("10000.0"), std::string::npos);
  EXPECT_EQ(AreaOf(truss, MemberGroup::Bottom), 0.0f);
}

}  // namespace
}  // namespace lignara
