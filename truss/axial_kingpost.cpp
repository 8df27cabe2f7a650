#include "truss/axial_loads.h"
#include "truss/axial_peaked.h"

namespace lignara {

void TOP_LOADS_KINGPOST(TrussJob& job) { JoinTopChord(job); }

void VERT_LOADS_KINGPOST(TrussJob& job) { job.model.AX_CV[1] = 0; }

}  // namespace lignara
