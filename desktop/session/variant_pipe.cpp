#include "desktop/session/variant_pipe.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace lignara {
namespace {

QJsonArray ToJson(const RowTexts& rows) {
  QJsonArray array;
  for (const QStringList& row : rows) array << QJsonArray::fromStringList(row);
  return array;
}

QStringList Texts(const QJsonValue& value) {
  QStringList texts;
  for (const QJsonValue& text : value.toArray()) texts << text.toString();
  return texts;
}

RowTexts Rows(const QJsonValue& value) {
  RowTexts rows;
  for (const QJsonValue& row : value.toArray()) rows << Texts(row);
  return rows;
}

QJsonObject ToJson(const Reading& reading) {
  return {{"window", reading.window},
          {"path", QJsonArray::fromStringList(reading.path)},
          {"rows", reading.rows}};
}

Reading ReadingOf(const QJsonObject& object) {
  return {object["window"].toString(), Texts(object["path"]), object["rows"].toBool(), {}};
}

QByteArray OneLine(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

}  // namespace

QByteArray RequestFor(const Variants& variants) {
  QJsonArray readings;
  for (const Reading& reading : variants.readings) readings << ToJson(reading);
  return OneLine({{"lines", QJsonArray::fromStringList(variants.lines)},
                  {"line", variants.enterLine},
                  {"values", QJsonArray::fromStringList(variants.values)},
                  {"readings", readings}});
}

std::optional<Variants> ReadRequest(const QByteArray& request) {
  const QJsonObject object = QJsonDocument::fromJson(request).object();
  Variants variants{Texts(object["lines"]), object["line"].toInt(-1), Texts(object["values"]), {}};
  for (const QJsonValue& value : object["readings"].toArray()) {
    variants.readings.push_back(ReadingOf(value.toObject()));
    if (variants.readings.back().path.isEmpty()) return std::nullopt;
  }
  const bool able = WhyNoVariants(variants.lines, variants.enterLine).isEmpty();
  return able ? std::optional(variants) : std::nullopt;
}

QByteArray AnswerFor(const VariantOutcome& outcome) {
  QJsonArray readings;
  for (const RowTexts& rows : outcome.readings) readings << ToJson(rows);
  return OneLine({{"readings", readings},
                  {"said", QJsonArray::fromStringList(outcome.said)},
                  {"stopLine", outcome.stopLine},
                  {"reason", outcome.reason}});
}

std::optional<VariantOutcome> ReadAnswer(const QByteArray& answer) {
  const QJsonDocument document = QJsonDocument::fromJson(answer);
  if (!document.isObject()) return std::nullopt;
  const QJsonObject object = document.object();
  VariantOutcome outcome;
  for (const QJsonValue& rows : object["readings"].toArray()) {
    outcome.readings.push_back(Rows(rows));
  }
  outcome.said = Texts(object["said"]);
  outcome.stopLine = object["stopLine"].toInt();
  outcome.reason = object["reason"].toString();
  return outcome;
}

}  // namespace lignara
