#pragma once

#include "desktop/kit/binding.h"

class QGroupBox;
class QPushButton;

namespace lignara {

/// The command that closes a panel of the single-span window, for Escape too. Made first, it is the
/// first stop of the Tab key in there.
QPushButton* CloseButton(QGroupBox* panel, Binding& binding, Binding::Command close);

}  // namespace lignara
