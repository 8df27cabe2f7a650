#include "glulam/combination_files.h"

#include "app/field_file.h"
#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class CombinationFilesTest : public GlulamTest {
 protected:
  void LoadBytes(const std::string& bytes) {
    folder.Write("GL4.CSV", bytes);
    LoadCombinationFile(window, session, platform, 4);
  }
  const std::string& Cell(int row, std::size_t column) const {
    return session.GlulamCombinations.RowAt(row)[column];
  }
};

/// A row of seventeen fields "<name>1" to "<name>17".
std::string Fields(const std::string& name) {
  std::string line;
  for (int column = 1; column <= 17; ++column) {
    line += (column == 1 ? "" : ",") + name + std::to_string(column);
  }
  return line + "\n";
}

std::string Rows(int count) {
  std::string bytes;
  for (int row = 1; row <= count; ++row) bytes += Fields("r" + std::to_string(row) + "c");
  return bytes;
}

TEST_F(CombinationFilesTest, FourFilesWithTheirFixedCounts) {
  struct Case {
    const char* caption;
    const char* file;
    int rows;
    const char* reportName;
  };
  const Case cases[] = {
      {"Visually Graded Western Species", "GL1.CSV", 41, "Visually Graded Western Species"},
      {"E-Rated Western Species", "GL2.CSV", 40, "E-Rated Western Species"},
      {"Visually Graded Southern Pine", "GL3.CSV", 25, "Visually graded Southern Pine"},
      {"E-Rated Southern Pine", "GL4.CSV", 13, "E-Rated Southern Pine"}};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_STREQ(kGlulamFiles[i].caption, cases[i].caption);
    EXPECT_STREQ(kGlulamFiles[i].fileName, cases[i].file);
    EXPECT_EQ(kGlulamFiles[i].rows, cases[i].rows);
    EXPECT_STREQ(kGlulamFiles[i].reportName, cases[i].reportName);
  }
}

TEST_F(CombinationFilesTest, EachOptionReadsItsFileAndRecordsItself) {
  for (int option = 1; option <= 4; ++option) {
    const GlulamFile& file = kGlulamFiles[static_cast<std::size_t>(option) - 1];
    folder.Write(file.fileName, Rows(file.rows));
    LoadCombinationFile(window, session, platform, option);
    EXPECT_EQ(session.GlulamCombinations.Option.value(), option);
    EXPECT_EQ(session.GlulamCombinations.RowCount.value(), file.rows);
    EXPECT_EQ(static_cast<int>(window.combinations.rows.size()), file.rows);
    EXPECT_EQ(window.combinations.rows.back(), "r" + std::to_string(file.rows) + "c1");
    EXPECT_EQ(window.combinations.row, 0);
    EXPECT_EQ(window.species, "r1c2");
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(CombinationFilesTest, CellsCountFromOneAndStayText) {
  LoadBytes(Rows(13));
  EXPECT_EQ(Cell(1, 1), "r1c1");
  EXPECT_EQ(Cell(13, 17), "r13c17");
  EXPECT_EQ(Cell(0, 1), "");
  EXPECT_EQ(Cell(1, 0), "");
  EXPECT_EQ(Cell(1, 18), "");
  EXPECT_EQ(Cell(14, 1), "");
}

TEST_F(CombinationFilesTest, ARowOutsideOfTheTableIsEmpty) {
  LoadBytes(Rows(13));
  EXPECT_EQ(Cell(-1, 1), "");
  EXPECT_EQ(Cell(51, 1), "");
}

TEST_F(CombinationFilesTest, FieldsMayStandInQuotesAndKeepTheirCommas) {
  OwnCombination combination;
  combination.species = "DF, select/DF";
  Load({combination});
  EXPECT_EQ(window.species, "DF, select/DF");
}

TEST_F(CombinationFilesTest, TextBehindTheLastRowIsPassedOver) {
  LoadBytes(Rows(20));
  EXPECT_EQ(Cell(14, 1), "");
  EXPECT_EQ(window.combinations.rows.size(), 13U);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(CombinationFilesTest, AMissingFileIsToldAndTheCellsKeepWhatTheyHeld) {
  folder.Write("GL3.CSV", Rows(25));
  LoadCombinationFile(window, session, platform, 3);
  LoadCombinationFile(window, session, platform, 4);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].text.find("Cannot open GL4.CSV"), std::string::npos);
  ASSERT_EQ(window.combinations.rows.size(), 13U);
  EXPECT_EQ(window.combinations.rows.back(), "r13c1");
  EXPECT_EQ(window.combinations.row, 0);
  EXPECT_EQ(window.species, "r1c2");
  EXPECT_EQ(session.GlulamCombinations.Option.value(), 4);
}

TEST_F(CombinationFilesTest, AMissingFirstFileGivesAListOfEmptyRows) {
  LoadCombinationFile(window, session, platform, 2);
  EXPECT_EQ(window.combinations.rows, Texts(40));
  EXPECT_EQ(Shown(GlulamValue::Fv), "0.00");
}

TEST_F(CombinationFilesTest, AShortFileIsToldAndTheRowsItLacksKeepWhatTheyHeld) {
  LoadBytes(Rows(13));
  LoadBytes(Fields("new") + Fields("other"));
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file GL4.CSV is too short"});
  EXPECT_EQ(Cell(2, 17), "other17");
  EXPECT_EQ(Cell(3, 1), "r3c1");
  EXPECT_EQ(window.combinations.rows.size(), 13U);
}

TEST_F(CombinationFilesTest, ABrokenLastRowKeepsAllThatItHeld) {
  LoadBytes(Rows(13));
  LoadBytes(Fields("new") + "broken,row,3,4");
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file GL4.CSV is too short"});
  EXPECT_EQ(Cell(1, 1), "new1");
  EXPECT_EQ(Cell(2, 1), "r2c1");
  EXPECT_EQ(Cell(2, 2), "r2c2");
}

TEST_F(CombinationFilesTest, TheTableOutlivesTheWindow) {
  LoadBytes(Rows(13));
  OpenGlulamWindow(window, session, platform);
  EXPECT_TRUE(window.combinations.rows.empty());
  EXPECT_EQ(Cell(13, 17), "r13c17");
  EXPECT_EQ(session.GlulamCombinations.Option.value(), 4);
}

class ShippedCombinations : public GlulamTest {
 protected:
  ShippedCombinations() {
    session.DataDirectory = ShippedDataDirectory();
    OpenGlulamWindow(window, session, platform);
  }
};

TEST_F(ShippedCombinations, FillTheirCountsExactly) {
  for (const GlulamFile& file : kGlulamFiles) {
    FieldStream fields(FileBytes(LIGNARA_DATA_DIRECTORY + std::string("/") + file.fileName));
    int count = 0;
    while (fields.Next()) ++count;
    EXPECT_EQ(count, file.rows * 17) << file.fileName;
  }
}

TEST_F(ShippedCombinations, EveryRowHasASymbolAUseCodeAndFourteenValues) {
  for (int option = 1; option <= 4; ++option) {
    LoadCombinationFile(window, session, platform, option);
    for (int row = 0; row < static_cast<int>(window.combinations.rows.size()); ++row) {
      ChooseCombination(window, session, platform, row);
      EXPECT_NE(window.combinations.Chosen(), "");
      EXPECT_NE(window.species, "");
      EXPECT_NE(window.useNote, "");
      for (const std::string& value : window.values) EXPECT_GT(std::stod(value), 0) << row;
    }
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ShippedCombinations, DefaultFactorsAreOne) {
  for (const std::string& factor : window.factors) EXPECT_EQ(factor, "1.00");
  EXPECT_TRUE(platform.messages.empty());
}

// The combination that the trade knows best.
TEST_F(ShippedCombinations, TwentyFourFV4OfDouglasFir) {
  LoadCombinationFile(window, session, platform, 1);
  ChooseCombination(window, session, platform, 13);
  EXPECT_EQ(window.combinations.Chosen(), "24F-V4");
  EXPECT_EQ(window.species, "DF/DF");
  EXPECT_EQ(window.useNote, "Not balanced, for dry or wet use.");
  EXPECT_EQ(ShownValues(),
            (Texts{"2400.00", "1850.00", "650.00", "650.00", "265.00", "1800000.00", "1450.00",
                   "560.00", "230.00", "92.00", "1600000.00", "1100.00", "1650.00", "1600000.00"}));
}

TEST_F(ShippedCombinations, OnlyOneIsForDryUseAlone) {
  LoadCombinationFile(window, session, platform, 3);
  ChooseCombination(window, session, platform, 7);
  EXPECT_EQ(window.combinations.Chosen(), "24F-V4");
  EXPECT_FALSE(window.wetOffered);
}

}  // namespace
}  // namespace lignara
