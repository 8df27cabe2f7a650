#include "desktop/kit/arrow_pointer.h"

#include <QApplication>

namespace lignara {

ArrowPointer::ArrowPointer() : set_(QApplication::overrideCursor() != nullptr) {
  if (set_) QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ArrowPointer::~ArrowPointer() {
  if (set_) QApplication::restoreOverrideCursor();
}

}  // namespace lignara
