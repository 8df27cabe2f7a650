#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "app/session_state.h"
#include "desktop/session/control_reading.h"

namespace lignara {

class DesktopPlatform;

/// A session that is played for several values of one of its fields.
struct Variants {
  QStringList lines;  ///< of the session, with `read` and `rows` lines for what is to be told
  int enterLine = 0;  ///< the index of the `enter` line whose text is the value
  QStringList values;
  std::vector<Reading> readings;  ///< besides, of the windows as they stand at the end

  bool operator==(const Variants&) const = default;
};

/// What came of one value.
struct VariantOutcome {
  QStringList read;                ///< a text for each `read` or `rows` line
  std::vector<RowTexts> readings;  ///< nothing where a line could not be carried out
  QStringList said;                ///< what boxes would have said
  QString stop;                    ///< "VALUE:LINE: reason" where a line could not be carried out
  int stopLine = 0;                ///< the number of that line, from 1
  QString reason;                  ///< why it could not; or why something could not be read
};

/// Why a line of a session cannot take values; empty where it can.
QString WhyNoVariants(const QStringList& lines, int enterLine);

/// A line of a session that enters a text into a field.
struct EnterLine {
  int index = 0;   ///< in the session
  QString window;  ///< in which it does
  QString field;   ///< the captions that name it
  QString text;
};

/// The lines of a session that can take values.
std::vector<EnterLine> EnterLines(const QStringList& lines);

/// Plays a variant in the program as it stands after its start.
VariantOutcome PlayVariant(const Variants& variants, const QString& value, SessionState& session,
                           DesktopPlatform& platform);

}  // namespace lignara
