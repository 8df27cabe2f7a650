#pragma once

#include "beam/beam_window.h"

namespace lignara {

/// "Calc Stress", "Wood Member...": bending stability, shear, axial and combined stress of a sawn
/// member under the results of the last run. Needs a sawn member, then a run.
///
/// The session's member takes the fields of the stress panel, and then the adjusted bending and
/// compression allowables, until a new member is chosen.
void CheckSawnMember(BeamWindow& window, SessionState& session, Platform& platform);

/// "Calc Stress", "Glu-Lam...": actual stresses beside the tabulated allowables and their
/// conditions of use, without a verdict. Needs a glulam member, then a run.
void CheckGlulamMember(BeamWindow& window, SessionState& session, Platform& platform);

}  // namespace lignara
