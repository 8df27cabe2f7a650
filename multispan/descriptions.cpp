#include "multispan/descriptions.h"

#include <algorithm>

#include "app/number_pattern.h"
#include "multispan/end_class.h"

namespace lignara {
namespace {

std::string Counted(int count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

/// The reading of a diagram under its cursor.
std::string UnderCursor(const MultiSpanResults& window, const std::string& value) {
  return window.cursor ? ", " + value + " at " + window.location + " ft" : std::string();
}

}  // namespace

std::string DescribeBeam(const MultiSpanModel& model) {
  int uniform = 0;
  int points = 0;
  for (int j = 1; j <= std::min<int>(model.spanCount.value(), kMultiSpanLimit); ++j) {
    if (model.spanUniform[j].value() != 0) ++uniform;
    points += model.pointCount[j].value();
  }
  return "Beam of " + Counted(model.spanCount.value(), "span") + ", left end " +
         SupportWord(model.farLeftSupport) + ", right end " + SupportWord(model.farRightSupport) +
         ", " + Counted(uniform, "uniform load") + ", " + Counted(points, "point load");
}

std::string DescribeShear(const MultiSpanResults& window) {
  if (window.run == nullptr || window.run->spanMaxShear.empty()) return "No run yet";
  const std::vector<float>& shears = window.run->spanMaxShear;
  const float largest = *std::max_element(shears.begin(), shears.end());
  return "Shear along the beam: largest " + FormatNumber(largest, kTwoDecimals) + " lbs" +
         UnderCursor(window, window.shear);
}

std::string DescribeMoment(const MultiSpanResults& window) {
  if (window.run == nullptr) return "No run yet";
  return "Moment along the beam: largest " +
         FormatNumber(window.run->maximum.moment, kTwoDecimals) + " ft-lbs" +
         UnderCursor(window, window.moment);
}

std::string DescribeShape(const MultiSpanResults& window) {
  const ShapePanel& panel = window.shape;
  if (!panel.open) return "";
  return "Deflected shape: largest " + panel.largest + " in, " + panel.deflection + " in at " +
         panel.location + " ft";
}

}  // namespace lignara
