#include "beam/descriptions.h"

#include "app/plain_number.h"
#include "beam/support_class.h"

namespace lignara {

std::string DescribeLoads(const SingleSpanBeam& beam) {
  const int loads = beam.loadCount.value();
  return "beam of " + PlainNumber(beam.spanLength) + " ft, left support " +
         SupportWord(beam.leftSupport) + ", right support " + SupportWord(beam.rightSupport) +
         ", " + std::to_string(loads) + (loads == 1 ? " load" : " loads");
}

std::string DescribeDiagram(const BeamWindow& window, Diagram diagram) {
  const std::optional<DiagramPeak> peak = PeakOfDiagram(window, diagram);
  if (!peak) return "before a run";
  return "largest value " + peak->value + " at " + peak->location + " ft";
}

}  // namespace lignara
