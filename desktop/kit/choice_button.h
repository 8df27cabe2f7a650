#pragma once

#include <QPushButton>
#include <vector>

#include "desktop/kit/binding.h"

namespace lignara {

/// One button of several of which one is active: the active one is red, the others blue.
QPushButton* MakeChoiceButton(Binding& binding, const QString& caption, Binding::Condition active,
                              Binding::Command command);

/// Makes choice buttons that belong together one stop of the Tab key: it stops at the active one,
/// and the arrow keys go from button to button.
void MakeOneTabStop(Binding& binding, const std::vector<QPushButton*>& buttons);

}  // namespace lignara
