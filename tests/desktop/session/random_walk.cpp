#include "tests/desktop/session/random_walk.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"
#include "tests/desktop/screen_text.h"

namespace lignara {

RandomWalk::RandomWalk(unsigned seed, const QString& journalFolder)
    : monkey_(seed),
      sessions_(monkey_.session(), monkey_.platform()),
      keeper_(sessions_, monkey_.platform(), journalFolder) {
  monkey_.platform().PaintNothing();
  monkey_.platform().SetListener(this);
}

RandomWalk::~RandomWalk() { monkey_.platform().SetListener(nullptr); }

void RandomWalk::Step() {
  constexpr int kTakesBackAfter = 6;
  if (++steps_ % kTakesBackAfter == 0) {
    TakeBack();
  } else {
    monkey_.Play(1);
  }
}

/// As "Undo" does, which looks at the clock first. The journal is replaced then.
void RandomWalk::TakeBack() {
  SessionRecord& record = sessions_.record();
  const std::size_t last = record.LastDone();
  if (last == 0) return;
  const QStringList lines = record.LinesOfFirst(last - 1);
  takesBack_ = true;
  EXPECT_TRUE(sessions_.PlayAndTell(lines, "Undo", "Undo")) << FromQt(lines.join('\n'));
  takesBack_ = false;
  Tell();
}

void RandomWalk::Begin(ToolWindow* window, const UserAction& action) {
  sessions_.record().Begin(window, action);
}

void RandomWalk::End() {
  sessions_.record().End();
  if (!takesBack_) Tell();
}

void RandomWalk::Tell() { told_(++acted_); }

QStringList RandomWalk::Shown() {
  return ScreenText(monkey_.platform()).replaceInStrings(monkey_.folder(), "(data folder)");
}

}  // namespace lignara
