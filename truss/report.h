#pragma once

#include "app/report.h"
#include "truss/truss_window.h"

namespace lignara {

/// "Headings...": opens the panel "Output Description".
void OpenHeadings(TrussWindow& window);
/// Leaves that panel; the texts stay in it and do not go into the session.
void CloseHeadings(TrussWindow& window);
/// "OK" of that panel: title and description go into the session.
void AcceptHeadings(TrussWindow& window, SessionState& session);

/// "Fonts...": opens the panel "Fonts".
void OpenFonts(TrussWindow& window);
/// Leaves that panel; the session's font stays.
void CloseFonts(TrussWindow& window);
/// "OK" of that panel: the font goes into the session. Reports keep their own font.
void AcceptFonts(TrussWindow& window, SessionState& session);

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
