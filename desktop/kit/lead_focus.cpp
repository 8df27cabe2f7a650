#include "desktop/kit/lead_focus.h"

#include <QApplication>
#include <QFocusEvent>

namespace lignara {

void LeadFocus(QWidget* widget, Qt::FocusReason reason) {
  const QWidget* before = widget->window()->focusWidget();
  widget->setFocus(reason);
  const bool came = before != widget && widget->window()->focusWidget() == widget;
  if (!came || QApplication::focusWidget() == widget) return;
  QFocusEvent in(QEvent::FocusIn, reason);
  QApplication::sendEvent(widget, &in);
}

}  // namespace lignara
