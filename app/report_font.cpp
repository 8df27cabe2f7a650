#include "app/report_font.h"

namespace lignara {

void ChooseReportFont(SessionState& session, bool times, bool ten) {
  session.ReportFont.Name = times ? "Times New Roman" : "Arial";
  session.ReportFont.Size = ten ? 10 : 8;
}

Report NewReport(const SessionState& session) {
  Report report;
  report.fontName = session.ReportFont.Name;
  report.fontSize = session.ReportFont.Size.value();
  return report;
}

}  // namespace lignara
