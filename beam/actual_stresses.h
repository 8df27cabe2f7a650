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

/// fv and fb.
void FindBendingAndShear(StressCheck& check, const CheckInput& input);
/// fc or ft, on the area of the chosen member, in^2.
void FindAxialStress(StressCheck& check, const CheckInput& input, const Float32& area);

/// The rows "ACTUAL STRESSES" to "ALLOWABLE STRESSES".
void ListActualStresses(StressCheck& check);

}  // namespace lignara
