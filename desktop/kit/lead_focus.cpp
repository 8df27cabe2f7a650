#include "desktop/kit/lead_focus.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPointer>

namespace lignara {
namespace {

/// The widget that was told of the focus last, though its window is not the active one.
QPointer<QWidget>& Told() {
  static QPointer<QWidget> told;
  return told;
}

/// Such a widget would go on showing that it has the focus.
void TellThatItIsGone() {
  if (!Told().isNull() && !Told()->hasFocus()) {
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(Told(), &out);
  }
  Told().clear();
}

}  // namespace

void LeadFocus(QWidget* widget, Qt::FocusReason reason) {
  const QWidget* before = widget->window()->focusWidget();
  widget->setFocus(reason);
  if (before == widget || widget->window()->focusWidget() != widget) return;
  TellThatItIsGone();
  if (QApplication::focusWidget() == widget) return;
  Told() = widget;
  QFocusEvent in(QEvent::FocusIn, reason);
  QApplication::sendEvent(widget, &in);
}

}  // namespace lignara
