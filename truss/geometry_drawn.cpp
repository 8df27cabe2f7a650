#include "truss/geometry_drawn.h"

#include "truss/truss_types.h"

namespace lignara {

void SetDrawnGeometry(TrussJob& job) {
  const TrussStep step = job.type.drawnGeometry;
  if (step != nullptr) step(job);
}

}  // namespace lignara
