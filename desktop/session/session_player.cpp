#include "desktop/session/session_player.h"

#include <utility>

#include "app/program.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/respondent.h"
#include "desktop/kit/text.h"
#include "desktop/session/kept_answers.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_line.h"
#include "desktop/session/script_player.h"
#include "desktop/session/still_windows.h"

namespace lignara {
namespace {

/// The longest text that a field holds, with a sign before each letter, fits.
constexpr qsizetype kLongestLine = 128 * 1024;

/// Takes the kept answers, hears what boxes say, and lets nothing leave the program.
class QuietUser : public Respondent {
 public:
  explicit QuietUser(SessionPlay& play) : play_(play) {}

  void ShowMessage(const Message& message) override {
    const bool own = message.title == kProgramName;
    play_.said << (own ? QString() : ToQt(message.title) + ": ") + ToQt(message.text);
  }
  bool AskYesNo(const std::string&, const std::string&) override { return answers.Question(); }
  std::optional<std::string> PromptText(const std::string&, const std::string&,
                                        const std::string& initial) override {
    const auto text = answers.Prompt(ToQt(initial));
    return text ? std::optional(FromQt(*text)) : std::nullopt;
  }
  std::optional<std::string> ChooseSaveFile(const std::string&) override {
    if (const auto path = answers.File("save dialog")) play_.leftOut << "saving " + *path;
    return std::nullopt;
  }
  std::optional<std::string> ChooseOpenFile(const std::string&) override { return std::nullopt; }
  void PrintReport(const Report&) override { play_.leftOut << "printing"; }
  bool MayWriteFiles() override {
    play_.leftOut << "keeping defaults for later runs of the program";
    return false;
  }

  KeptAnswers answers;

 private:
  SessionPlay& play_;
};

/// Puts a quiet user in the place of the one before, keeps the desktop from choosing windows, and
/// the windows from painting.
class Played {
 public:
  Played(DesktopPlatform& platform, Respondent& user)
      : platform_(platform),
        before_(platform.respondent()),
        was_(platform.IsPlayed()),
        still_(platform) {
    platform_.SetRespondent(&user);
    platform_.SetPlayed(true);
  }
  ~Played() {
    platform_.SetRespondent(before_);
    platform_.SetPlayed(was_);
  }
  Played(const Played&) = delete;
  Played& operator=(const Played&) = delete;

 private:
  DesktopPlatform& platform_;
  Respondent* before_;
  bool was_;
  const StillWindows still_;
};

enum class Meaning { Nothing, Act, Read, Look, Picture };

Meaning MeaningOf(const QString& line) {
  if (line.size() > kLongestLine) throw ScriptError{"the line is too long"};
  const std::vector<ScriptWord> words = SplitScriptLine(line);
  if (words.empty()) return Meaning::Nothing;
  const QString& verb = words.front().text;
  if (verb == "window" && words.size() > 1 && words[1].text == window_name::kRepeat) {
    throw ScriptError{"the window REPEAT is no part of a session"};
  }
  if (verb == "picture" || verb == "screenshot") return Meaning::Picture;
  if (verb == "read" || verb == "rows") return Meaning::Read;
  static const QStringList look = {"state", "shapes", "windows"};
  return look.contains(verb) ? Meaning::Look : Meaning::Act;
}

/// The texts of printed lines such as `value "12.0"` and `row 0 "TL = 5"`.
QString TextsOf(const QStringList& printed) {
  QStringList texts;
  for (const QString& line : printed) {
    for (const ScriptWord& word : SplitScriptLine(line)) {
      if (word.quoted) texts << word.text;
    }
  }
  return texts.join(" | ");
}

}  // namespace

SessionPlay PlaySession(const QStringList& lines, const QString& name, DesktopPlatform& platform,
                        const SessionProgress& progress, ReadLines reading) {
  SessionPlay play;
  QuietUser user(play);
  const Played played(platform, user);
  QStringList told;
  ScriptPlayer player(platform, user.answers, [&told](const QString& line) { told << line; });
  int number = 0;
  for (const QString& line : lines) {
    play.cancelled = !progress(number++);
    if (play.cancelled) break;
    try {
      const Meaning meaning = MeaningOf(line);
      const bool kept = meaning == Meaning::Read && reading == ReadLines::Kept;
      if (meaning == Meaning::Act || kept) player.Play(line);
      if (kept) play.read << TextsOf(std::exchange(told, {}));
      if (meaning == Meaning::Picture) play.leftOut << line;
      if (meaning != Meaning::Nothing) ++play.done;
    } catch (const ScriptError& error) {
      play.stop = QString("%1:%2: %3").arg(name).arg(number).arg(error.reason);
      play.stopLine = number;
      play.reason = error.reason;
      break;
    }
  }
  return play;
}

}  // namespace lignara
