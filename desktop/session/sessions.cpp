#include "desktop/session/sessions.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProgressDialog>
#include <chrono>
#include <memory>

#include "app/launcher.h"
#include "app/replace_file.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

constexpr int kProgressAfter = 500;        // milliseconds
constexpr int kLongestUndo = 1'000'000;    // microseconds
constexpr qsizetype kMostLinesShown = 20;  // of what is told at the end

/// A bar with "Cancel" that comes up when a play takes long. None where nobody looks.
SessionProgress ProgressBar(int lines, const DesktopPlatform& platform) {
  if (platform.respondent() != nullptr) return [](int) { return true; };
  auto bar = std::make_shared<QProgressDialog>("Playing the session...", "Cancel", 0, lines);
  bar->setWindowModality(Qt::ApplicationModal);
  bar->setMinimumDuration(kProgressAfter);
  return [bar](int done) {
    bar->setValue(done);
    return !bar->wasCanceled();
  };
}

QString ListOf(const SessionPlay& play) {
  QStringList lines;
  if (!play.stop.isEmpty()) lines << play.stop << "What was built so far is on the screen.";
  if (play.cancelled) lines << "Cancelled. What was built so far is on the screen.";
  lines += play.said;
  for (const QString& what : play.leftOut) lines << "Left out: " + what;
  const qsizetype more = lines.size() - kMostLinesShown;
  if (more > 0) lines = lines.mid(0, kMostLinesShown) << QString("and %1 more").arg(more);
  return lines.join('\n');
}

}  // namespace

Sessions::Sessions(SessionState& session, DesktopPlatform& platform)
    : session_(session), platform_(platform) {
  platform_.SetListener(&record_);
  platform_.SetSessions(this);
  qApp->installEventFilter(this);
  record_.OnAppend([this](const QStringList& lines) { Appended(lines); });
}

Sessions::~Sessions() {
  platform_.SetListener(nullptr);
  platform_.SetSessions(nullptr);
}

void Sessions::Appended(const QStringList& lines) {
  const bool onlyLooks = lines.size() == 1 && lines.first().startsWith("window ");
  if (!playing_ && !onlyLooks) undone_.clear();
  if (!replaying_) appended_(lines);
}

/// Windows close under a command that plays: it waits until the one that called it has ended.
void Sessions::Later(void (Sessions::*command)()) {
  if (playing_) return;
  QMetaObject::invokeMethod(
      this, [this, command] { (this->*command)(); }, Qt::QueuedConnection);
}

QStringList Sessions::Header(const QString& path) const {
  QString title = ToQt(session_.ReportTitle);
  if (title.isEmpty()) title = ToQt(session_.Header.Title);
  if (title.isEmpty()) title = QFileInfo(path).completeBaseName();
  return {"# A session, to be opened again or run by lignara-script",
          QString("# program: %1 %2").arg(kProgramName, ProgramVersion()),
          "# date: " + QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm"),
          "# title: " + title.simplified()};
}

void Sessions::SaveNow() {
  const auto path = platform_.ChooseSaveFile(kSessionFilter);
  if (!path) return;
  const QString text = (Header(ToQt(*path)) + record_.Lines()).join('\n') + "\n";
  if (ReplaceFile(*path, FromQt(text))) {
    platform_.ShowNote("Saved to " + *path);
  } else {
    platform_.ShowMessage({"Cannot write " + *path});
  }
}

void Sessions::OpenNow() {
  const bool work = !record_.actions().empty();
  if (work && !platform_.AskYesNo("Open Session", "All windows are closed. Go on?")) return;
  const auto path = platform_.ChooseOpenFile(kSessionFilter);
  if (!path) return;
  QString refusal;
  const QStringList lines = ReadSessionFile(ToQt(*path), refusal);
  if (!refusal.isEmpty()) {
    platform_.ShowMessage({FromQt(refusal)});
    return;
  }
  PlayAndTell(lines, ToQt(*path), "Open Session");
}

bool Sessions::PlayAndTell(const QStringList& lines, const QString& name, const QString& title) {
  undone_.clear();
  const SessionPlay play = Replay(lines, name);
  const QString list = ListOf(play);
  if (!list.isEmpty()) platform_.ShowMessage({FromQt(list), FromQt(title)});
  return play.stop.isEmpty() && !play.cancelled;
}

SessionPlay Sessions::Replay(const QStringList& lines, const QString& name) {
  playing_ = replaying_ = true;
  StartAgain();
  const SessionPlay play =
      PlaySession(lines, name, platform_, ProgressBar(static_cast<int>(lines.size()), platform_));
  playing_ = replaying_ = false;
  replaced_();
  return play;
}

void Sessions::StartAgain() {
  StartProgramAgain(session_, platform_);
  record_.Clear();
}

bool Sessions::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* field = qobject_cast<QLineEdit*>(watched);
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool none =
      field != nullptr && ((key->matches(QKeySequence::Undo) && !field->isUndoAvailable()) ||
                           (key->matches(QKeySequence::Redo) && !field->isRedoAvailable()));
  if (none) event->ignore();
  return none;
}

bool Sessions::CanUndo() const { return record_.LastDone() > 0; }

void Sessions::UndoNow() {
  const std::size_t last = record_.LastDone();
  if (last == 0) return;
  if (record_.CostOfFirst(last - 1) > kLongestUndo) {
    platform_.ShowNote("No undo: to do all again but the last action takes more than a second");
    return;
  }
  const QStringList taken = record_.LinesOf(last - 1);
  Replay(record_.LinesOfFirst(last - 1), "Undo");
  undone_.push_back(taken);
}

void Sessions::RedoNow() {
  if (undone_.empty()) return;
  const QStringList lines = undone_.back();
  undone_.pop_back();
  playing_ = true;
  PlaySession(lines, "Redo", platform_, [](int) { return true; });
  playing_ = false;
}

}  // namespace lignara
