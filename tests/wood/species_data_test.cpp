#include "wood/species_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <sstream>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class SpeciesDataTest : public testing::Test {
 protected:
  SpeciesIndex Index(const std::string& bytes) {
    folder.Write("INDEX.CSV", bytes);
    return ReadSpeciesIndex(folder.DataDirectory(), "INDEX.CSV", platform);
  }
  SpeciesFile Species(const std::string& bytes) {
    folder.Write("SPECIES.CSV", bytes);
    return ReadSpeciesFile(folder.DataDirectory(), "SPECIES.CSV", platform);
  }

  DataFolder folder;
  RecordingPlatform platform;
};

constexpr const char* kSpecies =
    "2\n\"Hem-Fir, dry\"\n\"Noble Fir\"\n"
    "2\n\"Select, dense\",1400,925.5,75,405,1500,1600000\nNo.1,975,625,75,405,1350,1500000.75\n";

void ExpectStresses(const BaseStressRecord& grade, const std::array<double, 6>& expected) {
  const std::array<double, 6> stresses = {grade.Fb.value(),    grade.Ft.value(),
                                          grade.Fv.value(),    grade.FcPerp.value(),
                                          grade.FcPar.value(), grade.E.value()};
  EXPECT_EQ(stresses, expected) << grade.Grade;
}

TEST_F(SpeciesDataTest, IndexHasABlankRowThenItsRecords) {
  const SpeciesIndex index = Index("2\n\"Hem-Fir, all\",\"HF.CSV\"\nRedwood,RW.CSV\n");
  EXPECT_EQ(index.names, (Texts{"", "Hem-Fir, all", "Redwood"}));
  EXPECT_EQ(index.files, (Texts{"", "HF.CSV", "RW.CSV"}));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SpeciesDataTest, SpeciesFileGivesTypesAndGrades) {
  const SpeciesFile species = Species(kSpecies);
  EXPECT_EQ(species.woodTypes, "Hem-Fir, dry, Noble Fir");
  ASSERT_EQ(species.grades.size(), 3U);
  EXPECT_EQ(species.grades[0].Grade, "");
  ExpectStresses(species.grades[0], {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(species.grades[1].Grade, "Select, dense");
  ExpectStresses(species.grades[1], {1400, 925.5, 75, 405, 1500, 1600000});
  EXPECT_EQ(species.grades[2].Grade, "No.1");
  ExpectStresses(species.grades[2], {975, 625, 75, 405, 1350, 1500000.75});
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SpeciesDataTest, StressesHave64Bits) {
  const SpeciesFile species = Species("0\n1\nG,1234567.890123,0,0,0,0,0\n");
  EXPECT_EQ(species.grades.at(1).Fb.value(), 1234567.890123);
}

TEST_F(SpeciesDataTest, LineEndsMarkAndBlankLinesDoNotMatter) {
  std::string windows = "\xEF\xBB\xBF";
  for (const char* c = kSpecies; *c != '\0'; ++c)
    windows += *c == '\n' ? "\r\n" : std::string(1, *c);
  const SpeciesFile species = Species(windows + "\r\n\r\n\r\n");
  EXPECT_EQ(species.woodTypes, "Hem-Fir, dry, Noble Fir");
  ASSERT_EQ(species.grades.size(), 3U);
  ExpectStresses(species.grades[2], {975, 625, 75, 405, 1350, 1500000.75});
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SpeciesDataTest, RecordMayBreakOverLines) {
  const SpeciesFile species = Species("1\nHem-Fir\n1\n\"No.1\",975\n625,75,\n405\n1350,1500000");
  ASSERT_EQ(species.grades.size(), 2U);
  EXPECT_EQ(species.grades[1].Grade, "No.1");
  ExpectStresses(species.grades[1], {975, 625, 75, 405, 1350, 1500000});
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SpeciesDataTest, TextBehindTheLastRecordIsPassedOver) {
  const SpeciesFile species = Species(std::string(kSpecies) + "No.2,850,525,75,405,1300,1300000\n");
  EXPECT_EQ(species.grades.size(), 3U);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SpeciesDataTest, MissingIndexHasTheBlankRowOnly) {
  const SpeciesIndex index = ReadSpeciesIndex(folder.DataDirectory(), "WWTRK.CSV", platform);
  EXPECT_EQ(index.names, Texts{""});
  EXPECT_EQ(index.files, Texts{""});
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open WWTRK.CSV in " + folder.Folder()});
}

TEST_F(SpeciesDataTest, MissingSpeciesFileHasTheBlankRowOnly) {
  const SpeciesFile species = ReadSpeciesFile(folder.DataDirectory(), "HEMFIR.CSV", platform);
  EXPECT_EQ(species.woodTypes, "");
  EXPECT_EQ(species.grades.size(), 1U);
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open HEMFIR.CSV in " + folder.Folder()});
}

TEST_F(SpeciesDataTest, ShortIndexKeepsItsRowsBlank) {
  const SpeciesIndex index = Index("3\nHem-Fir,HF.CSV\nRedwood\n");
  EXPECT_EQ(index.names, (Texts{"", "Hem-Fir", "Redwood", ""}));
  EXPECT_EQ(index.files, (Texts{"", "HF.CSV", "", ""}));
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file INDEX.CSV is too short"});
}

TEST_F(SpeciesDataTest, ShortSpeciesFileKeepsItsRowsBlankOrZero) {
  const SpeciesFile species = Species("1\nHem-Fir\n3\nNo.1,975,625,75,405,1350,1500000\nNo.2,850");
  EXPECT_EQ(species.woodTypes, "Hem-Fir");
  ASSERT_EQ(species.grades.size(), 4U);
  ExpectStresses(species.grades[1], {975, 625, 75, 405, 1350, 1500000});
  EXPECT_EQ(species.grades[2].Grade, "No.2");
  ExpectStresses(species.grades[2], {850, 0, 0, 0, 0, 0});
  EXPECT_EQ(species.grades[3].Grade, "");
  ExpectStresses(species.grades[3], {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file SPECIES.CSV is too short"});
}

TEST_F(SpeciesDataTest, TypesThatCannotBeReadAreNotJoined) {
  const SpeciesFile species = Species("5\nHem-Fir\nNoble Fir\n");
  EXPECT_EQ(species.woodTypes, "Hem-Fir, Noble Fir");
  EXPECT_EQ(species.grades.size(), 1U);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file SPECIES.CSV is too short"});
}

TEST_F(SpeciesDataTest, EmptyFilesGiveABoxAndNothing) {
  EXPECT_EQ(Index("").names, Texts{""});
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file INDEX.CSV is too short"});
  EXPECT_EQ(Species("\n\n").grades.size(), 1U);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file SPECIES.CSV is too short"});
}

TEST_F(SpeciesDataTest, CountThatCannotBeReadIsZero) {
  EXPECT_EQ(Index("many\nHem-Fir,HF.CSV\n").names, Texts{""});
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in INDEX.CSV cannot be read"});
  EXPECT_EQ(Index("-2\nHem-Fir,HF.CSV\n").names, Texts{""});
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in INDEX.CSV is too small"});
  EXPECT_EQ(Index("70000\nHem-Fir,HF.CSV\n").names, Texts{""});
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in INDEX.CSV is too large"});
}

TEST_F(SpeciesDataTest, GarbledNumbersAreZeroOrTheirPrefix) {
  const SpeciesFile species = Species("0\n1\nNo.1,x,12psi,,1e999,-5,1.5.5\n");
  ASSERT_EQ(species.grades.size(), 2U);
  ExpectStresses(species.grades[1], {0, 12, 0, 0, -5, 1.5});
  EXPECT_EQ(platform.TakeTexts(), (Texts{"A number in SPECIES.CSV cannot be read",
                                         "A number in SPECIES.CSV is too large"}));
}

// The shipped files.

/// The species files that the shipped index files name, read with nothing of the program's own
/// reader: the text between the last pair of quotes of each line.
Texts NamedFiles() {
  Texts files;
  for (const WoodFamilyEntry& family : kWoodFamilies) {
    std::istringstream lines(
        FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/" + family.indexFile));
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
      const std::size_t end = line.rfind('"');
      const std::size_t start = line.rfind('"', end - 1) + 1;
      files.push_back(line.substr(start, end - start));
    }
  }
  return files;
}

TEST(ShippedLumber, IndexFilesListWhatTheySay) {
  RecordingPlatform platform;
  const std::array<std::size_t, 3> counts = {27, 10, 5};
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const char* file = kWoodFamilies[i].indexFile;
    const SpeciesIndex index = ReadSpeciesIndex(ShippedDataDirectory(), file, platform);
    ASSERT_EQ(index.names.size(), counts[i] + 1) << file;
    EXPECT_EQ(index.files.size(), counts[i] + 1) << file;
    EXPECT_EQ(std::count(index.names.begin(), index.names.end(), ""), 1) << file;
    EXPECT_EQ(std::count(index.files.begin(), index.files.end(), ""), 1) << file;
  }
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

TEST(ShippedLumber, EverySpeciesFileLoadsWithoutAMessage) {
  RecordingPlatform platform;
  const Texts files = NamedFiles();
  ASSERT_EQ(files.size(), 42U);
  for (const std::string& file : files) {
    const SpeciesFile species = ReadSpeciesFile(ShippedDataDirectory(), file, platform);
    EXPECT_NE(species.woodTypes, "") << file;
    ASSERT_GT(species.grades.size(), 1U) << file;
    for (std::size_t i = 1; i < species.grades.size(); ++i) {
      const BaseStressRecord& grade = species.grades[i];
      EXPECT_NE(grade.Grade, "") << file;
      for (const Float64* stress : {&grade.Fb, &grade.Ft, &grade.Fv, &grade.FcPerp, &grade.FcPar}) {
        EXPECT_GE(stress->value(), 50) << file << " " << grade.Grade;
        EXPECT_LE(stress->value(), 4000) << file << " " << grade.Grade;
      }
      EXPECT_GE(grade.E.value(), 600000) << file << " " << grade.Grade;
      EXPECT_LE(grade.E.value(), 2400000) << file << " " << grade.Grade;
    }
  }
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

TEST(ShippedLumber, EveryLineIsReadAsItStands) {
  RecordingPlatform platform;
  for (const std::string& file : NamedFiles()) {
    const SpeciesFile species = ReadSpeciesFile(ShippedDataDirectory(), file, platform);
    // Write the file anew from what was read: as many types as commas tell, then the grades.
    std::ostringstream grades;
    grades.imbue(std::locale::classic());
    grades << species.grades.size() - 1 << "\n";
    for (std::size_t i = 1; i < species.grades.size(); ++i) {
      const BaseStressRecord& g = species.grades[i];
      grades << '"' << g.Grade << '"';
      for (const Float64* stress : {&g.Fb, &g.Ft, &g.Fv, &g.FcPerp, &g.FcPar, &g.E}) {
        grades << ',' << static_cast<long>(stress->value());
      }
      grades << "\n";
    }
    const std::string bytes = FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/" + file);
    EXPECT_TRUE(bytes.ends_with("\n" + grades.str())) << file << "\n" << grades.str();
  }
}

TEST(ShippedLumber, KnownRows) {
  RecordingPlatform platform;
  const SpeciesFile fir = ReadSpeciesFile(ShippedDataDirectory(), "DFLARCH.CSV", platform);
  EXPECT_EQ(fir.woodTypes, "Douglas Fir-Larch, Douglas Fir, Western Larch");
  ASSERT_EQ(fir.grades.size(), 10U);
  EXPECT_EQ(fir.grades[1].Grade, "Select Structural");
  ExpectStresses(fir.grades[1], {1500, 1000, 95, 625, 1700, 1900000});
  EXPECT_EQ(fir.grades[9].Grade, "Utility");
  ExpectStresses(fir.grades[9], {275, 175, 95, 625, 900, 1300000});

  const SpeciesFile pine = ReadSpeciesFile(ShippedDataDirectory(), "SPINE12.CSV", platform);
  ASSERT_EQ(pine.grades.size(), 11U);
  EXPECT_EQ(pine.grades[8].Grade, "No.2");
  ExpectStresses(pine.grades[8], {975, 550, 90, 565, 1450, 1600000});

  const SpeciesFile rated = ReadSpeciesFile(ShippedDataDirectory(), "MSRSPF.CSV", platform);
  ASSERT_EQ(rated.grades.size(), 15U);
  EXPECT_EQ(rated.grades[5].Grade, "1650f-1.5E");
  ExpectStresses(rated.grades[5], {1650, 1020, 70, 425, 1700, 1500000});
}

TEST(ShippedLumber, EveryTruncationIsSurvived) {
  DataFolder folder;
  RecordingPlatform platform;
  for (const char* name : {"WWTRK.CSV", "DFLARCH.CSV"}) {
    const std::string bytes = FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/" + name);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      folder.Write("CUT.CSV", bytes.substr(0, length));
      const SpeciesIndex index = ReadSpeciesIndex(folder.DataDirectory(), "CUT.CSV", platform);
      EXPECT_EQ(index.names.size(), index.files.size());
      const SpeciesFile species = ReadSpeciesFile(folder.DataDirectory(), "CUT.CSV", platform);
      EXPECT_GE(species.grades.size(), 1U);
    }
  }
}

TEST(ShippedLumber, CutSpeciesFileGivesABoxAndTheRowsAhead) {
  DataFolder folder;
  RecordingPlatform platform;
  const std::string bytes = FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/DFLARCH.CSV");
  // The second of the nine grades breaks off behind its first value.
  const std::size_t cut = bytes.find(",800,");
  ASSERT_NE(cut, std::string::npos);
  folder.Write("CUT.CSV", bytes.substr(0, cut));
  const SpeciesFile species = ReadSpeciesFile(folder.DataDirectory(), "CUT.CSV", platform);
  ASSERT_EQ(species.grades.size(), 10U);
  ExpectStresses(species.grades[1], {1500, 1000, 95, 625, 1700, 1900000});
  EXPECT_EQ(species.grades[2].Grade, "No.1 & Btr");
  ExpectStresses(species.grades[2], {1200, 0, 0, 0, 0, 0});
  EXPECT_EQ(species.grades[9].Grade, "");
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file CUT.CSV is too short"});
}

TEST(ShippedLumber, GarbledBytesAreSurvived) {
  DataFolder folder;
  RecordingPlatform platform;
  const std::string bytes = FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/DFLARCH.CSV");
  std::mt19937 random(20263);
  std::uniform_int_distribution<std::size_t> place(0, bytes.size() - 1);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int round = 0; round < 500; ++round) {
    std::string garbled = bytes;
    for (int i = 0; i < 8; ++i) garbled[place(random)] = static_cast<char>(byte(random));
    folder.Write("BAD.CSV", garbled);
    const SpeciesIndex index = ReadSpeciesIndex(folder.DataDirectory(), "BAD.CSV", platform);
    EXPECT_LE(index.names.size(), 32768U);
    const SpeciesFile species = ReadSpeciesFile(folder.DataDirectory(), "BAD.CSV", platform);
    EXPECT_LE(species.grades.size(), 32768U);
    EXPECT_LE(platform.TakeTexts().size(), 4U);
  }
}

}  // namespace
}  // namespace lignara
