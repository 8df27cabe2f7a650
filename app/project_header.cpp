#include "app/project_header.h"

#include "app/report_font.h"

namespace lignara {

void OpenHeaderPanel(HeaderPanel& panel, const SessionState& session) {
  panel.texts = session.Header;
  panel.fontTimes = session.ReportFont.Name != "Arial";
  panel.fontTen = session.ReportFont.Size.value() != 8;
  panel.open = true;
}

void AcceptHeaderPanel(HeaderPanel& panel, SessionState& session) {
  session.Header = panel.texts;
  ChooseReportFont(session, panel.fontTimes, panel.fontTen);
  panel.open = false;
}

void WriteHeader(Report& report, const ProjectHeader& header) {
  report.Line(header.Title);
  report.Line(header.Title2);
  report.Line("ENGINEER: " + header.Engineer);
  report.Line("DATE: " + header.Date);
  report.Line();
}

}  // namespace lignara
