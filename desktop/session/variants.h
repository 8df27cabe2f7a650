#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "app/session_state.h"

namespace lignara {

class DesktopPlatform;

/// The values of a list such as "20, 24, 30" or of a range such as "20..40 step 2" (without a step:
/// 1), in as many decimals as the range is given with. Empty, with the reason in `refusal`, where
/// it is neither, or has more than 10,000.
QStringList ParseValues(const QString& text, QString& refusal);

/// A session that is played for several values of one of its fields.
struct Variants {
  QStringList lines;  ///< of the session, with `read` and `rows` lines for what is to be told
  int enterLine = 0;  ///< the index of the `enter` line whose text is the value
  QStringList values;
};

/// Why a line of a session cannot take values; empty where it can.
QString WhyNoVariants(const QStringList& lines, int enterLine);

/// The heads of the table: the field, then what each `read` or `rows` line names.
QStringList VariantHeads(const Variants& variants);

/// Plays a variant in the program as it stands after its start. Gives the row of the table: the
/// value, then a text for each `read` or `rows` line. Empty, with the reason in `refusal`, where a
/// line cannot be carried out.
QStringList PlayVariant(const Variants& variants, const QString& value, SessionState& session,
                        DesktopPlatform& platform, QString& refusal);

/// A row of a table as a line of a CSV file.
QString CsvLine(const QStringList& cells);

}  // namespace lignara
