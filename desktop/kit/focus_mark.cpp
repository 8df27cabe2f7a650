#include "desktop/kit/focus_mark.h"

#include <QApplication>
#include <QEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QSplitter>
#include <QTimer>

#include "desktop/kit/scroll_page.h"

namespace lignara {
namespace {

/// The rim itself: it lets the mouse through.
class Rim : public QWidget {
 public:
  explicit Rim(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
  }
};

/// A splitter would take the rim for one more part.
QWidget* HostOf(const QWidget* widget) {
  QWidget* host = widget->parentWidget();
  while (qobject_cast<QSplitter*>(host) != nullptr) host = host->parentWidget();
  return host;
}

/// The panel around a widget is scrolled to first, so that as much as possible of it is seen.
void RevealWithPanel(QWidget* widget) {
  for (QWidget* at = widget->parentWidget(); at != nullptr; at = at->parentWidget()) {
    if (qobject_cast<QGroupBox*>(at) != nullptr) {
      Reveal(at);
      break;
    }
  }
  Reveal(widget);
}

}  // namespace

FocusMark::FocusMark(QWidget* window) : QObject(window), window_(window) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now != nullptr && now->window() == window_) Follow(now);
  });
}

void FocusMark::Follow(QWidget* now) {
  if (marked_) marked_->removeEventFilter(this);
  marked_ = now;
  if (rim_) rim_->hide();
  // What has just been shown has no place yet.
  QTimer::singleShot(0, now, [now] { RevealWithPanel(now); });
  // Fields mark themselves, with a rim and the cursor.
  if (now == window_ || qobject_cast<QLineEdit*>(now) != nullptr) return;
  now->installEventFilter(this);
  ShowRim();
}

void FocusMark::ShowRim() {
  QWidget* host = HostOf(marked_);
  if (host == nullptr || !marked_->isVisible()) return;
  if (rim_ && rim_->parentWidget() != host) delete rim_;
  if (!rim_) rim_ = new Rim(host);
  PlaceRim();
  rim_->show();
}

void FocusMark::PlaceRim() {
  if (!rim_) return;
  QWidget* host = rim_->parentWidget();
  const QRect around(marked_->mapTo(host, QPoint(0, 0)), marked_->size());
  rim_->setGeometry(around.adjusted(-2, -2, 2, 2).intersected(host->rect()));
  rim_->raise();
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event) {
  if (watched != marked_) return false;
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      PlaceRim();
      break;
    case QEvent::FocusIn:
      ShowRim();
      break;
    case QEvent::FocusOut:
    case QEvent::Hide:
      if (rim_) rim_->hide();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace lignara
