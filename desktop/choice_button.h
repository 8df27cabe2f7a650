#pragma once

#include <QPushButton>

#include "desktop/binding.h"

namespace lignara {

/// One button of several of which one is active: the active one is red, the others blue.
QPushButton* MakeChoiceButton(Binding& binding, const QString& caption, Binding::Condition active,
                              Binding::Command command);

}  // namespace lignara
