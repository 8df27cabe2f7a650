#pragma once

#include <QString>

#include "desktop/session/journal.h"

namespace lignara {

class DesktopPlatform;
class Sessions;

/// Writes the session of a program into a journal, and offers what a program that was ended left.
class JournalKeeper {
 public:
  /// Begins a journal in a folder; where that cannot be, a note says so, once.
  JournalKeeper(Sessions& sessions, DesktopPlatform& platform, const QString& folder);

  /// Asks for each journal that was left, the newest first, until the user wants one restored. One
  /// that is not wanted stays as a session file, of which a box says where it is.
  void OfferLeft();

 private:
  void Append(const QStringList& lines);
  void NoteMissing();
  void Restore(LeftJournal& journal);
  void Keep(const LeftJournal& journal);

  Sessions& sessions_;
  DesktopPlatform& platform_;
  QString folder_;
  Journal journal_;
  bool noted_ = false;
  QStringList toldStart_;  ///< the comment on the start of the session that stands in the journal
};

}  // namespace lignara
