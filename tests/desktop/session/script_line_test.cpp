#include "desktop/session/script_line.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"

namespace lignara {
namespace {

struct Row {
  const char* line;
  std::vector<std::string> words;  ///< a quoted word has ' ahead of it
};

class SplitScriptLineTest : public testing::TestWithParam<Row> {};

TEST_P(SplitScriptLineTest, GivesWords) {
  std::vector<std::string> words;
  for (const ScriptWord& word : SplitScriptLine(GetParam().line)) {
    words.push_back((word.quoted ? "'" : "") + FromQt(word.text));
  }
  EXPECT_EQ(words, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, SplitScriptLineTest,
    testing::Values(Row{"", {}}, Row{"   ", {}}, Row{"# press \"OK\"", {}}, Row{"  # x", {}},
                    Row{"close", {"close"}}, Row{"press \"OK\"", {"press", "'OK"}},
                    Row{"enter \"H (ft)\" 7.5", {"enter", "'H (ft)", "7.5"}},
                    Row{"enter a \"\"", {"enter", "a", "'"}},
                    Row{"x \"a \\\"b\\\" c\\\\\"", {"x", "'a \"b\" c\\"}},
                    Row{"x \"C:\\dir\"", {"x", "'C:\\dir"}},
                    Row{"select \"Grades\" 2 # 3", {"select", "'Grades", "2", "#", "3"}},
                    Row{"\tpress\tOK", {"press", "OK"}}));

TEST(SplitScriptLine, RefusesAnOpenQuote) {
  EXPECT_THROW(SplitScriptLine("press \"OK"), ScriptError);
  EXPECT_THROW(SplitScriptLine("press \"OK\\\""), ScriptError);
}

TEST(Quoted, EscapesQuotesBackslashesAndLineBreaks) {
  EXPECT_EQ(FromQt(Quoted("a\"b\\c\nd")), "\"a\\\"b\\\\c\\nd\"");
  EXPECT_EQ(FromQt(Quoted("")), "\"\"");
}

}  // namespace
}  // namespace lignara
