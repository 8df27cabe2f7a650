#include "desktop/session/play_progress.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include "app/launcher.h"
#include "desktop/kit/form.h"

namespace lignara {
namespace {

/// Milliseconds between two looks at what the user does: quick to the hand, no burden to the play.
constexpr int kLook = 30;

bool IsOfTheHand(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

bool IsEscape(const QEvent* event) {
  return event->type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
}

}  // namespace

PlayProgress::PlayProgress(const QString& what, int lines, int after)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint),
      bar_(new QProgressBar),
      after_(after) {
  setWindowTitle(kProgramName);
  setAttribute(Qt::WA_QuitOnClose, false);
  setModal(true);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(new QLabel(what));
  bar_->setRange(0, lines);
  bar_->setFormat("%v of %m lines");
  bar_->setMinimumWidth(InLetters(320));
  rows->addWidget(bar_);
  auto* cancel = new QPushButton("&Cancel");
  connect(cancel, &QPushButton::clicked, this, &PlayProgress::reject);
  rows->addWidget(cancel, 0, Qt::AlignRight);
  qApp->installEventFilter(this);
  since_.start();
}

PlayProgress::~PlayProgress() {
  QApplication::processEvents();  // what was clicked and typed until now
  qApp->removeEventFilter(this);
}

bool PlayProgress::Step(int done) {
  if (isHidden() && since_.elapsed() < after_) return !cancelled_;
  if (!isHidden() && shown_.elapsed() < kLook) return !cancelled_;
  bar_->setValue(done);
  ComeUp();
  QApplication::processEvents();
  shown_.start();
  return !cancelled_;
}

/// A modal window that the play has opened meanwhile would keep the user from the bar: the one that
/// is shown last is the one that can be used.
void PlayProgress::ComeUp() {
  if (QApplication::activeModalWidget() != this) {
    const bool stood = !isHidden();
    const QPoint place = pos();
    hide();
    if (stood) move(place);
    show();
  }
  raise();
  // Windows that are opened or come to the front take the keyboard along.
  if (!isActiveWindow()) activateWindow();
}

bool PlayProgress::Is(const QObject* watched) const {
  if (watched == windowHandle()) return true;
  return watched->isWidgetType() && static_cast<const QWidget*>(watched)->window() == this;
}

/// Only what comes from outside the program is the user's: the player sends events as well.
bool PlayProgress::eventFilter(QObject* watched, QEvent* event) {
  if (!event->spontaneous() || !IsOfTheHand(event->type()) || Is(watched)) return false;
  if (IsEscape(event)) cancelled_ = true;
  // An override that is taken keeps a key from the shortcuts; a close that is not keeps the window.
  event->setAccepted(event->type() != QEvent::Close);
  return true;
}

}  // namespace lignara
