#pragma once

#include <functional>
#include <string>

#include "app/session_state.h"
#include "desktop/kit/binding.h"
#include "statics/comparison.h"

class QGroupBox;
class QWidget;

namespace lignara {

/// The second opinion on the results of a window: what all windows that show it have in common.
struct StaticsView {
  StaticsCheck& check;                 ///< of the window's record
  std::string helpSection;             ///< what "Why?" opens
  std::function<std::string()> title;  ///< of the report, for the saved table
  Binding::Condition outOfDate;        ///< greys the line; may be empty
};

/// The line "Result" with its mark, and the button "Statics Check", which opens and closes the
/// panel. A row of its own, as low as a button.
QWidget* MakeStaticsLine(const StaticsView& view, Binding& binding);

/// The panel "Statics Check": the table "Differences", "Save Table..." and "Why?". Escape closes
/// it.
QGroupBox* MakeStaticsPanel(const StaticsView& view, Binding& binding, const SessionState& session,
                            Platform& platform);

}  // namespace lignara
