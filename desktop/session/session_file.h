#pragma once

#include <QString>
#include <QStringList>

#include "app/session_state.h"

namespace lignara {

/// The lines of a session file, read with bounds on its size. Empty, with the reason in `refusal`,
/// where it cannot be read.
QStringList ReadSessionFile(const QString& path, QString& refusal);

/// Writes a session under a head of comments: program, date, title of the project. False where the
/// file cannot be written; it stays as it was then.
bool WriteSessionFile(const QString& path, const SessionState& session, const QStringList& lines);

}  // namespace lignara
