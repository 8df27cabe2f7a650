#include "connections/fastener_report.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

class FastenerReportTest : public testing::Test {
 protected:
  FastenerReportTest() { OpenFastenerDataBase(window); }

  FastenerWindow window;
  RecordingPlatform platform;
};

TEST_F(FastenerReportTest, Nail) {
  ChooseFastenerSize(window, 4);
  EXPECT_EQ(ReportText(FastenerReport(window)),
            "\n"
            "Ostrel Lignara\n"
            "FASTENER DATA BASE\n"
            "\n"
            "Data for Wire Nails\n"
            "\n"
            "Size/Type = 16d\n"
            "Wood is Douglas Fir.\n"
            "Length = 3 1/2 in\n"
            "Dia. = .162 in\n"
            "Pull out strength = 42 lbs\n"
            "Lateral Strength = 107 lbs\n"
            "\n"
            "Based on insertion length of 11 diameters for lat. load.\n"
            "Pullout load is per inch of embedment.\n");
}

TEST_F(FastenerReportTest, SpikeInSouthernPine) {
  ChooseFastenerKind(window, FastenerKind::Spikes);
  ChooseFastenerWood(window, FastenerWood::SouthernPine);
  ChooseFastenerSize(window, 9);
  EXPECT_EQ(ReportText(FastenerReport(window)),
            "\n"
            "Ostrel Lignara\n"
            "FASTENER DATA BASE\n"
            "\n"
            "Data for Spike Nails\n"
            "\n"
            "Size/Type = 3/8\n"
            "Wood is Southern Pine.\n"
            "Length = 8 1/2 in\n"
            "Dia. = .375 in\n"
            "Pull out strength = 138 lbs\n"
            "Lateral Strength = 380 lbs\n"
            "\n"
            "Based on insertion length of 11 diameters for lat. load.\n"
            "Pullout load is per inch of embedment.\n");
}

TEST_F(FastenerReportTest, WoodScrewHasNoLengthAndAnEmptyFirstNote) {
  ChooseFastenerKind(window, FastenerKind::WoodScrews);
  ChooseFastenerSize(window, 4);
  EXPECT_EQ(ReportText(FastenerReport(window)),
            "\n"
            "Ostrel Lignara\n"
            "FASTENER DATA BASE\n"
            "\n"
            "Data for Wood Screws\n"
            "\n"
            "Size/Type = Gage 10\n"
            "Wood is Douglas Fir.\n"
            "Dia. = .190 in\n"
            "Pull out strength = 141 lbs\n"
            "Lateral Strength = 143 lbs\n"
            "\n"
            "\n"
            "Pullout load is per inch of embedment.\n");
}

TEST_F(FastenerReportTest, LagScrew) {
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  ChooseFastenerSize(window, 7);
  ChooseEmbedment(window, 3);
  EXPECT_EQ(ReportText(FastenerReport(window)),
            "\n"
            "Ostrel Lignara\n"
            "FASTENER DATA BASE\n"
            "\n"
            "Data for Lag Screws\n"
            "\n"
            "Size/Type = Dia. 3/4\n"
            "Wood is Douglas Fir.\n"
            "Penetration length = 6 in\n"
            "Pull out strength = 528 lbs\n"
            "Lateral Strength parallel to grain = 1480 lbs\n"
            "Lateral Strength perp. to grain = 650 lbs\n"
            "\n"
            "Select embedment length to obtain Lat. loads.\n"
            "Pullout load is per inch of embedment.\n");
}

TEST_F(FastenerReportTest, LagScrewOutsideOfItsEmbedmentsIsReportedAsNA) {
  ChooseFastenerKind(window, FastenerKind::LagScrews);
  ChooseFastenerSize(window, 11);
  const std::string text = ReportText(FastenerReport(window));
  EXPECT_NE(text.find("\nLateral Strength parallel to grain = NA lbs\n"
                      "Lateral Strength perp. to grain = NA lbs\n"),
            std::string::npos);
}

TEST_F(FastenerReportTest, PaperAndFileAreTheSame) {
  DataFolder folder;
  PrintFastenerReport(window, platform);
  platform.fileAnswers.push_back(folder.Path("fastener.txt"));
  SaveFastenerReport(window, platform);
  ASSERT_EQ(platform.printed.size(), 1U);
  EXPECT_EQ(FileBytes(folder.Path("fastener.txt")), ReportText(platform.printed[0]));
  EXPECT_EQ(platform.printed[0].fontName, "Times New Roman");
  EXPECT_EQ(platform.filters, std::vector<std::string>{"Text(*.txt)|*.txt|All(*.*)|*.*|"});
}

TEST_F(FastenerReportTest, CancelledDialogWritesNothing) {
  DataFolder folder;
  platform.fileAnswers.push_back(std::nullopt);
  SaveFastenerReport(window, platform);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("")));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FastenerReportTest, FileThatCannotBeWrittenIsShownInABox) {
  DataFolder folder;
  platform.fileAnswers.push_back(folder.Path("nowhere/fastener.txt"));
  SaveFastenerReport(window, platform);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text,
            folder.Path("nowhere/fastener.txt") + ": No such file or directory");
}

}  // namespace
}  // namespace lignara
