#pragma once

#include "desktop/kit/binding.h"

class QPushButton;
class QString;

namespace lignara {

/// A button that carries out a command.
QPushButton* MakeButton(Binding& binding, const QString& caption, Binding::Command command);

}  // namespace lignara
