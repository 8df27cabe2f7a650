#include "desktop/kit/mouse_pointer.h"

#include <QApplication>

namespace lignara {

void SetWaitingPointer(bool waiting) {
  if (waiting) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

ArrowPointer::ArrowPointer() : set_(QApplication::overrideCursor() != nullptr) {
  if (set_) QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ArrowPointer::~ArrowPointer() {
  if (set_) QApplication::restoreOverrideCursor();
}

}  // namespace lignara
