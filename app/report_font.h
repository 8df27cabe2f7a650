#pragma once

#include "app/report.h"
#include "app/session_state.h"

namespace lignara {

/// The font of reports as the panels offer it: "Times New Roman" or "Arial", 10 or 8 points.
void ChooseReportFont(SessionState& session, bool times, bool ten);

/// An empty report in the font of the session.
Report NewReport(const SessionState& session);

}  // namespace lignara
