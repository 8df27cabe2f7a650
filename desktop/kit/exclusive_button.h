#pragma once

#include <QPushButton>
#include <vector>

#include "desktop/kit/binding.h"

namespace lignara {

/// One button of several of which one is active: the active one is red, the others blue.
QPushButton* MakeExclusiveButton(Binding& binding, const QString& caption,
                                 Binding::Condition active, Binding::Command command);

/// Makes exclusive buttons that belong together one stop of the Tab key: it stops at the active
/// one. The arrow keys choose the next button as it lies on the screen, as among options; up and
/// down go on in the next column, or along a row.
void MakeOneTabStop(Binding& binding, const std::vector<QPushButton*>& buttons);

}  // namespace lignara
