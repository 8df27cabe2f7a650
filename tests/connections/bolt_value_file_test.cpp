#include "connections/bolt_value_file.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "connections/bolt_window.h"
#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kTwoRows =
    "2\n\"1 1/2\",\"1/2\",1.5,0.5,1100,500,940,430,800,370\n2,5/8,2,.625,1,2,3,4,5,6\n";

class BoltValuesTest : public testing::Test {
 protected:
  BoltValueTable Read(const std::string& bytes) {
    folder.Write("BV.CSV", bytes);
    return ReadBoltValues(folder.DataDirectory(), platform);
  }

  DataFolder folder;
  RecordingPlatform platform;
};

void ExpectLoads(const BoltRow& row, BoltWood wood, float parallel, float perpendicular) {
  EXPECT_EQ(row.Loads(wood).parallel.value(), parallel);
  EXPECT_EQ(row.Loads(wood).perpendicular.value(), perpendicular);
}

TEST_F(BoltValuesTest, ColumnsAreDenseMediumAndOpenGrain) {
  const BoltValueTable table = Read(kTwoRows);
  ASSERT_EQ(table.size(), 2);
  const BoltRow& first = *table.Row(1);
  EXPECT_EQ(first.thicknessLabel, "1 1/2");
  EXPECT_EQ(first.boltLabel, "1/2");
  EXPECT_EQ(first.Ltable.value(), 1.5F);
  EXPECT_EQ(first.Dtable.value(), 0.5F);
  ExpectLoads(first, BoltWood::Dense, 1100, 500);
  ExpectLoads(first, BoltWood::Medium, 940, 430);
  ExpectLoads(first, BoltWood::OpenGrain, 800, 370);
  ExpectLoads(*table.Row(2), BoltWood::Dense, 1, 2);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BoltValuesTest, RowsCountFromOne) {
  const BoltValueTable table = Read(kTwoRows);
  EXPECT_EQ(table.Row(0), nullptr);
  EXPECT_EQ(table.Row(-1), nullptr);
  EXPECT_EQ(table.Row(3), nullptr);
  EXPECT_EQ(table.Row(2)->Dtable.value(), 0.625F);
}

TEST_F(BoltValuesTest, FileIsAStreamOfFields) {
  const BoltValueTable table =
      Read("1\r\n\r\n\"1 1/2\",\"1/2\",1.5\r\n0.5,1100,500,\r\n940,430\r\n800,370");
  ExpectLoads(*table.Row(1), BoltWood::OpenGrain, 800, 370);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(BoltValuesTest, MissingFileIsOneBoxAndAnEmptyTable) {
  const BoltValueTable table = ReadBoltValues(folder.DataDirectory(), platform);
  EXPECT_EQ(table.size(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open BV.CSV in " + folder.Folder()});
}

TEST_F(BoltValuesTest, CountThatCannotBeReadIsABoxAndAnEmptyTable) {
  EXPECT_EQ(Read("rows\n1.5,0.5,1,1,1,1,1,1,1,1\n").size(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in BV.CSV cannot be read"});
  EXPECT_EQ(Read("\"\",1.5,0.5,1,1,1,1,1,1,1,1\n").size(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in BV.CSV cannot be read"});
  EXPECT_EQ(Read("-3\n").size(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in BV.CSV is too small"});
  EXPECT_EQ(Read("99999\n").size(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in BV.CSV is too large"});
}

TEST_F(BoltValuesTest, EarlyEndIsOneBoxAndKeepsTheRowsAhead) {
  const BoltValueTable table = Read("57\na,b,1.5,0.5,1,2,3,4,5,6\nc,d,2,0.5,1,2,3\n");
  ExpectLoads(*table.Row(1), BoltWood::OpenGrain, 5, 6);
  // Half a row is none.
  EXPECT_EQ(table.Row(2), nullptr);
  EXPECT_EQ(table.Row(57), nullptr);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file BV.CSV is too short"});
}

TEST_F(BoltValuesTest, WordForANumberIsABoxAndTakesItsRowAway) {
  const BoltValueTable table =
      Read("3\na,b,1.5,0.5,1,2,3,4,5,6\nc,d,2,half,1,2,3,4,5,6\ne,f,2.5,0.5,7,8,9,10,11,12\n");
  EXPECT_EQ(table.size(), 3);
  ExpectLoads(*table.Row(1), BoltWood::Dense, 1, 2);
  EXPECT_EQ(table.Row(2), nullptr);
  ExpectLoads(*table.Row(3), BoltWood::Dense, 7, 8);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in BV.CSV cannot be read"});
}

TEST_F(BoltValuesTest, EmptyNumberIsABoxAndTakesItsRowAway) {
  EXPECT_EQ(Read("1\na,b,1.5,0.5,1,,3,4,5,6\n").Row(1), nullptr);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in BV.CSV cannot be read"});
}

TEST_F(BoltValuesTest, NumberTooLargeIsABoxAndTakesItsRowAway) {
  EXPECT_EQ(Read("1\na,b,1.5,0.5,1e39,2,3,4,5,6\n").Row(1), nullptr);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
}

TEST_F(BoltValuesTest, RowsBehindTheCountArePassedOver) {
  EXPECT_EQ(Read("1\na,b,1.5,0.5,1,2,3,4,5,6\nc,d,2,0.5,1,2,3,4,5,6\n").size(), 1);
  EXPECT_TRUE(platform.messages.empty());
}

// The shipped file.

TEST(ShippedBoltValues, ThicknessesAndBoltsStandInTheirPlaces) {
  struct Group {
    float thickness;
    std::vector<float> bolts;
  };
  const std::vector<float> halfToOne = {0.5F, 0.625F, 0.75F, 0.875F, 1.0F};
  const std::vector<float> fiveEighthsUp = {0.625F, 0.75F, 0.875F, 1.0F, 1.25F};
  const Group groups[] = {{1.5F, halfToOne},
                          {2.0F, halfToOne},
                          {2.5F, halfToOne},
                          {3.0F, halfToOne},
                          {3.5F, halfToOne},
                          {4.0F, halfToOne},
                          {4.5F, fiveEighthsUp},
                          {5.5F, fiveEighthsUp},
                          {7.5F, fiveEighthsUp},
                          {9.5F, {0.75F, 0.875F, 1.0F, 1.25F, 1.5F}},
                          {11.5F, {0.875F, 1.0F, 1.25F, 1.5F}},
                          {13.5F, {1.0F, 1.25F, 1.5F}}};
  RecordingPlatform platform;
  const BoltValueTable table = ReadBoltValues(ShippedDataDirectory(), platform);
  EXPECT_EQ(table.size(), 57);
  int number = 0;
  for (const Group& group : groups) {
    for (const float bolt : group.bolts) {
      const BoltRow* row = table.Row(++number);
      ASSERT_NE(row, nullptr) << number;
      EXPECT_EQ(row->Ltable.value(), group.thickness) << number;
      EXPECT_EQ(row->Dtable.value(), bolt) << number;
    }
  }
  EXPECT_EQ(number, 57);
  EXPECT_TRUE(platform.messages.empty());
}

TEST(ShippedBoltValues, LoadsFallFromDenseToOpenGrainAndAcrossTheGrain) {
  RecordingPlatform platform;
  const BoltValueTable table = ReadBoltValues(ShippedDataDirectory(), platform);
  for (int number = 1; number <= table.size(); ++number) {
    const BoltRow& row = *table.Row(number);
    const GrainLoads& dense = row.Loads(BoltWood::Dense);
    const GrainLoads& medium = row.Loads(BoltWood::Medium);
    const GrainLoads& open = row.Loads(BoltWood::OpenGrain);
    EXPECT_GT(dense.parallel, medium.parallel) << number;
    EXPECT_GT(medium.parallel, open.parallel) << number;
    EXPECT_GT(dense.perpendicular, medium.perpendicular) << number;
    EXPECT_GT(medium.perpendicular, open.perpendicular) << number;
    for (const GrainLoads& loads : row.loads) {
      EXPECT_GT(loads.perpendicular, 0) << number;
      EXPECT_GT(loads.parallel, loads.perpendicular) << number;
    }
  }
}

TEST(ShippedBoltValues, EveryLineIsReadAsItStands) {
  RecordingPlatform platform;
  const BoltValueTable table = ReadBoltValues(ShippedDataDirectory(), platform);
  std::ostringstream written;
  written.imbue(std::locale::classic());
  written << table.size() << "\n";
  for (int number = 1; number <= table.size(); ++number) {
    const BoltRow& row = *table.Row(number);
    written << '"' << row.thicknessLabel << "\",\"" << row.boltLabel << "\"," << row.Ltable.value()
            << "," << row.Dtable.value();
    for (const BoltWood wood : {BoltWood::Dense, BoltWood::Medium, BoltWood::OpenGrain}) {
      written << "," << row.Loads(wood).parallel.value() << ","
              << row.Loads(wood).perpendicular.value();
    }
    written << "\n";
  }
  EXPECT_EQ(written.str(), FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/BV.CSV"));
}

TEST(ShippedBoltValues, EveryTruncationIsSurvived) {
  DataFolder folder;
  RecordingPlatform platform;
  const std::string bytes = FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/BV.CSV");
  for (std::size_t length = 0; length < bytes.size(); length += 31) {
    folder.Write("BV.CSV", bytes.substr(0, length));
    const BoltValueTable table = ReadBoltValues(folder.DataDirectory(), platform);
    EXPECT_LE(table.size(), 57);
  }
  EXPECT_FALSE(platform.messages.empty());
}

TEST(BoltValuesFuzz, GarbledBytesAreSurvivedByReaderAndComputation) {
  DataFolder folder;
  RecordingPlatform platform;
  SessionState session;
  session.DataDirectory = folder.DataDirectory();
  const std::string bytes = FileBytes(std::string(LIGNARA_DATA_DIRECTORY) + "/BV.CSV");
  std::mt19937 random(20267);
  std::uniform_int_distribution<std::size_t> place(0, bytes.size() - 1);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int round = 0; round < 100; ++round) {
    std::string garbled = bytes;
    for (int i = 0; i < 40; ++i) garbled[place(random)] = static_cast<char>(byte(random));
    folder.Write("BV.CSV", garbled);
    BoltWindow window;
    OpenBoltWindow(window, session, platform);
    for (const char* thickness : {"1.5", "2.2", "4.2", "6", "9.4", "13.5"}) {
      window.L1 = window.L2 = window.L3 = thickness;
      for (int bolt = 0; bolt < 7; ++bolt) {
        ChooseBolt(window, bolt);
        ComputeShear(window, platform);
        for (const std::string& text : {window.parallel, window.perpendicular, window.atAngle}) {
          ASSERT_EQ(text.find_first_not_of("-0123456789."), std::string::npos) << text;
        }
      }
    }
  }
}

}  // namespace
}  // namespace lignara
