#include <gtest/gtest.h>

#include "tests/connections/opened_bolts.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// The window on a table that lacks rows, or has others than the shipped one.
class BrokenBoltTableTest : public OpenedBolts {
 protected:
  void OpenOn(const std::string& bytes) {
    folder.Write("BV.CSV", bytes);
    session.DataDirectory = folder.DataDirectory();
    OpenBoltWindow(window, session, platform);
    ChooseNoFactors();
    platform.messages.clear();
  }

  DataFolder folder;
};

TEST_F(BrokenBoltTableTest, RefusalsComeAsEver) {
  OpenOn("");
  Compute("1", 0);
  EXPECT_EQ(
      platform.TakeTexts(),
      Texts{
          "YOUR MINIMUM WOOD THICKNESS NEEDS TO BE AT LEAST 1 1/2 in FOR DOUBLE SHEAR AND 1 in FOR "
          "SINGLE SHEAR"});
  Compute("4.5", 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"FOR YOUR L VALUES YOU NEED A BOLT GREATER THAN 1/2 in."});
}

TEST_F(BrokenBoltTableTest, MissingRowsAreToldAndGiveNoLoad) {
  OpenOn("");
  Compute("1.5", 0);
  // Hankinson's formula then has nothing to divide by.
  EXPECT_EQ(platform.TakeTexts(),
            (Texts{"There is no element of that number", "Division by zero"}));
  EXPECT_EQ(Loads(), (Texts{"0.00", "0.00"}));
  EXPECT_EQ(window.atAngle, "0.00");
}

TEST_F(BrokenBoltTableTest, RowsReadWork) {
  // Six rows: the 1/2 in bolt from 1 1/2 to 2 in.
  OpenOn(
      "57\na,b,1.5,0.5,1,1,900,400,1,1\n"
      "a,b,1.5,0.625,1,1,1,1,1,1\na,b,1.5,0.75,1,1,1,1,1,1\na,b,1.5,0.875,1,1,1,1,1,1\n"
      "a,b,1.5,1,1,1,1,1,1,1\na,b,2,0.5,1,1,1100,500,1,1\n");
  Compute("1.75", 0);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Loads(), (Texts{"1000.00", "450.00"}));
  Compute("2", 0);
  EXPECT_EQ(platform.TakeTexts().front(), "There is no element of that number");
  EXPECT_EQ(Loads(), (Texts{"0.00", "0.00"}));
}

TEST_F(BrokenBoltTableTest, ThicknessesAndDiametersAreThoseOfTheFile) {
  // Rows of 1 and 3 in: 1.75 in is 0.375 of the way. The upper bolt is twice as thick, so half of
  // its load counts: 900 + 0.375 x (0.5 x 2200 - 900) = 975, 400 + 0.375 x (500 - 400) = 437.5.
  std::string bytes = "6\na,b,1,0.5,1,1,900,400,1,1\n";
  for (int i = 0; i < 4; ++i) bytes += "a,b,1,1,1,1,1,1,1,1\n";
  OpenOn(bytes + "a,b,3,1,1,1,2200,1000,1,1\n");
  Compute("1.75", 0);
  EXPECT_EQ(Loads(), (Texts{"975.00", "437.50"}));
}

TEST_F(BrokenBoltTableTest, RowsOfOneThicknessGiveTheLowerLoads) {
  std::string bytes = "6\n";
  for (int i = 1; i <= 6; ++i) {
    bytes += "a,b,1.5,0.5,1,1," + std::to_string(100 * i) + ",50,1,1\n";
  }
  OpenOn(bytes);
  Compute("1.75", 0);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Loads(), (Texts{"100.00", "50.00"}));
}

TEST_F(BrokenBoltTableTest, BoltWithoutADiameterIsToldAndGivesNoLoad) {
  std::string bytes = "6\n";
  for (int i = 1; i <= 5; ++i) bytes += "a,b,1.5,0.5,1,1,900,400,1,1\n";
  OpenOn(bytes + "a,b,2,0,1,1,900,400,1,1\n");
  Compute("1.75", 0);
  EXPECT_EQ(platform.TakeTexts().front(), "Division by zero");
  EXPECT_EQ(Loads(), (Texts{"0.00", "0.00"}));
}

}  // namespace
}  // namespace lignara
