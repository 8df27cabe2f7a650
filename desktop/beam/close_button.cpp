#include "desktop/beam/close_button.h"

#include <QGroupBox>
#include <QPushButton>
#include <utility>

#include "desktop/kit/return_and_escape.h"

namespace lignara {

QPushButton* CloseButton(QGroupBox* panel, Binding& binding, Binding::Command close) {
  auto* button = new QPushButton("Close", panel);
  binding.Press(button, std::move(close));
  SetEscapeButton(panel, button);
  return button;
}

}  // namespace lignara
