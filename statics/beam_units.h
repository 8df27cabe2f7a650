#pragma once

namespace lignara {

/// From the units in which the beam windows take a beam to those of statics and back.
struct BeamUnits {
  double stiffness;   ///< of E I: psi in^4 in lbs ft^2, kPa cm^4 in N m^2
  double deflection;  ///< of 1 ft in inches, of 1 m in centimetres
};

/// Of a `unitSystem`: 0 English, 1 metric.
constexpr BeamUnits BeamUnitsOf(int unitSystem) {
  return unitSystem == 1 ? BeamUnits{1e-5, 100} : BeamUnits{1.0 / 144, 12};
}

}  // namespace lignara
