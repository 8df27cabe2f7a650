#include "desktop/session/variant_values.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

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

QString ListOf(const QStringList& values) {
  constexpr qsizetype kMostShown = 6;
  if (values.size() <= kMostShown) return values.join(", ");
  return values.mid(0, 3).join(", ") + " ... " + values.last();
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

QString ValuesInWords(const QString& text) {
  if (text.trimmed().isEmpty()) return "";
  QString refusal;
  const QStringList values = ParseValues(text, refusal);
  if (values.isEmpty()) return refusal;
  const QString count = values.size() == 1 ? "1 value" : QString("%1 values").arg(values.size());
  return count + ": " + ListOf(values);
}

}  // namespace lignara
