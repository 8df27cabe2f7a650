#pragma once

#include "app/platform.h"

namespace lignara {

/// Shows a message box with one "OK". With `offer` it has a tick "Do not show again during this
/// command"; returns whether the user set it.
bool ShowMessageBox(const Message& message, bool offer);

}  // namespace lignara
