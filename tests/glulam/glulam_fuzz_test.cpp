// Whatever the files hold, the window opens, loads and computes, and no message is an accident.

#include <algorithm>
#include <random>

#include "glulam/combination_files.h"
#include "glulam/glulam_report.h"
#include "tests/support/glulam_fixture.h"

namespace lignara {
namespace {

class GlulamFuzz : public GlulamTest {
 protected:
  GlulamFuzz() {
    for (std::size_t i = 0; i < kGlulamFiles.size(); ++i) {
      shipped_[i] = FileBytes(ShippedFile(kGlulamFiles[i].fileName));
      folder.Write(kGlulamFiles[i].fileName, shipped_[i]);
    }
  }

  static std::string ShippedFile(const std::string& name) {
    return LIGNARA_DATA_DIRECTORY + ("/" + name);
  }

  /// Loads a file of these bytes and walks through it; the list has its fixed count, every message
  /// is one that a user can understand.
  void ExpectSurvives(std::size_t file, const std::string& bytes) {
    folder.Write(kGlulamFiles[file].fileName, bytes);
    LoadCombinationFile(window, session, platform, static_cast<int>(file) + 1);
    const auto rows = static_cast<int>(window.combinations.rows.size());
    ASSERT_EQ(rows, kGlulamFiles[file].rows);
    for (const int row : {0, rows / 2, rows - 1}) {
      ChooseCombination(window, session, platform, row);
      ASSERT_FALSE(ReportText(GlulamReport(window, session)).empty());
    }
    ExpectKnownMessages(kGlulamFiles[file].fileName);
  }

  void ExpectKnownMessages(const std::string& file) {
    const std::vector<std::string> known = {
        "The file " + file + " is too short", "A number in " + file + " cannot be read",
        "A number in " + file + " is too large", "Division by zero", "The number is too large"};
    for (const std::string& text : platform.TakeTexts()) {
      EXPECT_NE(std::find(known.begin(), known.end(), text), known.end()) << text;
    }
  }

  void ExpectFactorsSurvive(const std::string& bytes) {
    folder.Write("USERADJ.CSV", bytes);
    OpenGlulamWindow(window, session, platform);
    for (const std::string& factor : window.factors) ASSERT_FALSE(factor.empty());
    SaveUserFactors(window, session, platform);
    OpenGlulamWindow(window, session, platform);
    ExpectKnownMessages("USERADJ.CSV");
  }

  std::array<std::string, 4> shipped_;
};

/// A text with some bytes replaced, taken out or put in.
std::string Damaged(std::string text, std::mt19937& random) {
  const std::string bytes = std::string("\",\n\r\t ;-+.eE0919x\xFF", 18) + '\0';
  for (int count = 0; count < 6 && !text.empty(); ++count) {
    const std::size_t at = random() % text.size();
    const char byte = bytes[random() % bytes.size()];
    switch (random() % 3) {
      case 0:
        text[at] = byte;
        break;
      case 1:
        text.erase(at, 1 + random() % 40);
        break;
      default:
        text.insert(at, 1 + random() % 3, byte);
    }
  }
  return text;
}

TEST_F(GlulamFuzz, EveryTruncationOfACombinationFileIsSurvived) {
  Enter("20", "18", "6");
  for (std::size_t file = 0; file < shipped_.size(); ++file) {
    const std::string& whole = shipped_[file];
    for (std::size_t length = 0; length < whole.size(); length += 37) {
      ExpectSurvives(file, whole.substr(0, length));
    }
  }
}

TEST_F(GlulamFuzz, DamagedCombinationFilesAreSurvived) {
  std::mt19937 random(6101);
  Enter("20", "18", "6");
  for (int run = 0; run < 400; ++run) {
    const std::size_t file = random() % shipped_.size();
    ExpectSurvives(file, Damaged(shipped_[file], random));
  }
}

TEST_F(GlulamFuzz, AnyBytesAreSurvived) {
  std::mt19937 random(6102);
  Enter("1e30", "1e-30", "18");
  for (int run = 0; run < 200; ++run) {
    std::string bytes(random() % 2000, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % 256);
    ExpectSurvives(random() % shipped_.size(), bytes);
  }
}

TEST_F(GlulamFuzz, AnyFactorFileIsSurvived) {
  std::mt19937 random(6103);
  const std::string whole = FileBytes(ShippedFile("USERADJ.CSV"));
  for (std::size_t length = 0; length < whole.size(); ++length) {
    ExpectFactorsSurvive(whole.substr(0, length));
  }
  for (int run = 0; run < 300; ++run) ExpectFactorsSurvive(Damaged(whole, random));
}

// Any text that can be typed into the fields.
TEST_F(GlulamFuzz, AnyFieldsAreSurvived) {
  std::mt19937 random(6104);
  LoadCombinationFile(window, session, platform, 1);
  const std::vector<std::string> texts = {
      "",     "0",     "-1", "12",    "1e38", "1e-38", "1e39", "1e99",  "1e999", "x",
      "24.5", "1,200", ".",  "1e-45", "600",  "0.001", "3e30", "1e300", "-1e39"};
  const auto any = [&] { return texts[random() % texts.size()]; };
  for (int run = 0; run < 1500; ++run) {
    TypeFactor(static_cast<GlulamValue>(random() % kGlulamValues), any());
    Enter(any(), any(), any());
    ChooseMoisture(window, session, platform, random() % 2 == 0);
    ChooseDuration(window, session, platform, static_cast<int>(random() % 6) - 1);
    TransferGlulamSelection(window, session, platform);
    for (const std::string& text : platform.TakeTexts()) {
      EXPECT_TRUE(text == "The number is too large" || text == "Division by zero" ||
                  text == "You need to enter a value for L, d and b!")
          << text;
    }
  }
}

}  // namespace
}  // namespace lignara
