#include "connections/bolt_report.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/connections/opened_bolts.h"

namespace lignara {
namespace {

constexpr const char* kTension =
    "Tension Values\n"
    "Bolt Size = 3/4 in\n"
    "Allowable Bolt Steel Tensile Stress = 20 ksi\n"
    "Allowable Wood Bearing Stress = 400 psi\n"
    "\n"
    "Max. Allowable Bolt Tensile Load = 6680.00 lbs\n"
    "Min. Bearing Plate Side Length = 4.09 in\n"
    "Min. Bearing Plate Thickness = 3/8 in\n";

// 940 x 1.25 x 0.9, 430 x 0.9.
constexpr const char* kShear =
    "Shear Values\n"
    "\n"
    "Bolt Size = 1/2 in\n"
    "Allowable Load Parallel to Grain = 1057.50 lbs\n"
    "Allowable Load Perp. to Grain = 387.00 lbs\n"
    "Allowable Load at Angle 0 deg. = 1057.50 lbs\n"
    "\n"
    "Conditions\n"
    "\n"
    "This is a Double Shear Condition\n"
    "Thickness of Main member is 1.5in in\n"
    "Thickness of first minor member is 1.5 in\n"
    "Thickness of second minor member is 1.50 in\n"
    "Member is always dry.\n"
    "Connection uses side plate.\n"
    "Members are permanent.\n"
    "Wood is Douglas Fir-Larch or Southern Pine (Med. Grain)\n";

constexpr const char* kHead = "Ostrel's Lignara\n\nBolted Connections\n\n";
constexpr const char* kBlankLines = "\n\n\n";

class BoltReportTest : public OpenedBolts {
 protected:
  /// Both sections computed; the inputs stand as a user may type them.
  void ComputeBoth() {
    Enter("1.5in", "1.5", "1.50");
    window.A = "0";
    ComputeShear(window, platform);
    window.boltStress = "20";
    window.woodStress = "400";
    ChooseRod(window, platform, 3);
  }

  std::string Text(BoltReportContent content, bool printed = false) const {
    return ReportText(BoltReport(window, content, printed));
  }

  /// The lines of the file behind the heading "Conditions".
  std::string Conditions() const {
    const std::string text = Text(BoltReportContent::Both);
    const std::string heading = "Conditions\n\n";
    return text.substr(text.find(heading) + heading.size());
  }
};

TEST_F(BoltReportTest, FileHasBothSections) {
  ComputeBoth();
  EXPECT_EQ(Text(BoltReportContent::Both), std::string(kHead) + kTension + "\n" + kShear);
}

TEST_F(BoltReportTest, PrintBothIsTheFileBelowThreeBlankLines) {
  ComputeBoth();
  PrintBoltResults(window, platform);
  ASSERT_EQ(platform.printed.size(), 1U);
  EXPECT_EQ(ReportText(platform.printed[0]), kBlankLines + Text(BoltReportContent::Both));
}

TEST_F(BoltReportTest, PrintTensionEndsWithThePlateAndHasABlankBehindItsTitle) {
  ComputeBoth();
  PrintTensionResults(window, platform);
  ASSERT_EQ(platform.printed.size(), 1U);
  EXPECT_EQ(ReportText(platform.printed[0]),
            std::string("\n\n\nOstrel's Lignara \n\nBolted Connections\n\n") + kTension);
}

TEST_F(BoltReportTest, PrintShearLeavesTheTensionOut) {
  ComputeBoth();
  PrintShearResults(window, platform);
  ASSERT_EQ(platform.printed.size(), 1U);
  EXPECT_EQ(ReportText(platform.printed[0]), std::string(kBlankLines) + kHead + kShear);
}

TEST_F(BoltReportTest, AllPrintsAreInTimesNewRomanAtTheLeftEdge) {
  PrintTensionResults(window, platform);
  PrintShearResults(window, platform);
  PrintBoltResults(window, platform);
  ASSERT_EQ(platform.printed.size(), 3U);
  for (const Report& report : platform.printed) {
    EXPECT_EQ(report.fontName, "Times New Roman");
    for (const Report::Item& item : report.items()) {
      EXPECT_EQ(std::get<ReportLine>(item).emptyZones, 0U);
    }
  }
}

TEST_F(BoltReportTest, NothingComputedIsReportedAsItStands) {
  EXPECT_EQ(Text(BoltReportContent::Tension),
            "Ostrel's Lignara \n\nBolted Connections\n\n"
            "Tension Values\n"
            "Bolt Size = 3/8 in\n"
            "Allowable Bolt Steel Tensile Stress =  ksi\n"
            "Allowable Wood Bearing Stress =  psi\n"
            "\n"
            "Max. Allowable Bolt Tensile Load =  lbs\n"
            "Min. Bearing Plate Side Length =  in\n"
            "Min. Bearing Plate Thickness =  in\n");
}

TEST_F(BoltReportTest, SizesAndOptionsAreThoseChosenNow) {
  ComputeBoth();
  ChooseBolt(window, 6);
  Choose(&JointOptions::WoodType, 1);
  const std::string text = Text(BoltReportContent::Both);
  EXPECT_NE(text.find("Bolt Size = 1 1/2 in\nAllowable Load Parallel to Grain = 1057.50 lbs\n"),
            std::string::npos);
  EXPECT_TRUE(text.ends_with("Wood is Douglas Fir-Larch or Southern Pine (Dense Grain)\n"));
}

TEST_F(BoltReportTest, SingleShearHasTwoMembers) {
  ComputeBoth();
  Choose(&JointOptions::ShearKind, 1);
  EXPECT_EQ(Conditions(),
            "This is a Single Shear Condition\n"
            "Thickness of main member is 1.5in in\n"
            "Thickness of second member is 1.5 in\n"
            "Member is always dry.\n"
            "Connection uses side plate.\n"
            "Members are permanent.\n"
            "Wood is Douglas Fir-Larch or Southern Pine (Med. Grain)\n");
}

struct LineCase {
  std::int16_t JointOptions::*option;
  int choice;
  const char* line;
};

TEST_F(BoltReportTest, EachChoiceHasItsLine) {
  const LineCase cases[] = {
      {&JointOptions::Moisture, 0, "Member is always dry."},
      {&JointOptions::Moisture, 1, "Member is always wet."},
      {&JointOptions::SidePlates, 0, "Connection uses side plate."},
      {&JointOptions::SidePlates, 1, "Connection does not us side plates."},
      {&JointOptions::Duration, 0, "Members are permanent."},
      {&JointOptions::Duration, 1, "Members are in place for 10 years."},
      {&JointOptions::Duration, 2, "Members are in place for 2 months."},
      {&JointOptions::Duration, 3, "Members are in place for 7 days."},
      {&JointOptions::Duration, 4, "Members are designed for Impact."},
      {&JointOptions::Duration, 5, "Members are designed for Wind or Earthquake."},
      {&JointOptions::WoodType, 0, "Wood is Douglas Fir-Larch or Southern Pine (Med. Grain)"},
      {&JointOptions::WoodType, 1, "Wood is Douglas Fir-Larch or Southern Pine (Dense Grain)"},
      {&JointOptions::WoodType, 2, "Wood is Southern Pine (Open Grain)"},
  };
  for (const LineCase& c : cases) {
    Choose(c.option, c.choice);
    EXPECT_NE(Conditions().find(std::string("\n") + c.line + "\n"), std::string::npos) << c.line;
  }
}

TEST_F(BoltReportTest, SometimesWetHasNoLine) {
  Choose(&JointOptions::Moisture, 2);
  EXPECT_EQ(Conditions().find("wet"), std::string::npos);
  EXPECT_NE(Conditions().find("Thickness of second minor member is  in\n"
                              "Connection uses side plate.\n"),
            std::string::npos);
}

TEST_F(BoltReportTest, SaveWritesTheFile) {
  DataFolder folder;
  ComputeBoth();
  platform.fileAnswers.push_back(folder.Path("bolts.txt"));
  SaveBoltResults(window, platform);
  EXPECT_EQ(FileBytes(folder.Path("bolts.txt")), Text(BoltReportContent::Both));
  EXPECT_EQ(platform.filters, std::vector<std::string>{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BoltReportTest, CancelledDialogWritesNothing) {
  DataFolder folder;
  platform.fileAnswers.push_back(std::nullopt);
  SaveBoltResults(window, platform);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("")));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BoltReportTest, FileThatCannotBeWrittenIsShownInABox) {
  DataFolder folder;
  platform.fileAnswers.push_back(folder.Path("nowhere/bolts.txt"));
  SaveBoltResults(window, platform);
  EXPECT_EQ(platform.TakeTexts(), std::vector<std::string>{folder.Path("nowhere/bolts.txt") +
                                                           ": No such file or directory"});
}

}  // namespace
}  // namespace lignara
