#include "beam/point_moment.h"

namespace lignara {

void PullMomentFromEnds(SingleSpanBeam& beam, int load) {
  const Number room = 4 * beam.spanLength / beam.accuracySteps;
  const Number lastPlace = (beam.accuracySteps - 4) / beam.accuracySteps * beam.spanLength;
  if (room > beam.loadA[load]) beam.loadA[load] = room;
  if (lastPlace < beam.loadA[load]) beam.loadA[load] = beam.spanLength - room;
}

}  // namespace lignara
