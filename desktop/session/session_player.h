#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace lignara {

class DesktopPlatform;

/// How a session was played.
struct SessionPlay {
  QStringList said;     ///< what boxes would have said
  QStringList leftOut;  ///< what was not done: prints, files, pictures
  QStringList read;     ///< what `read` and `rows` lines told, a text each, where that is kept
  int done = 0;         ///< lines carried out, comments and empty ones not counted
  QString stop;         ///< "FILE:LINE: reason" where a line could not be carried out
  int stopLine = 0;     ///< the number of that line, from 1
  QString reason;       ///< why
  bool cancelled = false;
};

/// Told ahead of each line of how many are done; false ends the play.
using SessionProgress = std::function<bool(int done)>;

/// What becomes of lines that only read.
enum class ReadLines { PassedOver, Kept };

/// Plays the lines of a session on the windows as they stand, with no box on the way. It prints
/// nothing, writes no file and takes no picture, and does not end the program. `name` is the file
/// of the lines.
SessionPlay PlaySession(const QStringList& lines, const QString& name, DesktopPlatform& platform,
                        const SessionProgress& progress, ReadLines reading = ReadLines::PassedOver);

}  // namespace lignara
