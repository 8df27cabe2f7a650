#pragma once

#include <QString>
#include <QStringList>

namespace lignara {

/// The values of a list such as "20, 24, 30" or of a range such as "20..40 step 2" (without a step:
/// 1), in as many decimals as the range is given with. Empty, with the reason in `refusal`, where
/// it is neither, or has more than 10,000.
QStringList ParseValues(const QString& text, QString& refusal);

/// How many values a text gives and which, as "3 values: 20, 24, 30"; only the ends of many. Or why
/// it gives none; nothing for an empty text.
QString ValuesInWords(const QString& text);

}  // namespace lignara
