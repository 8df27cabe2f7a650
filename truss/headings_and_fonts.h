#pragma once

#include "truss/truss_window.h"

namespace lignara {

/// Fills the panels "Output Description" and "Fonts" from the session.
void ShowReportChoices(TrussWindow& window, const SessionState& session);

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

}  // namespace lignara
