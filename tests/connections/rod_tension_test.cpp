#include "connections/rod_tension.h"

#include <gtest/gtest.h>

#include "tests/connections/opened_bolts.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kRefusal =
    "WOOD AND STEEL ALLOWABLE STRESS IN TENSION SECTION MUST BE GREATER THAN 0";

class RodTensionTest : public OpenedBolts {
 protected:
  /// As if the user had typed into both fields.
  void EnterStresses(const std::string& bolt, const std::string& wood) {
    window.boltStress = bolt;
    window.woodStress = wood;
    ComputeTension(window, platform);
  }

  Texts Results() const { return {window.load, window.plateSide, window.plateThickness}; }
};

struct RodCase {
  const char* size;
  double diameter;
  double area;
  const char* plateThickness;
  const char* load;  ///< area x 20 ksi
  const char* side;  ///< root of load / 400 psi
};

TEST_F(RodTensionTest, EveryRodCarriesItsAreaAndHasItsPlate) {
  const RodCase cases[] = {
      {"3/8", 0.375, 0.078, "3/16", "1560.00", "1.97"},
      {"1/2", 0.5, 0.142, "1/4", "2840.00", "2.66"},
      {"5/8", 0.625, 0.226, "5/16", "4520.00", "3.36"},
      {"3/4", 0.75, 0.334, "3/8", "6680.00", "4.09"},
      {"7/8", 0.875, 0.462, "1/2", "9240.00", "4.81"},
      {"1", 1, 0.606, "1/2", "12120.00", "5.50"},
      {"1 1/8", 1.125, 0.763, "5/8", "15260.00", "6.18"},
      {"1 1/4", 1.25, 0.969, "3/4", "19380.00", "6.96"},
      {"1 3/8", 1.375, 1.16, "3/4", "23200.00", "7.62"},
      {"1 1/2", 1.5, 1.41, "7/8", "28200.00", "8.40"},
      {"1 3/4", 1.75, 1.9, "1", "38000.00", "9.75"},
      {"2", 2, 2.5, "1 1/8", "50000.00", "11.18"},
      {"2 1/4", 2.25, 3.25, "1 1/4", "65000.00", "12.75"},
      {"2 1/2", 2.5, 4, "1 3/8", "80000.00", "14.14"},
      {"2 3/4", 2.75, 4.93, "1 1/2", "98600.00", "15.70"},
      {"3", 3, 5.97, "1 5/8", "119400.00", "17.28"},
  };
  ASSERT_EQ(RodTable.size(), std::size(cases));
  window.boltStress = "20";
  window.woodStress = "400";
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const RodCase& c = cases[i];
    EXPECT_STREQ(RodTable[i].size, c.size);
    EXPECT_EQ(RodTable[i].diameter, c.diameter) << c.size;
    EXPECT_EQ(RodTable[i].area, c.area) << c.size;
    ChooseRod(window, platform, static_cast<int>(i));
    EXPECT_EQ(window.rods.Chosen(), c.size);
    EXPECT_EQ(Results(), (Texts{c.load, c.side, c.plateThickness})) << c.size;
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(RodTensionTest, RodOfThreeQuarterInch) {
  window.boltStress = "20";
  window.woodStress = "400";
  ChooseRod(window, platform, 3);
  // 0.334 x 20 x 1000 = 6680, the root of 6680 / 400 = 16.7 is 4.0866.
  EXPECT_EQ(Results(), (Texts{"6680.00", "4.09", "3/8"}));
}

TEST_F(RodTensionTest, StressesThatAreNotAboveZeroAreRefused) {
  const std::pair<const char*, const char*> cases[] = {{"", "400"},  {"20", ""},    {"0", "400"},
                                                       {"20", "0"},  {"-1", "400"}, {"20", "-1"},
                                                       {"x", "400"}, {"", ""}};
  for (const auto& [bolt, wood] : cases) {
    EnterStresses(bolt, wood);
    EXPECT_EQ(platform.TakeTexts(), Texts{kRefusal}) << bolt << " " << wood;
    EXPECT_EQ(Results(), (Texts{"", "", ""}));
  }
}

TEST_F(RodTensionTest, RefusalLeavesTheOlderResults) {
  EnterStresses("20", "400");
  EnterStresses("", "400");
  EXPECT_EQ(platform.TakeTexts(), Texts{kRefusal});
  // The first rod: 0.078 x 20 x 1000, the root of 3.9.
  EXPECT_EQ(Results(), (Texts{"1560.00", "1.97", "3/16"}));
}

TEST_F(RodTensionTest, ResultsAreOutOfDateWhileTheInputIsRefused) {
  EnterStresses("", "400");
  EXPECT_FALSE(TensionIsOutOfDate(window));
  EnterStresses("20", "400");
  EXPECT_FALSE(TensionIsOutOfDate(window));
  EnterStresses("0", "400");
  EXPECT_TRUE(TensionIsOutOfDate(window));
  ChooseRod(window, platform, 2);
  EXPECT_TRUE(TensionIsOutOfDate(window));
  EnterStresses("20", "400");
  EXPECT_FALSE(TensionIsOutOfDate(window));
}

TEST_F(RodTensionTest, ClickOnTheChosenRodComputes) {
  ChooseRod(window, platform, 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{kRefusal});
}

TEST_F(RodTensionTest, RodsOutsideOfTheListChangeNothing) {
  for (const int row : {-1, 16}) {
    ChooseRod(window, platform, row);
    EXPECT_EQ(window.rods.row, 0);
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(RodTensionTest, StressTooLargeIsOneBoxAndLeavesTheOlderResults) {
  EnterStresses("20", "400");
  for (const char* text : {"1e39", "1e400"}) {
    EnterStresses(text, "400");
    EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"}) << text;
    EnterStresses("20", text);
    EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"}) << text;
    EXPECT_EQ(Results(), (Texts{"1560.00", "1.97", "3/16"}));
  }
}

TEST_F(RodTensionTest, LoadTooLargeIsToldAndCountsAsNone) {
  EnterStresses("3e38", "400");
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(Results(), (Texts{"0.00", "0.00", "3/16"}));
}

TEST_F(RodTensionTest, LargeLoadsKeepTheirDigits) {
  window.boltStress = "33.3";
  window.woodStress = "625";
  ChooseRod(window, platform, 15);
  // 5.97 x 33.3 x 1000 = 198801, the root of 318.0816 is 17.8348.
  EXPECT_EQ(Results(), (Texts{"198801.00", "17.83", "1 5/8"}));
}

}  // namespace
}  // namespace lignara
