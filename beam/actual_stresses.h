#pragma once

#include "beam/beam_window.h"

namespace lignara {

/// What a check takes from the fields of the window.
struct CheckInput {
  Float32 sectionModulus;  ///< in^3
  Float32 shearArea;       ///< in^2
  Float32 maxMoment;       ///< ft-lbs, as shown
  Float32 maxShear;        ///< lbs, as shown
  Float32 axial;           ///< lbs, as shown; tension positive

  explicit CheckInput(const BeamWindow& window);
  bool HasAreas() const { return sectionModulus > 0 && shearArea > 0; }
};

/// Puts the allowables, b and d of the stress panel into the session's member, and the unbraced
/// length into the model.
void TakeCheckFields(BeamWindow& window, SessionState& session);

/// fv and fb.
void FindBendingAndShear(StressCheck& check, const CheckInput& input);
/// fc or ft, on the area of the chosen member, in^2.
void FindAxialStress(StressCheck& check, const CheckInput& input, const Float32& area);

/// The rows "ACTUAL STRESSES" to "ALLOWABLE STRESSES".
void ListActualStresses(StressCheck& check);

/// A member of the source that the check is for (kSawnSource or kGlulamSource), and a run: the user
/// is told what is missing.
bool MayCheck(const BeamWindow& window, const SessionState& session, Platform& platform,
              int memberSource);

/// Ends a check: `problem`, if any, is told and marks it as stopped, else the panel opens.
void EndCheck(BeamWindow& window, Platform& platform, const char* problem);

inline constexpr const char* kAreaMissing =
    "Check your values required for stress, an area value is missing!";

}  // namespace lignara
