#pragma once

#include "beam/beam_window.h"

namespace lignara {

// The commands (sawn_check.cpp, glulam_check.cpp).

/// "Calc Stress", "Wood Member...": bending stability, shear, axial and combined stress of a sawn
/// member under the results of the last run. Needs a sawn member, then a run.
///
/// The session's member takes the fields of the stress panel, and then the adjusted bending and
/// compression allowables, until a new member is chosen.
void CheckSawnMember(BeamWindow& window, SessionState& session, Platform& platform);

/// "Calc Stress", "Glu-Lam...": actual stresses beside the tabulated allowables and their
/// conditions of use, without a verdict. Needs a glulam member, then a run.
void CheckGlulamMember(BeamWindow& window, SessionState& session, Platform& platform);

// What both begin and end with (stress_check.cpp).

/// A member of the source that the check is for (kSawnSource or kGlulamSource), and a run: the user
/// is told what is missing.
bool MayCheck(const BeamWindow& window, const SessionState& session, Platform& platform,
              int memberSource);

/// Ends a check: `problem`, if any, is told and marks it as stopped, else the panel opens.
void EndCheck(BeamWindow& window, Platform& platform, const char* problem);

/// Puts the allowables, b and d of the stress panel into the session's member, and the unbraced
/// length into the model.
void TakeCheckFields(BeamWindow& window, SessionState& session);

inline constexpr const char* kAreaMissing =
    "Check your values required for stress, an area value is missing!";

}  // namespace lignara
