#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>

#include "app/session_state.h"

namespace lignara {

/// The kinds of files in the dialogs.
inline constexpr const char* kSessionFilter = "Session(*.lig)|*.lig|All(*.*)|*.*|";

/// The lines of a session file, read with bounds on its size. Empty, with the reason in `refusal`,
/// where it cannot be read.
QStringList ReadSessionFile(const QString& path, QString& refusal);

/// What a session has to know of its start besides its lines, as a comment in them: the user's own
/// glulam factors where it has replaced their file since. None where it has not.
QStringList StartLines(const SessionState& session);
/// The factors that such a comment tells.
std::optional<std::string> StartFactorsIn(const QStringList& lines);

/// Writes a session under a head of comments: program, date, title of the project. False where the
/// file cannot be written; it stays as it was then.
bool WriteSessionFile(const QString& path, const SessionState& session, const QStringList& lines);

}  // namespace lignara
