#include "truss/headings_and_fonts.h"

#include "app/report_font.h"

namespace lignara {

void ShowReportChoices(TrussWindow& window, const SessionState& session) {
  window.titleText = session.ReportTitle;
  window.descriptionText = session.ReportDescription;
  window.fontTimes = session.ReportFont.Name != "Arial";
  window.fontTen = session.ReportFont.Size.value() != 8;
}

void OpenHeadings(TrussWindow& window) { window.headingsOpen = true; }
void CloseHeadings(TrussWindow& window) { window.headingsOpen = false; }

void AcceptHeadings(TrussWindow& window, SessionState& session) {
  session.ReportTitle = window.titleText;
  session.ReportDescription = window.descriptionText;
  CloseHeadings(window);
}

void OpenFonts(TrussWindow& window) { window.fontsOpen = true; }
void CloseFonts(TrussWindow& window) { window.fontsOpen = false; }

void AcceptFonts(TrussWindow& window, SessionState& session) {
  ChooseReportFont(session, window.fontTimes, window.fontTen);
  CloseFonts(window);
}

}  // namespace lignara
