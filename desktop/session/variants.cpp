#include "desktop/session/variants.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "app/window_names.h"
#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_line.h"
#include "desktop/session/session_file.h"
#include "desktop/session/session_player.h"

namespace lignara {
namespace {

constexpr int kMostValues = 10000;
constexpr const char* kTooMany = "there are more than 10000 values";

int Decimals(const QString& number) {
  const qsizetype point = number.indexOf('.');
  return point < 0 ? 0 : static_cast<int>(number.size() - point - 1);
}

QStringList RangeValues(const QRegularExpressionMatch& range, QString& refusal) {
  const QString by = range.captured(3).isEmpty() ? "1" : range.captured(3);
  const double first = range.captured(1).toDouble();
  const double last = range.captured(2).toDouble();
  const double step = by.toDouble();
  // As many steps as fit; what is missing to a whole one by rounding counts as whole.
  const double steps = step == 0 ? -1 : std::floor((last - first) / step + 1e-6);
  if (!(steps >= 0)) {
    refusal = "the range has no values: its step does not lead to its end";
    return {};
  }
  if (steps >= kMostValues) {
    refusal = kTooMany;
    return {};
  }
  const int decimals = std::max(Decimals(range.captured(1)), Decimals(by));
  QStringList values;
  for (int i = 0; i <= static_cast<int>(steps); ++i) {
    // What is 0 but for rounding is shown without a sign.
    const double value = first + i * step;
    const double smallest = 0.5 * std::pow(10, -decimals);
    values << QString::number(std::fabs(value) < smallest ? 0 : value, 'f', decimals);
  }
  return values;
}

std::vector<ScriptWord> WordsOf(const QString& line) {
  try {
    return SplitScriptLine(line);
  } catch (const ScriptError&) {
    return {};
  }
}

bool Reads(const std::vector<ScriptWord>& words) {
  return words.size() > 1 && (words[0].text == "read" || words[0].text == "rows");
}

/// The captions of a line, without its first word and so many of its last.
QString Captions(const std::vector<ScriptWord>& words, std::size_t lastOnes) {
  QStringList captions;
  for (std::size_t i = 1; i + lastOnes < words.size(); ++i) captions << words[i].text;
  return captions.join(' ');
}

QString WithValue(const QString& line, const QString& value) {
  const std::vector<ScriptWord> words = WordsOf(line);
  QString changed = words[0].text;
  for (std::size_t i = 1; i + 1 < words.size(); ++i) changed += " " + Quoted(words[i].text);
  return changed + " " + Quoted(value);
}

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

QStringList ParseValues(const QString& text, QString& refusal) {
  static const QString number = "([-+]?(?:\\d+(?:\\.\\d+)?|\\.\\d+))";
  static const QRegularExpression range(
      "^\\s*" + number + "\\s*\\.\\.\\s*" + number + "(?:\\s*step\\s*" + number + ")?\\s*$",
      QRegularExpression::CaseInsensitiveOption);
  if (const auto match = range.match(text); match.hasMatch()) return RangeValues(match, refusal);
  QStringList values;
  for (const QString& value : text.split(',', Qt::SkipEmptyParts)) values << value.trimmed();
  values.removeAll(QString());
  // A slip in a range would play as its first number.
  static const QRegularExpression dots("\\.\\.|\u2026");
  if (!values.filter(dots).isEmpty()) refusal = "a range is written 20..40 step 2";
  if (values.isEmpty()) refusal = "there are no values";
  if (values.size() > kMostValues) refusal = kTooMany;
  return refusal.isEmpty() ? values : QStringList();
}

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

QStringList VariantHeads(const Variants& variants) {
  QStringList heads(Captions(WordsOf(variants.lines[variants.enterLine]), 1));
  for (const QString& line : variants.lines) {
    const std::vector<ScriptWord> words = WordsOf(line);
    if (Reads(words)) heads << Captions(words, 0);
  }
  return heads;
}

VariantOutcome PlayVariant(const Variants& variants, const QString& value, SessionState& session,
                           DesktopPlatform& platform) {
  QStringList lines = variants.lines;
  lines[variants.enterLine] = WithValue(lines[variants.enterLine], value);
  session.FactorsAtStart = StartFactorsIn(lines);
  StartProgramAgain(session, platform);
  const SessionPlay play = PlaySession(
      lines, value, platform, [](int) { return true; }, ReadLines::Kept);
  VariantOutcome outcome{play.read, {}, play.said, play.stop, play.stopLine, play.reason};
  if (play.stop.isEmpty()) ReadAtTheEnd(variants.readings, platform, outcome);
  return outcome;
}

QString CsvLine(const QStringList& cells) {
  static const QRegularExpression special("[\",\\r\\n]");
  QStringList written;
  for (QString cell : cells) {
    const bool quoted = cell.contains(special);
    written << (quoted ? "\"" + cell.replace("\"", "\"\"") + "\"" : cell);
  }
  return written.join(',');
}

}  // namespace lignara
