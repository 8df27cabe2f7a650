#include "desktop/session/undo_redo.h"

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "desktop/session/front_and_focus.h"
#include "desktop/session/script_line.h"

namespace lignara {
namespace {

constexpr int kLongestUndo = 1'000'000;  // microseconds

/// A line for the eye: without the quotes of its words, and no longer than a status line is.
QString InWords(const QString& line) {
  constexpr qsizetype kMost = 80;
  QStringList texts;
  for (const ScriptWord& word : SplitScriptLine(line)) texts << word.text;
  if (texts.last() == kIdleKey) texts = QStringList("coming into") + texts.mid(1, texts.size() - 2);
  const QString words = texts.join(' ').simplified();
  return words.size() > kMost ? words.left(kMost) + "..." : words;
}

/// How many of the first actions a play did whole.
std::size_t DoneWhole(const SessionPlay& play, std::size_t asked,
                      const std::vector<qsizetype>& lineCounts) {
  std::size_t done = asked;
  if (play.stop.isEmpty()) return done;
  while (done > 0 && lineCounts[done - 1] >= play.stopLine) --done;
  return done;
}

}  // namespace

std::optional<SessionPlay> UndoRedo::TakeBack() {
  const std::size_t last = record_.LastDone();
  if (last == 0) {
    platform_.ShowNote("There is nothing to undo");
    return std::nullopt;
  }
  if (record_.CostOfFirst(last - 1) > kLongestUndo) {
    platform_.ShowNote("No undo: to do all again but the last action takes more than a second");
    return std::nullopt;
  }
  const UserPlace place = PlaceOfUser(platform_);
  std::vector<QStringList> actions;
  for (std::size_t i = 0; i < last; ++i) actions.push_back(record_.LinesOf(i));
  const std::vector<qsizetype> lineCounts = record_.LineCounts();
  SessionPlay play = anew_(record_.LinesOfFirst(last - 1), "Undo");
  const std::size_t done = DoneWhole(play, last - 1, lineCounts);
  undone_.insert(undone_.end(), actions.rbegin(),
                 actions.rend() - static_cast<std::ptrdiff_t>(done));
  LeadBack(place, platform_);
  if (!play.stop.isEmpty()) return play;
  platform_.ShowNote(FromQt("Undone: " + InWords(actions.back().last())));
  return std::nullopt;
}

std::optional<SessionPlay> UndoRedo::DoAgain() {
  if (undone_.empty()) {
    platform_.ShowNote("There is nothing to redo");
    return std::nullopt;
  }
  const QStringList lines = undone_.back();
  const UserPlace place = PlaceOfUser(platform_);
  const QStringList open = platform_.OpenWindows();
  SessionPlay play = on_(lines, "Redo");
  // A window that comes up is where the user goes on.
  if (platform_.OpenWindows() == open) LeadBack(place, platform_);
  // What could not be done waits for another try: the later ones stand on it.
  if (!play.stop.isEmpty()) return play;
  undone_.pop_back();
  platform_.ShowNote(FromQt("Redone: " + InWords(lines.last())));
  return std::nullopt;
}

}  // namespace lignara
