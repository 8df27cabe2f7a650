#pragma once

#include "app/platform.h"
#include "app/session_state.h"
#include "desktop/kit/binding.h"

class QGroupBox;
class QPushButton;
class QWidget;

namespace lignara {

struct WoodDataBaseWindow;

/// The panel, and the buttons that Return and Escape press.
struct FactorPanelParts {
  QGroupBox* panel = nullptr;
  QPushButton* calculate = nullptr;
  QPushButton* cancel = nullptr;
};

/// The panel "Stress Adjustment Factors" of the wood data base, tied to the window's record.
FactorPanelParts MakeFactorPanel(WoodDataBaseWindow& window, Binding& binding,
                                 SessionState& session, Platform& platform);

}  // namespace lignara
