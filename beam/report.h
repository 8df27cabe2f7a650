#pragma once

#include "beam/beam_window.h"

namespace lignara {

/// "Files", "Print Report": the text, then the diagrams on a page of their own.
void PrintBeamReport(const BeamWindow& window, const SessionState& session, Platform& platform);
/// "Files", "Print Diagrams Only".
void PrintBeamDiagrams(const BeamWindow& window, const SessionState& session, Platform& platform);
/// "Files", "Save Output to Text File...": the text alone.
void SaveBeamReport(const BeamWindow& window, const SessionState& session, Platform& platform);

/// The text of the report.
Report BeamTextReport(const BeamWindow& window, const SessionState& session);

}  // namespace lignara
