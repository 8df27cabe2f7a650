#include "app/field_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

Texts Fields(const std::string& text) {
  FieldStream stream(text);
  Texts fields;
  while (const std::optional<std::string> field = stream.Next()) fields.push_back(*field);
  return fields;
}

struct StreamCase {
  const char* rule;
  std::string text;
  Texts fields;
};

TEST(FieldStream, ReadsFieldsAsAPersonWould) {
  const StreamCase cases[] = {
      {"nothing", "", {}},
      {"commas and line ends separate", "a,b\nc", {"a", "b", "c"}},
      {"line ends of all systems", "a\r\nb\rc\nd", {"a", "b", "c", "d"}},
      {"the last line may lack its end", "a,b\nc,d", {"a", "b", "c", "d"}},
      {"blank lines at the end", "a\n\n  \r\n\t\n", {"a"}},
      {"blank lines at the start and between", "\n\na\n\n\nb\n", {"a", "b"}},
      {"blanks around a field", " a , \tb\t \n  c  ", {"a", "b", "c"}},
      {"blanks within a field", "No. 1 Dense,2", {"No. 1 Dense", "2"}},
      {"quotes are taken off", "\"a\",\"b\"\n", {"a", "b"}},
      {"a comma in quotes", "\"Pine, dense\",7", {"Pine, dense", "7"}},
      {"blanks in quotes stay", "\" a \",b", {" a ", "b"}},
      {"blanks ahead of and behind quotes", "  \"a\"  ,b", {"a", "b"}},
      {"two quotes stand for one", "\"2\"\" x 4\"\"\",b", {"2\" x 4\"", "b"}},
      {"an empty text in quotes", "\"\",\"\"\n\"\"", {"", "", ""}},
      {"an empty field between commas", "a,,b,  ,c", {"a", "", "b", "", "c"}},
      {"an empty field at the start of a line", ",a\n,b", {"", "a", "", "b"}},
      {"a comma at a line's end does not end the record", "a,\nb,\r\n c", {"a", "b", "c"}},
      {"a quote within a bare field", "5\" wide,b", {"5\" wide", "b"}},
      {"text behind a closing quote", "\"a\" x,b", {"a", "b"}},
      {"a quote never closed ends with its line", "\"a,b\nc", {"a,b", "c"}},
      {"a quote never closed at the end", "\"a", {"a"}},
      {"a quote alone", "\"", {""}},
      {"a UTF-8 mark at the start", "\xEF\xBB\xBF\"a\",b", {"a", "b"}},
      {"a UTF-8 mark alone", "\xEF\xBB\xBF", {}},
      {"half a UTF-8 mark is text", "\xEF\xBB", {"\xEF\xBB"}},
      {"letters beyond ASCII", "\"M\xC3\xA9l\xC3\xA8ze\"", {"M\xC3\xA9l\xC3\xA8ze"}},
      {"zero bytes are text", std::string("a\0b,c", 5), {std::string("a\0b", 3), "c"}},
  };
  for (const StreamCase& c : cases) EXPECT_EQ(Fields(c.text), c.fields) << c.rule;
}

TEST(FieldStream, KnowsItsEndBehindBlankLines) {
  FieldStream stream("a\n \r\n\n");
  EXPECT_FALSE(stream.AtEnd());
  EXPECT_EQ(stream.Next(), "a");
  EXPECT_TRUE(stream.AtEnd());
  EXPECT_EQ(stream.Next(), std::nullopt);
  EXPECT_EQ(stream.Next(), std::nullopt);
}

class FieldFileTest : public testing::Test {
 protected:
  FieldFile Open(const std::string& bytes) {
    folder.Write("TEST.CSV", bytes);
    return {folder.DataDirectory(), "TEST.CSV", platform};
  }

  DataFolder folder;
  RecordingPlatform platform;
};

TEST_F(FieldFileTest, ReadsTextsAndNumbers) {
  FieldFile file = Open("2\n\"a, b\", 1.5 ,-3e2,\" 7 \",12 in\n");
  EXPECT_EQ(file.ReadCount(), 2);
  EXPECT_EQ(file.ReadText(), "a, b");
  EXPECT_EQ(file.ReadValue(), 1.5);
  EXPECT_EQ(file.ReadValue(), -300.0);
  EXPECT_EQ(file.ReadValue(), 7.0);
  EXPECT_EQ(file.ReadValue(), 12.0);
  EXPECT_TRUE(file.AtEnd());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FieldFileTest, TextBehindTheLastRecordIsPassedOver) {
  FieldFile file = Open("1\nonly\nmore,text");
  EXPECT_EQ(file.ReadCount(), 1);
  EXPECT_EQ(file.ReadText(), "only");
  EXPECT_FALSE(file.AtEnd());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FieldFileTest, EmptyFieldIsZeroWithoutAMessage) {
  FieldFile file = Open(",,\"\",1\n");
  EXPECT_EQ(file.ReadCount(), 0);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(file.ReadValue(), 0.0);
  EXPECT_EQ(file.ReadValue(), 1.0);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FieldFileTest, WhatIsNoNumberIsZeroAndShownOnce) {
  FieldFile file = Open("abc,-,.,+-1,\" x\",2\n");
  EXPECT_EQ(file.ReadCount(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in TEST.CSV cannot be read"});
  for (int i = 0; i < 4; ++i) EXPECT_EQ(file.ReadValue(), 0.0);
  EXPECT_EQ(file.ReadValue(), 2.0);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FieldFileTest, NumberMayStartWithSignOrPoint) {
  FieldFile file = Open("-.5,+2,.25,-3 psi,\"  7\"\n");
  for (const double value : {-0.5, 2.0, 0.25, -3.0, 7.0}) EXPECT_EQ(file.ReadValue(), value);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(FieldFileTest, ShortFileIsShownOnceAndReadsOn) {
  FieldFile file = Open("5\n\n");
  EXPECT_EQ(file.ReadCount(), 5);
  EXPECT_EQ(file.ReadText(), "");
  EXPECT_EQ(file.ReadValue(), 0.0);
  EXPECT_EQ(file.ReadCount(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file TEST.CSV is too short"});
}

TEST_F(FieldFileTest, EmptyFileIsShort) {
  FieldFile file = Open("");
  EXPECT_TRUE(file.AtEnd());
  EXPECT_EQ(file.ReadCount(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file TEST.CSV is too short"});
}

TEST_F(FieldFileTest, MissingFileIsShownOnceAndReadsAsNothing) {
  FieldFile file(folder.DataDirectory(), "NOWHERE.CSV", platform);
  EXPECT_TRUE(file.AtEnd());
  EXPECT_EQ(file.ReadCount(), 0);
  EXPECT_EQ(file.ReadText(), "");
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open NOWHERE.CSV in " + folder.Folder()});
}

TEST_F(FieldFileTest, DirectoryIsNoFile) {
  std::filesystem::create_directory(folder.Path("SUB.CSV"));
  FieldFile file(folder.DataDirectory(), "SUB.CSV", platform);
  EXPECT_EQ(file.ReadText(), "");
  EXPECT_EQ(platform.TakeTexts(), Texts{"Cannot open SUB.CSV in " + folder.Folder()});
}

TEST_F(FieldFileTest, EmptyNameIsNoFile) {
  FieldFile file(folder.DataDirectory(), "", platform);
  EXPECT_EQ(file.ReadText(), "");
  EXPECT_EQ(platform.TakeTexts(), Texts{"This row names no file"});
}

TEST_F(FieldFileTest, MessageIsAPlainBox) {
  FieldFile file(folder.DataDirectory(), "NOWHERE.CSV", platform);
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Lignara");
  EXPECT_EQ(platform.messages[0].icon, MessageIcon::None);
}

struct CountCase {
  const char* text;
  int count;
  const char* wrong = nullptr;
};

TEST_F(FieldFileTest, CountIsA16BitNumber) {
  constexpr const char* kTooLarge = "A number in TEST.CSV is too large";
  constexpr const char* kTooSmall = "A number in TEST.CSV is too small";
  const CountCase cases[] = {
      {"0", 0},
      {"27", 27},
      {"32767", 32767},
      {"32768", 0, kTooLarge},
      {"99999", 0, kTooLarge},
      {"-3", 0, kTooSmall},
      {"-0.6", 0, kTooSmall},
      {"-0.4", 0},
      {"-32768", 0, kTooSmall},
      {"-1e300", 0, kTooSmall},
      {"1e300", 0, kTooLarge},
      {"1e999", 0, kTooLarge},
      {"\"12\"", 12},
      {"+4", 4},
      {"2.5", 2},
      {"3.5", 4},
      {"2.4", 2},
      {"7 files", 7},
      {"seven", 0, "A number in TEST.CSV cannot be read"},
      {"1e-999", 0},
      {"0x10", 0},
  };
  for (const CountCase& c : cases) {
    FieldFile file = Open(c.text);
    EXPECT_EQ(file.ReadCount(), c.count) << c.text;
    const Texts expected = c.wrong != nullptr ? Texts{c.wrong} : Texts{};
    EXPECT_EQ(platform.TakeTexts(), expected) << c.text;
  }
}

TEST_F(FieldFileTest, AnEmptyCountIsNoCountWhereOneHasToStand) {
  FieldFile file = Open(",7,40000\n");
  EXPECT_EQ(file.ReadFilledCount(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in TEST.CSV cannot be read"});
  EXPECT_EQ(file.ReadFilledCount(), 7);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(file.ReadFilledCount(), 0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in TEST.CSV is too large"});
}

TEST_F(FieldFileTest, NumberTooLargeIsZeroAndShownOnce) {
  FieldFile file = Open("1e999,2,-1e999\n");
  EXPECT_EQ(file.ReadValue(), 0.0);
  EXPECT_EQ(file.ReadValue(), 2.0);
  EXPECT_EQ(file.ReadValue(), 0.0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in TEST.CSV is too large"});
}

TEST_F(FieldFileTest, KnowsWhetherTheLastFieldWasRead) {
  FieldFile file = Open("a,x,5,1e999,,7 in,-3\n");
  EXPECT_TRUE(file.LastFieldRead());
  file.ReadText();
  EXPECT_TRUE(file.LastFieldRead());
  for (const bool read : {false, true, false, true, true, true}) {
    file.ReadValue();
    EXPECT_EQ(file.LastFieldRead(), read);
  }
  file.ReadText();
  EXPECT_FALSE(file.LastFieldRead());
}

TEST_F(FieldFileTest, AnEmptyFieldIsZeroButNoNumberWhereOneHasToStand) {
  FieldFile file = Open(",,\"\",7\n");
  EXPECT_EQ(file.ReadValue(), 0.0);
  EXPECT_TRUE(file.LastFieldRead());
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(file.ReadFilledValue(), 0.0);
  EXPECT_FALSE(file.LastFieldRead());
  EXPECT_EQ(platform.TakeTexts(), Texts{"A number in TEST.CSV cannot be read"});
  file.ReadText();
  EXPECT_EQ(file.ReadFilledValue(), 7.0);
  EXPECT_TRUE(file.LastFieldRead());
  EXPECT_EQ(file.ReadFilledValue(), 0.0);
  EXPECT_EQ(platform.TakeTexts(), Texts{"The file TEST.CSV is too short"});
}

/// Whatever the bytes are, the stream gives at most one field a byte, none with a line end in it,
/// and comes to its end.
void ExpectStreamSurvives(const std::string& bytes) {
  FieldStream stream(bytes);
  std::size_t count = 0;
  while (const std::optional<std::string> field = stream.Next()) {
    ++count;
    ASSERT_LE(count, bytes.size());
    ASSERT_EQ(field->find_first_of("\r\n"), std::string::npos);
  }
  EXPECT_TRUE(stream.AtEnd());
}

TEST(FieldStreamFuzz, RandomBytes) {
  std::mt19937 random(20260);
  std::uniform_int_distribution<int> byte(0, 255);
  std::uniform_int_distribution<std::size_t> length(0, 200);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(length(random), ' ');
    for (char& c : bytes) c = static_cast<char>(byte(random));
    ExpectStreamSurvives(bytes);
  }
}

TEST(FieldStreamFuzz, RandomSeparatorsQuotesAndDigits) {
  constexpr std::string_view kLetters = "\",\r\n \t1.-eX\xEF\xBB\xBF";
  std::mt19937 random(20261);
  std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
  std::uniform_int_distribution<std::size_t> length(0, 60);
  for (int round = 0; round < 5000; ++round) {
    std::string bytes(length(random), ' ');
    for (char& c : bytes) c = kLetters[letter(random)];
    ExpectStreamSurvives(bytes);
  }
}

TEST(FieldStreamFuzz, WrittenFieldsAreReadBack) {
  constexpr std::string_view kLetters = "ab,\" 1.-";
  std::mt19937 random(20262);
  std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
  std::uniform_int_distribution<int> small(0, 6);
  for (int round = 0; round < 1000; ++round) {
    Texts fields;
    std::string text;
    for (int i = small(random); i >= 0; --i) {
      std::string field;
      std::string quoted = "\"";
      for (int length = small(random); length > 0; --length) {
        field += kLetters[letter(random)];
        quoted += field.back() == '"' ? "\"\"" : std::string(1, field.back());
      }
      fields.push_back(field);
      text += quoted + "\"" + (small(random) < 3 ? "," : "\r\n");
    }
    EXPECT_EQ(Fields(text), fields) << text;
  }
}

}  // namespace
}  // namespace lignara
