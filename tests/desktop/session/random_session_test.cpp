// What a hand without a plan does is recorded, played again, and ends in the same windows with the
// same content.

#include <gtest/gtest.h>

#include <QApplication>
#include <chrono>

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_player.h"
#include "desktop/session/session_record.h"
#include "tests/desktop/monkey.h"
#include "tests/desktop/screen_text.h"

namespace lignara {
namespace {

/// Plays the lines of a record; the reason, where one cannot be carried out.
std::string Play(const QStringList& lines, ScriptPlatform& platform) {
  ScriptPlayer player(platform, platform.answers(), [](const QString&) {});
  for (const QString& line : lines) {
    try {
      player.Play(line);
    } catch (const ScriptError& error) {
      return FromQt(line + ": " + error.reason);
    }
  }
  return "";
}

/// What the windows of `monkey` show; each monkey has a data folder of its own.
QStringList Shown(Monkey& monkey) {
  return ScreenText(monkey.platform()).replaceInStrings(monkey.folder(), "(data folder)");
}

/// Where a walk begins: the launcher, or a window that it reaches too seldom from there.
struct Walk {
  unsigned seed;
  const char* start;
};

class RandomSessionTest : public testing::TestWithParam<Walk> {};

TEST_P(RandomSessionTest, PlayedAgainEndsTheSame) {
  Monkey first(GetParam().seed);
  SessionRecord record;
  first.platform().SetListener(&record);
  ASSERT_EQ(Play({GetParam().start}, first.platform()), "");
  first.Play(400);
  first.platform().SetListener(nullptr);

  Monkey second(GetParam().seed);
  ASSERT_EQ(Play(record.Lines(), second.platform()), "") << FromQt(record.Lines().join('\n'));
  const QStringList expected = Shown(first);
  const QStringList shown = Shown(second);
  for (qsizetype i = 0; i < std::max(expected.size(), shown.size()); ++i) {
    ASSERT_EQ(FromQt(shown.value(i)), FromQt(expected.value(i)))
        << FromQt(record.Lines().join('\n'));
  }
}

INSTANTIATE_TEST_SUITE_P(Walks, RandomSessionTest,
                         testing::Values(Walk{101, ""}, Walk{102, ""}, Walk{103, ""}, Walk{104, ""},
                                         Walk{105, "press \"Single Span Beams\""},
                                         Walk{106, "press \"Single Span Beams\""},
                                         Walk{107, "press \"Glu-Lam Data Base\""},
                                         Walk{108, "press \"Ply Wood\""},
                                         Walk{109, "press \"Fastener Data Base\""}));

}  // namespace
}  // namespace lignara
