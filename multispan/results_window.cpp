#include "multispan/results_window.h"

#include <algorithm>

#include "app/number_pattern.h"
#include "multispan/diagrams.h"
#include "multispan/multi_span_statics.h"
#include "multispan/stress_check.h"

namespace lignara {
namespace {

constexpr const char* kTableNumber = "##0.##";
constexpr const char* kReadOut = "#.##";

constexpr ResultCaptions kEnglish = {"Units are lbs and ft-lbs", "Location(ft)", "Def.(in)",
                                     "Max(in) =", "ft"};
constexpr ResultCaptions kMetric = {"Units are N and N-m", "Location(m)", "Def.(cm)", "Max(cm)",
                                    "m"};

void FillTables(MultiSpanResults& window) {
  const MultiSpanSolution& run = *window.run;
  for (int j = 1; j <= run.beam.count; ++j) {
    window.endMoments.push_back(
        {std::to_string(j),
         FormatNumber(run.moments.finalMoment(j, kLeftEnd).value(), kTableNumber),
         FormatNumber(run.moments.finalMoment(j, kRightEnd).value(), kTableNumber)});
  }
  for (int s = 1; s <= run.beam.count + 1; ++s) {
    window.reactions.push_back(
        {std::to_string(s), FormatNumber(run.moments.reaction[s].value(), kTableNumber)});
  }
}

void DrawDiagrams(MultiSpanResults& window) {
  window.shearPicture = DrawShearDiagram(*window.run, window.cursor);
  window.momentPicture = DrawMomentDiagram(*window.run, window.cursor);
}

const char* StatusOf(const MultiSpanResults& window) {
  if (window.runOlder) return "The beam has changed since this run: run it again";
  if (window.stressOlder) return "A member has changed since the stress check: check again";
  return "";
}

}  // namespace

const ResultCaptions& ResultCaptionsOf(int unitSystem) {
  return unitSystem == 1 ? kMetric : kEnglish;
}

void ShowMultiSpanResults(MultiSpanResults& window, const SessionState& session) {
  const bool staticsOpen = window.statics.open;
  window = MultiSpanResults();
  window.statics.open = staticsOpen;
  window.run = session.MultiSpanRun;
  ShowUnbracedLength(window, session);
  if (window.run == nullptr) return;
  FillTables(window);
  window.maxMoment = FormatNumber(window.run->maximum.moment, kTableNumber);
  window.maxMomentPlace = "at " + FormatNumber(window.run->maximum.location, kTableNumber) + " " +
                          ResultCaptionsOf(session.unitSystem.value()).length;
  DrawDiagrams(window);
  CheckMultiSpanStatics(window, session);
}

void RefreshMultiSpanResults(MultiSpanResults& window, const SessionState& session) {
  if (window.run != session.MultiSpanRun) ShowMultiSpanResults(window, session);
  if (window.run == nullptr) return;
  const MultiSpanModel& model = session.MultiSpan;
  window.runOlder = window.run->curve.integrations != model.curveIntegrations.value() ||
                    window.run->beam != RealLoads(model);
  const bool checked = !window.stressRows.empty();
  window.stressOlder = checked && (window.runOlder || window.stressInputs != StressInputsOf(model));
  window.status = StatusOf(window);
}

void ReadDiagrams(MultiSpanResults& window, double x) {
  if (window.run == nullptr) return;
  window.cursor = x;
  window.location = FormatNumber(x, kReadOut);
  window.shear = FormatNumber(window.run->shear.ShearAt(x), kReadOut);
  window.moment = FormatNumber(window.run->curve.MomentAt(x), kReadOut);
  DrawDiagrams(window);
}

void MoveCursor(MultiSpanResults& window, int hundredths) {
  if (window.run == nullptr) return;
  const double length = window.run->curve.length;
  const double start = hundredths > 0 ? 0 : length;
  const double x = window.cursor ? *window.cursor + hundredths * length / 100 : start;
  ReadDiagrams(window, std::clamp(x, 0.0, length));
}

}  // namespace lignara
