#pragma once

#include "app/platform.h"
#include "app/session_state.h"
#include "desktop/kit/binding.h"
#include "truss/truss_window.h"

class QListWidget;
class QWidget;

namespace lignara {

/// The part of the window in which nodes get their loads.
struct NodeLoads {
  QWidget* area;
  QListWidget* list;
};

/// The list "Top Node Loads (lbs)", the field that enters a load, and the buttons that open the
/// panels of distributed loads.
NodeLoads MakeNodeLoads(TrussWindow& window, Binding& binding, SessionState& session,
                        Platform& platform);

}  // namespace lignara
