#include "desktop/session/variants.h"

#include "app/window_names.h"
#include "desktop/session/program_start.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_line.h"
#include "desktop/session/session_file.h"
#include "desktop/session/session_player.h"

namespace lignara {
namespace {

void ReadAtTheEnd(const std::vector<Reading>& readings, const DesktopPlatform& platform,
                  VariantOutcome& outcome) {
  for (const Reading& reading : readings) {
    outcome.readings.emplace_back();
    try {
      outcome.readings.back() = Read(reading, platform);
    } catch (const ScriptError& error) {
      outcome.reason += (outcome.reason.isEmpty() ? "" : "; ") + error.reason;
    }
  }
}

}  // namespace

QString WhyNoVariants(const QStringList& lines, int enterLine) {
  if (enterLine < 0 || enterLine >= lines.size()) {
    return QString("there is no line %1").arg(enterLine + 1);
  }
  const std::vector<ScriptWord> words = WordsOf(lines[enterLine]);
  const bool enters = words.size() >= 3 && words[0].text == "enter";
  return enters ? QString() : QString("line %1 enters no value").arg(enterLine + 1);
}

std::vector<EnterLine> EnterLines(const QStringList& lines) {
  std::vector<EnterLine> entered;
  QString window = window_name::kLauncher;
  for (int i = 0; i < lines.size(); ++i) {
    const std::vector<ScriptWord> words = WordsOf(lines[i]);
    if (words.size() == 2 && words[0].text == "window") window = words[1].text;
    if (!WhyNoVariants(lines, i).isEmpty()) continue;
    entered.push_back({i, window, Captions(words, 1), words.back().text});
  }
  return entered;
}

VariantOutcome PlayVariant(const Variants& variants, const QString& value, SessionState& session,
                           DesktopPlatform& platform) {
  QStringList lines = variants.lines;
  lines[variants.enterLine] = WithLastWord(lines[variants.enterLine], value);
  session.FactorsAtStart = StartFactorsIn(lines);
  StartProgramAgain(session, platform);
  const SessionPlay play = PlaySession(
      lines, value, platform, [](int) { return true; }, ReadLines::Kept);
  VariantOutcome outcome{play.read, {}, play.said, play.stop, play.stopLine, play.reason};
  if (play.stop.isEmpty()) ReadAtTheEnd(variants.readings, platform, outcome);
  return outcome;
}

}  // namespace lignara
