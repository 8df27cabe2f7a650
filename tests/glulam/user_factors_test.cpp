#include "glulam/user_factors.h"

#include <filesystem>

#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class UserFactorsTest : public GlulamTest {
 protected:
  /// The factors of a window that is opened with these bytes in the file.
  Texts OpenedWith(const std::string& bytes) {
    folder.Write("USERADJ.CSV", bytes);
    OpenGlulamWindow(window, session, platform);
    return Factors();
  }
  Texts Factors() const { return {window.factors.begin(), window.factors.end()}; }
  std::string Save() {
    SaveUserFactors(window, session, platform);
    return FileBytes(folder.Path("USERADJ.CSV"));
  }
};

const Texts kOnes(kGlulamValues, "1.00");

TEST_F(UserFactorsTest, FourteenLinesSetTheFactorsInOrder) {
  EXPECT_EQ(OpenedWith(" 1\n 2\n 3\n 4\n 5\n 6\n 7\n 8\n 9\n 10\n 11\n 12\n 13\n 14\n"),
            (Texts{"1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00", "8.00", "9.00", "10.00",
                   "11.00", "12.00", "13.00", "14.00"}));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(UserFactorsTest, ADefaultFactorActsWithTheTwoDecimalsItShows) {
  EXPECT_EQ(OpenedWith(" 0.854\n-0.5\n 0\n 1e0\n 0.0049\n 5\n 6\n 7\n 8\n 9\n 1\n 1\n 1\n 1\n"),
            (Texts{"0.85", "-0.50", "0.00", "1.00", "0.00", "5.00", "6.00", "7.00", "8.00", "9.00",
                   "1.00", "1.00", "1.00", "1.00"}));
  LoadDouglasFir();
  EXPECT_EQ(Shown(GlulamValue::FbxTensionZone), "2040.00");  // 2400 x 0.85
}

TEST_F(UserFactorsTest, AMissingFileIsToldAndAllFactorsAreOne) {
  std::filesystem::remove(folder.Path("USERADJ.CSV"));
  OpenGlulamWindow(window, session, platform);
  EXPECT_EQ(Factors(), kOnes);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].text.find("Cannot open USERADJ.CSV"), std::string::npos);
}

TEST_F(UserFactorsTest, AShortFileIsToldAndTheFactorsItLacksAreOne) {
  Texts expected = kOnes;
  expected[0] = "0.90";
  expected[1] = "0.80";
  EXPECT_EQ(OpenedWith(" 0.9\n 0.8\n"), expected);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file USERADJ.CSV is too short"});
}

TEST_F(UserFactorsTest, ALineThatIsNoNumberStopsTheReading) {
  Texts expected = kOnes;
  expected[0] = "0.90";
  for (const char* line : {"none", "\"\"", "-", "."}) {
    EXPECT_EQ(OpenedWith(std::string(" 0.9\n") + line +
                         "\n 0.7\n 2\n 2\n 2\n 2\n 2\n 2\n 2\n 2\n 2\n 2\n 2\n"),
              expected)
        << line;
    EXPECT_EQ(platform.TakeTexts(), Texts{"A number in USERADJ.CSV cannot be read"}) << line;
  }
}

TEST_F(UserFactorsTest, AFactorTooLargeStopsTheReading) {
  EXPECT_EQ(OpenedWith(" 1e39\n 0.7\n"), kOnes);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
  EXPECT_EQ(OpenedWith(" 1e999\n 0.7\n"), kOnes);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in USERADJ.CSV is too large"});
}

TEST_F(UserFactorsTest, OpeningAnewForgetsTypedFactors) {
  window.factors[3] = "0.5";
  OpenGlulamWindow(window, session, platform);
  EXPECT_EQ(Factors(), kOnes);
}

TEST_F(UserFactorsTest, AreSavedOneALineWithALeadingBlankWhereNotNegative) {
  window.factors = {"0.85", "0",   "-0.5", "1.333333",    "1.00", "2",   "100",
                    "",     "abc", "1.5x", "0.123456789", "-2",   "1e7", ".25"};
  EXPECT_EQ(Save(),
            " 0.85\n 0\n-0.5\n 1.333333\n 1\n 2\n 100\n 0\n 0\n 1.5\n 0.1234568\n-2\n 1E+07\n"
            " 0.25\n");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(UserFactorsTest, ATypedFactorActsAsTypedAndComesBackWithTwoDecimals) {
  LoadDouglasFir();
  TypeFactor(GlulamValue::FbxTensionZone, "0.854");
  EXPECT_EQ(Shown(GlulamValue::FbxTensionZone), "2049.60");
  Save();
  OpenGlulamWindow(window, session, platform);
  EXPECT_EQ(window.factors[0], "0.85");
}

TEST_F(UserFactorsTest, AFactorTooLargeIsToldAndNothingIsSaved) {
  window.factors[5] = "1e39";
  const std::string before = FileBytes(folder.Path("USERADJ.CSV"));
  EXPECT_EQ(Save(), before);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The number is too large"});
}

TEST_F(UserFactorsTest, AWriteThatFailsLeavesTheFileWholeAndSaysNothing) {
  const std::string before = FileBytes(folder.Path("USERADJ.CSV"));
  std::filesystem::create_directories(folder.Path("USERADJ.CSV.part/inside"));
  window.factors[0] = "0.5";
  EXPECT_EQ(Save(), before);
  EXPECT_TRUE(platform.messages.empty());
}

}  // namespace
}  // namespace lignara
