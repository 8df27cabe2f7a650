#include "desktop/session/journal_keeper.h"

#include <QFile>
#include <QLocale>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "desktop/session/session_file.h"
#include "desktop/session/sessions.h"

namespace lignara {

JournalKeeper::JournalKeeper(Sessions& sessions, DesktopPlatform& platform, const QString& folder)
    : sessions_(sessions), platform_(platform), folder_(folder), journal_(folder) {
  sessions_.OnAppend([this](const QStringList& lines) { Append(lines); });
  sessions_.OnReplaced([this] {
    const QStringList lines = sessions_.record().Lines();
    toldStart_ = lines.isEmpty() ? QStringList() : StartLines(sessions_.state());
    journal_.Replace(toldStart_ + lines);
    NoteMissing();
  });
  NoteMissing();
}

void JournalKeeper::Append(const QStringList& lines) {
  const QStringList start = StartLines(sessions_.state());
  journal_.Append(start == toldStart_ ? lines : start + lines);
  toldStart_ = start;
  NoteMissing();
}

void JournalKeeper::NoteMissing() {
  if (journal_.IsWritten() || noted_) return;
  noted_ = true;
  platform_.ShowNote("No journal is kept: " + FromQt(folder_) + " cannot be written");
}

void JournalKeeper::OfferLeft() {
  for (LeftJournal& journal : LeftJournals(folder_)) {
    const QString when = journal.last.toString("yyyy-MM-dd, hh:mm");
    const QString question = "Restore the session of " + when + "?";
    if (platform_.AskYesNo(kProgramName, FromQt(question))) {
      Restore(journal);
      return;
    }
    Keep(journal);
  }
}

void JournalKeeper::Restore(LeftJournal& journal) {
  const bool whole = sessions_.PlayAndTell(journal.lines, journal.path, "Restore Session");
  // What this program's own journal could not take over stays where it is.
  if (whole && journal_.IsWritten()) {
    QFile::remove(journal.path);
  } else {
    Keep(journal);
  }
}

void JournalKeeper::Keep(const LeftJournal& journal) {
  const QString kept = KeepAsSession(journal);
  platform_.ShowMessage(
      {FromQt("The session is kept as " + (kept.isEmpty() ? journal.path : kept))});
}

}  // namespace lignara
