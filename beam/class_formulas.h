#pragma once

#include <array>

#include "beam/single_span_beam.h"

namespace lignara {

/// A point force on the beam: lbs, and its distances from the left and the right end, ft.
struct PointComponent {
  double force, a, b;
};

struct EndReactions {
  double left, right;  ///< lbs, upward
};

/// The coefficients of c0 + c1 u + c2 u^2 + ..., u being a distance along the beam, ft.
template <std::size_t N>
using Coefficients = std::array<double, N>;
using Constant = Coefficients<1>;
using Line = Coefficients<2>;
using Cubic = Coefficients<4>;

/// The end from which u is measured.
enum class BeamEnd { Left, Right };

/// What a support class makes of one point force: the textbook's closed forms, each written as a
/// polynomial in the distance from the end at which it has no cancelling terms.
struct ClassFormulas {
  SupportClass supportClass;
  BeamEnd leftOfLoad;   ///< from where u is measured at stations left of the force
  BeamEnd rightOfLoad;  ///< and right of it
  EndReactions (*reactions)(const PointComponent& p, double span);
  /// The shear is R1 left of the force and this times R2 right of it.
  double rightShear;
  Line (*momentLeft)(const PointComponent& p, double span);  ///< lb-ft
  Line (*momentRight)(const PointComponent& p, double span);
  Cubic (*deflectionLeft)(const PointComponent& p, double span);  ///< x EI, lb ft^3, downward
  Cubic (*deflectionRight)(const PointComponent& p, double span);
};

/// The formulas of a class that can carry load: not for the two unstable ones.
const ClassFormulas& FormulasOf(SupportClass supportClass);

/// What a support class makes of an upward displacement of one support. D is the reaction at that
/// support: `stiffness` x EI x displacement / L^3.
struct DisplacementFormulas {
  SupportClass supportClass;
  LoadKind kind;
  double stiffness;
  double shear;          ///< x D, all along the beam
  BeamEnd measuredFrom;  ///< u of moment and deflection
  double momentAtEnd;    ///< x D x L, at u = 0
  double momentSlope;    ///< x D
  Cubic deflection;      ///< x displacement, in u / L
};

/// The formulas of a class and a displaced side; nullptr where the beam follows without force, or
/// where nothing holds it.
const DisplacementFormulas* FindDisplacementFormulas(SupportClass supportClass, LoadKind kind);

}  // namespace lignara
