#include "desktop/kit/command_button.h"

#include <QPushButton>
#include <utility>

namespace lignara {

QPushButton* MakeButton(Binding& binding, const QString& caption, Binding::Command command) {
  auto* button = new QPushButton(caption);
  binding.Press(button, std::move(command));
  return button;
}

}  // namespace lignara
