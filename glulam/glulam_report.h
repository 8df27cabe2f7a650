#pragma once

#include "app/report.h"
#include "glulam/glulam_window.h"

namespace lignara {

/// The report of the window as it stands, for paper and file alike.
Report GlulamReport(const GlulamWindow& window, const SessionState& session);

}  // namespace lignara
