#pragma once

#include "beam/beam_window.h"

namespace lignara {

/// "Files", "Print Report": the text, then the diagrams on a page of their own.
void PrintBeamReport(const BeamWindow& window, const SessionState& session, Platform& platform);
/// "Files", "Print Diagrams Only".
void PrintBeamDiagrams(const BeamWindow& window, const SessionState& session, Platform& platform);
/// "Files", "Save Output to Text File...": the text alone.
void SaveBeamReport(const BeamWindow& window, const SessionState& session, Platform& platform);

/// Member and supports, and the loads, as lines of the report.
std::vector<std::string> BeamStructureLines(const BeamWindow& window);
std::vector<std::string> BeamLoadLines(const SingleSpanBeam& beam);

/// The text of the report.
Report BeamTextReport(const BeamWindow& window, const SessionState& session);

}  // namespace lignara
