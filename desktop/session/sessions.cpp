#include "desktop/session/sessions.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <memory>

#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/play_report.h"
#include "desktop/session/program_start.h"
#include "desktop/session/repeat_form.h"
#include "desktop/session/session_file.h"

namespace lignara {
Sessions::Sessions(SessionState& session, DesktopPlatform& platform)
    : session_(session),
      platform_(platform),
      undo_(
          record_, platform_,
          [this](const QStringList& lines, const QString& name) {
            return Replay(lines, name, nullptr);
          },
          [this](const QStringList& lines, const QString& name) { return PlayOn(lines, name); }) {
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
  if (!playing_ && !onlyLooks) undo_.Forget();
  if (!replaying_) appended_(lines);
}

/// Windows close under a command that plays: it waits until the one that called it has ended.
void Sessions::Later(void (Sessions::*command)()) {
  if (playing_) return;
  QMetaObject::invokeMethod(
      this, [this, command] { (this->*command)(); }, Qt::QueuedConnection);
}

bool Sessions::SaveToFile() {
  const auto path = platform_.ChooseSaveFile(kSessionFilter);
  if (!path) return false;
  const QStringList lines = record_.Lines();
  if (!WriteSessionFile(ToQt(*path), session_, lines)) {
    platform_.ShowMessage({"Cannot write " + *path});
    return false;
  }
  saved_ = lines;
  platform_.ShowNote("Saved to " + *path);
  return true;
}

bool Sessions::MayCloseWork() {
  if (record_.actions().empty()) return true;
  if (platform_.respondent() == nullptr) return UserLetsWorkGo();
  return platform_.AskYesNo("Open Session",
                            "All windows are closed, and what is not saved is lost. Go on?");
}

bool Sessions::UserLetsWorkGo() {
  const bool saved = record_.Lines() == saved_;
  QMessageBox box(platform_.Front());
  box.setWindowTitle("Open Session");
  box.setIcon(QMessageBox::Question);
  box.setText("Opening a session closes all windows.");
  box.setInformativeText(saved ? "What you did in them is saved."
                               : "What you did in them is not saved, and would be lost.");
  QPushButton* save = saved ? nullptr : box.addButton("&Save First...", QMessageBox::YesRole);
  QPushButton* open = box.addButton(saved ? "&Open" : "&Open Without Saving",
                                    saved ? QMessageBox::YesRole : QMessageBox::DestructiveRole);
  box.addButton(QMessageBox::Cancel);
  box.setDefaultButton(saved ? open : save);
  box.exec();
  if (save != nullptr && box.clickedButton() == save) return SaveToFile();
  return box.clickedButton() == open;
}

void Sessions::OpenNow() {
  if (!MayCloseWork()) return;
  const auto path = platform_.ChooseOpenFile(kSessionFilter);
  if (!path) return;
  QString refusal;
  const QStringList lines = ReadSessionFile(ToQt(*path), refusal);
  if (!refusal.isEmpty()) {
    platform_.ShowMessage({FromQt(refusal)});
    return;
  }
  if (PlayAndTell(lines, ToQt(*path), "Open Session")) saved_ = record_.Lines();
}

bool Sessions::PlayAndTell(const QStringList& lines, const QString& name, const QString& title) {
  undo_.Forget();
  session_.FactorsAtStart = StartFactorsIn(lines);
  std::unique_ptr<PlayProgress> bar;
  // Where a script stands in the user's place, nobody looks.
  if (platform_.respondent() == nullptr) {
    bar = std::make_unique<PlayProgress>("Playing " + QFileInfo(name).fileName(),
                                         static_cast<int>(lines.size()), progressAfter_);
  }
  const SessionPlay play = Replay(lines, name, bar.get());
  bar.reset();
  Tell(play, name, title);
  return play.stop.isEmpty() && !play.cancelled;
}

void Sessions::Tell(const SessionPlay& play, const QString& name, const QString& title) {
  const QString text = PlayAsText(play);
  if (text.isEmpty()) {
    platform_.ShowNote(FromQt(HowItEnded(play, name)));
  } else if (platform_.respondent() != nullptr) {
    platform_.ShowMessage({FromQt(text), FromQt(title)});
  } else {
    ShowPlay(play, name, title, platform_.Front());
  }
}

SessionPlay Sessions::Replay(const QStringList& lines, const QString& name, PlayProgress* bar) {
  playing_ = replaying_ = true;
  platform_.SetPlayed(true);
  StartAgain();
  const SessionPlay play = PlaySession(
      lines, name, platform_, [bar](int done) { return bar == nullptr || bar->Step(done); });
  platform_.SetPlayed(false);
  if (ToolWindow* front = platform_.Front()) platform_.Activate(front);
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

void Sessions::Repeat() {
  if (playing_) return;
  platform_.OpenWindow(window_name::kRepeat);
  RepeatSession(platform_.FindWindow(window_name::kRepeat), StartLines(session_) + record_.Lines());
}

SessionPlay Sessions::PlayOn(const QStringList& lines, const QString& name) {
  playing_ = true;
  SessionPlay play = PlaySession(lines, name, platform_, [](int) { return true; });
  playing_ = false;
  return play;
}

void Sessions::UndoNow() {
  if (const auto stopped = undo_.TakeBack()) Tell(*stopped, "Undo", "Undo");
}

void Sessions::RedoNow() {
  if (const auto stopped = undo_.DoAgain()) Tell(*stopped, "Redo", "Redo");
}

}  // namespace lignara
