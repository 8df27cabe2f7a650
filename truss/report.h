#pragma once

#include "app/report.h"
#include "truss/truss_window.h"

namespace lignara {

/// "Print": needs a run without errors. The view is afterwards as on opening the window.
void PrintTruss(TrussWindow& window, SessionState& session, Platform& platform);
/// "Save Output to Text File...": the chosen file is made first; it stays empty without a run.
void SaveTrussReport(TrussWindow& window, SessionState& session, Platform& platform);

/// The report for a text file. Where no member was chosen, the areas read 10000 and are 0 after it.
Report TRUSS_FILE(const TrussWindow& window, SessionState& session);
/// The same for paper: after a drawing of the truss, and on three pages. It takes the view back to
/// zoom 1 and its opening origin for the drawing; the canvas is still to be redrawn.
Report TRUSS_PRINT(TrussWindow& window, SessionState& session);

}  // namespace lignara
