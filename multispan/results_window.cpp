#include "multispan/results_window.h"

#include <algorithm>

#include "app/number_text.h"
#include "multispan/diagrams.h"

namespace lignara {
namespace {

constexpr const char* kTableNumber = "##0.##";
constexpr const char* kReadOut = "#.##";

constexpr ResultCaptions kEnglish = {"Units are lbs and ft-lbs", "Location(ft)", "Def.(in)",
                                     "Max(in) ="};
constexpr ResultCaptions kMetric = {"Units are N and N-m", "Location(m)", "Def.(cm)", "Max(cm)"};

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

}  // namespace

const ResultCaptions& ResultCaptionsOf(int unitSystem) {
  return unitSystem == 1 ? kMetric : kEnglish;
}

void ShowMultiSpanResults(MultiSpanResults& window, const SessionState& session) {
  window = MultiSpanResults();
  window.run = session.MultiSpanRun;
  ShowUnbracedLength(window, session);
  if (window.run == nullptr) return;
  FillTables(window);
  window.maxMoment = FormatNumber(window.run->maximum.moment, kTableNumber);
  window.maxMomentPlace = "at " + FormatNumber(window.run->maximum.location, kTableNumber) + " ft";
  DrawDiagrams(window);
}

bool IsOutOfDate(const MultiSpanResults& window, const SessionState& session) {
  return window.run != session.MultiSpanRun;
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
