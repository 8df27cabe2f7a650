#include "desktop/multispan/arrow_button.h"

#include <QPushButton>

#include "desktop/kit/form.h"
#include "desktop/kit/screen_readers.h"

namespace lignara {

void MakeArrow(QPushButton* button, const QString& walk) {
  button->setFixedWidth(InLetters(40));
  button->setToolTip(walk);
  SetSpokenName(button, button->text(), walk);
}

}  // namespace lignara
