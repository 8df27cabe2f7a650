#pragma once

#include "app/project_header.h"
#include "desktop/kit/binding.h"

class QGroupBox;

namespace lignara {

/// The panel "Project Description for Print Header", the same in all beam windows. The record has
/// to live as long as the window.
QGroupBox* MakeHeaderPanel(HeaderPanel& panel, Binding& binding, SessionState& session);

}  // namespace lignara
