#pragma once

#include <string>

#include "app/report.h"
#include "app/session_state.h"

namespace lignara {

/// The panel "Project Description for Print Header" of the beam windows. What it holds reaches the
/// session at "OK".
struct HeaderPanel {
  bool open = false;
  ProjectHeader texts;
  bool fontTimes = true;  ///< "Times New Roman", else "Arial"
  bool fontTen = true;    ///< 10 points, else 8
};

/// "Project Description...": opens the panel on what the session holds, which may have been entered
/// in another window.
void OpenHeaderPanel(HeaderPanel& panel, const SessionState& session);
/// "OK": texts and font go into the session, and the panel closes.
void AcceptHeaderPanel(HeaderPanel& panel, SessionState& session);

/// The head of a page: the two title lines, engineer, date, a blank line.
void WriteHeader(Report& report, const ProjectHeader& header);

}  // namespace lignara
