#include "desktop/session/repeat_window.h"

#include <algorithm>
#include <utility>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "desktop/session/variant_values.h"

namespace lignara {
namespace {

QString RowOf(const EnterLine& line) { return line.window + ": " + line.field + " = " + line.text; }

QString RowOf(const Reading& reading) {
  return reading.window + ": " + reading.path.join(' ') + (reading.rows ? " (rows)" : "");
}

/// What a reading gives now: a text, or how many rows.
QString NoteOf(const Reading& reading, const DesktopPlatform& platform) {
  const RowTexts now = Read(reading, platform);
  return reading.rows ? QString::number(now.size()) : now[0][0];
}

QString WhatIsLeftOf(const QString& text, qsizetype letters) {
  return text.size() > letters ? text.left(letters) + "..." : text;
}

/// Which of several entries into the same field a line is; empty for the only one.
std::string WhichOf(const std::vector<EnterLine>& lines, const EnterLine& line) {
  int count = 0, which = 0;
  for (const EnterLine& other : lines) {
    if (other.window != line.window || other.field != line.field) continue;
    ++count;
    if (other.index <= line.index) ++which;
  }
  return count > 1 ? FromQt(QString("%1 of %2").arg(which).arg(count)) : "";
}

void ShowEntered(RepeatWindow& window) {
  const std::string chosen = window.enteredRows.Chosen();
  const int row = window.enteredRows.row;
  window.enteredRows = {};
  window.enteredNotes.clear();
  for (const EnterLine& line : window.entered) {
    window.enteredRows.rows.push_back(FromQt(RowOf(line)));
    window.enteredNotes.push_back({WhichOf(window.entered, line)});
  }
  window.enteredRows.row = row;
  if (window.enteredRows.Chosen() != chosen) window.enteredRows.row = -1;
}

void ShowReadings(RepeatWindow& window, const std::vector<Reading>& before,
                  const DesktopPlatform& platform) {
  constexpr qsizetype kLetters = 24;
  const std::vector<bool> read = window.read;
  window.readingRows.clear();
  window.readingNotes.clear();
  window.read.clear();
  for (const Reading& reading : window.readings) {
    window.readingRows.push_back(FromQt(RowOf(reading)));
    window.readingNotes.push_back(
        {FromQt(WhatIsLeftOf(NoteOf(reading, platform).simplified(), kLetters))});
    const auto at = std::find(before.begin(), before.end(), reading);
    window.read.push_back(at != before.end() &&
                          read[static_cast<std::size_t>(at - before.begin())]);
  }
}

std::string Counted(const RepeatWindow& window) {
  return FromQt(
      QString("%1 of %2 values played").arg(window.outcomes.size()).arg(window.run.values.size()));
}

}  // namespace

void TakeSession(RepeatWindow& window, const QStringList& lines, const DesktopPlatform& platform) {
  window.lines = lines;
  window.entered = EnterLines(lines);
  ShowEntered(window);
  const std::vector<Reading> before = std::exchange(window.readings, ReadingsIn(platform));
  ShowReadings(window, before, platform);
}

void ChooseEntered(RepeatWindow& window, int row) { window.enteredRows.row = row; }

void EditValues(RepeatWindow& window) {
  window.valuesNote = FromQt(ValuesInWords(ToQt(window.values)));
}

void SetRead(RepeatWindow& window, int row, bool read) {
  const auto at = static_cast<std::size_t>(row);
  if (at < window.read.size()) window.read[at] = read;
}

Variants WantedVariants(const RepeatWindow& window) {
  QString refusal;
  Variants variants{window.lines, -1, ParseValues(ToQt(window.values), refusal), {}};
  if (window.enteredRows.Has(window.enteredRows.row)) {
    variants.enterLine = window.entered[static_cast<std::size_t>(window.enteredRows.row)].index;
  }
  for (std::size_t i = 0; i < window.readings.size(); ++i) {
    if (window.read[i]) variants.readings.push_back(window.readings[i]);
  }
  return variants;
}

std::string WhyNoRun(const RepeatWindow& window) {
  const Variants wanted = WantedVariants(window);
  if (wanted.enterLine < 0) return "Choose what was entered in the session first";
  QString refusal;
  ParseValues(ToQt(window.values), refusal);
  if (!refusal.isEmpty()) return FromQt("The values cannot be used: " + refusal);
  if (wanted.readings.empty()) return "Mark what is to be read at the end first";
  return "";
}

bool IsOutOfDate(const RepeatWindow& window) {
  return !window.outcomes.empty() && !(WantedVariants(window) == window.run);
}

void BeginRun(RepeatWindow& window) {
  window.run = WantedVariants(window);
  window.outcomes.clear();
  window.running = true;
  ShowOutcomes(window);
}

void ShowOutcomes(RepeatWindow& window) {
  window.table = TableOf(window.run, window.outcomes);
  window.status = Counted(window);
}

void EndRun(RepeatWindow& window, const std::string& how) {
  window.running = false;
  ShowOutcomes(window);
  window.status += how;
}

}  // namespace lignara
