#include "wood/wood_data_base_window.h"

#include <gtest/gtest.h>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// A window over a data directory of its own with small files.
class WoodDataBaseTest : public testing::Test {
 protected:
  WoodDataBaseTest() {
    folder.Write("WWTRK.CSV", "2\nHem-Fir,HF.CSV\n\"Fir, dense\",FIR.CSV\n");
    folder.Write("SPTRK.CSV", "1\nSouthern Pine 8 in. wide,PINE.CSV\n");
    folder.Write("MSRTRK.CSV", "1\nMachine,NOWHERE.CSV\n");
    folder.Write(
        "HF.CSV",
        "2\nHem-Fir\nNoble Fir\n"
        "2\nNo.1,975.125,625.5,75,405.004,1350,1500000.5\nNo.2,850,525,76,406,1300,1300000\n");
    folder.Write("FIR.CSV", "1\nFir\n1\nDense,1,2,3,4,5,6\n");
    session.DataDirectory = folder.DataDirectory();
    OpenWoodDataBase(window);
  }

  void PickGrade(int row) {
    ChooseFamily(window, session, platform, WoodFamily::Western);
    ChooseSpeciesFile(window, session, platform, 1);
    ChooseGrade(window, session, platform, row);
  }

  DataFolder folder;
  SessionState session;
  RecordingPlatform platform;
  WoodDataBaseWindow window;
};

void ExpectSelection(const FinalSelection& selection, const Texts& expected) {
  EXPECT_EQ((Texts{selection.grade, selection.fb, selection.ft, selection.fv, selection.fcPerp,
                   selection.fcPar, selection.e}),
            expected);
}

const Texts kNothing(7);

TEST_F(WoodDataBaseTest, OpensWithEmptyListsAndNoFamily) {
  EXPECT_EQ(window.DataBaseFamily, WoodFamily::None);
  EXPECT_EQ(window.files.rows, Texts{});
  EXPECT_EQ(window.grades.rows, Texts{});
  EXPECT_EQ(window.woodTypes, "");
  EXPECT_FALSE(window.panel.open);
  ExpectSelection(window.selection, kNothing);
}

TEST_F(WoodDataBaseTest, OpeningAgainForgetsAll) {
  PickGrade(1);
  OpenFactorPanel(window, platform);
  CalculateFactors(window, platform);
  OpenWoodDataBase(window);
  EXPECT_EQ(window.files.rows, Texts{});
  EXPECT_EQ(window.panel.MultiplierText(StressKind::Fb), "");
  ExpectSelection(window.selection, kNothing);
}

TEST_F(WoodDataBaseTest, FamilyButtonsAndTheirFiles) {
  const std::array<Texts, 3> expected = {{{"Western Woods", "WWTRK.CSV"},
                                          {"Southern Pine", "SPTRK.CSV"},
                                          {"Machine Rated", "MSRTRK.CSV"}}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(static_cast<std::size_t>(kWoodFamilies[i].family), i + 1);
    EXPECT_EQ((Texts{kWoodFamilies[i].caption, kWoodFamilies[i].indexFile}), expected[i]);
  }
}

TEST_F(WoodDataBaseTest, FamilyFillsTheFileListBehindABlankRow) {
  ChooseFamily(window, session, platform, WoodFamily::Western);
  EXPECT_EQ(window.DataBaseFamily, WoodFamily::Western);
  EXPECT_EQ(window.files.rows, (Texts{"", "Hem-Fir", "Fir, dense"}));
  EXPECT_EQ(window.files.row, -1);
  ChooseFamily(window, session, platform, WoodFamily::SouthernPine);
  EXPECT_EQ(window.DataBaseFamily, WoodFamily::SouthernPine);
  EXPECT_EQ(window.files.rows, (Texts{"", "Southern Pine 8 in. wide"}));
  ChooseFamily(window, session, platform, WoodFamily::MachineRated);
  EXPECT_EQ(window.files.rows, (Texts{"", "Machine"}));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WoodDataBaseTest, FamilyClearsBothListsButNotTheSelection) {
  PickGrade(2);
  ChooseFamily(window, session, platform, WoodFamily::SouthernPine);
  EXPECT_EQ(window.grades.rows, Texts{});
  EXPECT_EQ(window.grades.row, -1);
  EXPECT_EQ(window.files.row, -1);
  EXPECT_EQ(window.selection.grade, "No.2");
}

TEST_F(WoodDataBaseTest, FamilyWithoutIndexFileShowsTheFaultAndTheBlankRow) {
  std::remove(folder.Path("WWTRK.CSV").c_str());
  ChooseFamily(window, session, platform, WoodFamily::Western);
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open WWTRK.CSV in " + folder.Folder()});
  EXPECT_EQ(window.DataBaseFamily, WoodFamily::Western);
  EXPECT_EQ(window.files.rows, Texts{""});
  ChooseSpeciesFile(window, session, platform, 0);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WoodDataBaseTest, SpeciesFileFillsGradesAndTypes) {
  ChooseFamily(window, session, platform, WoodFamily::Western);
  ChooseSpeciesFile(window, session, platform, 1);
  EXPECT_EQ(window.files.row, 1);
  EXPECT_EQ(window.grades.rows, (Texts{"", "No.1", "No.2"}));
  EXPECT_EQ(window.grades.row, -1);
  EXPECT_EQ(window.woodTypes, "Hem-Fir, Noble Fir");
  EXPECT_EQ(session.LastWoodTypes, "Hem-Fir, Noble Fir");
  EXPECT_EQ(session.LastGrade, "");
  ExpectSelection(window.selection, kNothing);
}

TEST_F(WoodDataBaseTest, AnotherSpeciesFileReplacesGradesAndTypes) {
  PickGrade(1);
  ChooseSpeciesFile(window, session, platform, 2);
  EXPECT_EQ(window.grades.rows, (Texts{"", "Dense"}));
  EXPECT_EQ(window.grades.row, -1);
  EXPECT_EQ(window.woodTypes, "Fir");
  EXPECT_EQ(session.LastWoodTypes, "Fir");
  EXPECT_EQ(session.LastGrade, "No.1");
}

TEST_F(WoodDataBaseTest, BlankFileRowChangesNothing) {
  PickGrade(1);
  ChooseSpeciesFile(window, session, platform, 0);
  EXPECT_EQ(window.files.row, 0);
  EXPECT_EQ(window.grades.rows.size(), 3U);
  EXPECT_EQ(window.grades.row, 1);
  EXPECT_EQ(window.woodTypes, "Hem-Fir, Noble Fir");
  EXPECT_EQ(session.LastWoodTypes, "Hem-Fir, Noble Fir");
}

TEST_F(WoodDataBaseTest, RowsOutsideOfTheListsChangeNothing) {
  PickGrade(1);
  ChooseSpeciesFile(window, session, platform, 3);
  ChooseSpeciesFile(window, session, platform, -1);
  ChooseGrade(window, session, platform, 3);
  ChooseGrade(window, session, platform, -1);
  EXPECT_EQ(window.files.row, 1);
  EXPECT_EQ(window.grades.row, 1);
  EXPECT_EQ(window.selection.grade, "No.1");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WoodDataBaseTest, MissingSpeciesFileShowsTheFaultAndGoesOn) {
  PickGrade(1);
  ChooseFamily(window, session, platform, WoodFamily::MachineRated);
  ChooseSpeciesFile(window, session, platform, 1);
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open NOWHERE.CSV in " + folder.Folder()});
  EXPECT_EQ(window.grades.rows, Texts{""});
  EXPECT_EQ(window.woodTypes, "");
  EXPECT_EQ(session.LastWoodTypes, "");
  EXPECT_EQ(window.selection.grade, "No.1");
}

TEST_F(WoodDataBaseTest, ShortSpeciesFileListsItsBlankRows) {
  folder.Write("HF.CSV", "1\nHem-Fir\n3\nNo.1,975,625,75,405,1350,1500000\nNo.2,850");
  PickGrade(2);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file HF.CSV is too short"});
  EXPECT_EQ(window.grades.rows, (Texts{"", "No.1", "No.2", ""}));
  ExpectSelection(window.selection, {"No.2", "850.00", "0.00", "0.00", "0.00", "0.00", "0"});
}

TEST_F(WoodDataBaseTest, GradeShowsItsValuesInTwoDecimalsAndTheModulusInNone) {
  PickGrade(1);
  // 975.125 and 1500000.5 are halves: away from zero.
  ExpectSelection(window.selection,
                  {"No.1", "975.13", "625.50", "75.00", "405.00", "1350.00", "1500001"});
  EXPECT_EQ(session.LastGrade, "No.1");
}

TEST_F(WoodDataBaseTest, BlankGradeRowChangesNothing) {
  PickGrade(2);
  ChooseGrade(window, session, platform, 0);
  EXPECT_EQ(window.grades.row, 0);
  ExpectSelection(window.selection,
                  {"No.2", "850.00", "525.00", "76.00", "406.00", "1300.00", "1300000"});
  EXPECT_EQ(session.LastGrade, "No.2");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WoodDataBaseTest, OkHandsTheShownValuesOver) {
  PickGrade(1);
  AcceptSelection(window, session, platform);
  const MemberSelection& member = session.Member;
  EXPECT_EQ(member.GradeText, "No.1");
  EXPECT_EQ(member.WoodTypeText, "Hem-Fir, Noble Fir");
  EXPECT_EQ(member.AllowFb.value(), 975.13F);
  EXPECT_EQ(member.AllowFt.value(), 625.5F);
  EXPECT_EQ(member.AllowFv.value(), 75.0F);
  EXPECT_EQ(member.AllowFcPerp.value(), 405.0F);
  EXPECT_EQ(member.AllowFc.value(), 1350.0F);
  EXPECT_EQ(member.DataBaseE.value(), 1500001.0F);
  EXPECT_EQ(member.ModulusE.value(), 1500001.0F);
  EXPECT_EQ(platform.calls, Texts{"close wdb"});
  EXPECT_EQ(window.woodTypes, "");
}

TEST_F(WoodDataBaseTest, OkLeavesSectionAndSourceAlone) {
  session.Member.SizeName = "2X4";
  session.Member.DataBaseReturn = -1;
  PickGrade(1);
  AcceptSelection(window, session, platform);
  EXPECT_EQ(session.Member.SizeName, "2X4");
  EXPECT_EQ(session.Member.SectionArea.value(), 1.0F);
  EXPECT_EQ(session.Member.MemberSource.value(), 0);
  EXPECT_EQ(session.Member.DataBaseReturn.value(), -1);
}

TEST_F(WoodDataBaseTest, OkWithoutAGradeHandsOverZerosAndEmptyTexts) {
  AcceptSelection(window, session, platform);
  EXPECT_EQ(session.Member.GradeText, "");
  EXPECT_EQ(session.Member.WoodTypeText, "");
  EXPECT_EQ(session.Member.AllowFb.value(), 0.0F);
  EXPECT_EQ(session.Member.ModulusE.value(), 0.0F);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WoodDataBaseTest, CancelLeavesTheMemberAloneButNotWhatWasSeenLast) {
  PickGrade(2);
  CancelSelection(window, platform);
  EXPECT_EQ(session.Member.WoodTypeText, "CUSTOM");
  EXPECT_EQ(session.Member.AllowFb.value(), 1.0F);
  EXPECT_EQ(session.Member.ModulusE.value(), 1000000.0F);
  EXPECT_EQ(session.LastGrade, "No.2");
  EXPECT_EQ(session.LastWoodTypes, "Hem-Fir, Noble Fir");
  EXPECT_EQ(window.woodTypes, "");
  EXPECT_EQ(platform.calls, Texts{"close wdb"});
}

TEST(ShippedWoodDataBase, EveryRowOfEveryFamilyIsShownWithoutAMessage) {
  SessionState session;
  session.DataDirectory = ShippedDataDirectory();
  RecordingPlatform platform;
  WoodDataBaseWindow window;
  OpenWoodDataBase(window);
  int shown = 0;
  for (const WoodFamilyEntry& family : kWoodFamilies) {
    ChooseFamily(window, session, platform, family.family);
    for (std::size_t file = 1; file < window.files.rows.size(); ++file) {
      ChooseSpeciesFile(window, session, platform, static_cast<int>(file));
      for (std::size_t row = 1; row < window.grades.rows.size(); ++row, ++shown) {
        ChooseGrade(window, session, platform, static_cast<int>(row));
        EXPECT_EQ(window.selection.grade, window.grades.rows[row]);
        EXPECT_EQ(session.LastGrade, window.grades.rows[row]);
      }
    }
  }
  EXPECT_GT(shown, 300);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

TEST(ShippedWoodDataBase, DouglasFirLarchNo2) {
  SessionState session;
  session.DataDirectory = ShippedDataDirectory();
  RecordingPlatform platform;
  WoodDataBaseWindow window;
  ChooseFamily(window, session, platform, WoodFamily::Western);
  ASSERT_EQ(window.files.rows.at(1), "Douglas Fir-Larch");
  ChooseSpeciesFile(window, session, platform, 1);
  ASSERT_EQ(window.grades.rows.at(4), "No.2");
  ChooseGrade(window, session, platform, 4);
  ExpectSelection(window.selection,
                  {"No.2", "900.00", "575.00", "95.00", "625.00", "1350.00", "1600000"});
}

}  // namespace
}  // namespace lignara
