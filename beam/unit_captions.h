#pragma once

#include <array>
#include <string_view>

namespace lignara {

/// A caption that bears a unit: as the window spells it, and as the labels of either unit flag do.
struct UnitCaption {
  const char* shown;    ///< in the window, while nothing sets the flag
  const char* english;  ///< flag 0
  const char* metric;   ///< flag 1
};

inline constexpr std::array<UnitCaption, 17> kUnitCaptions = {{
    {"L(ft)", "L(ft)", "L(m)"},
    {"Young Mod. (E psi)", "Young's Mod.,E(psi)", "Young's Mod.,E(kpa)"},
    {"Moment of Inertia, I (in^4)", "Moment of In.,I(in^4)", "Moment of In.,I(cm^4)"},
    {"Unbraced Length (ft)", "Unbraced Length (ft)", "Unbraced Length (m)"},
    {"R1 (lbs)", "R1(lbs)", "R1(N)"},
    {"R2 (lbs)", "R2(lbs)", "R2(N)"},
    {"Ax. Ld (lbs)", "Ax. Ld.(lbs)", "Ax. Ld.(N)"},
    {"Max. Moment(ft-lbs)", "Max. Moment(ft-lbs)", "Max. Moment(N-m)"},
    {"Max. Shear (lbs)", "Max. Shear(lbs)", "Max. Shear(N)"},
    {"Max. Def. (in)", "Max. Def.(in)", "Max. Def.(cm)"},
    {"(ft)", "(ft)", "(m)"},
    {"A(ft)", "A(ft)", "A(m)"},
    {"B(ft)", "B(ft)", "B(m)"},
    {"P(lbs)", "P(lbs)", "P(N)"},
    {"M(ft-lb)", "M(ft-lbs)", "M(N-m)"},
    {"W(lbs/ft)", "W(lbs/ft)", "W(N/m)"},
    {"Disp (in)", "Disp.(in)", "Disp.(cm)"},
}};

/// A caption of the window under the unit flag: with 1 the metric label, else the window's own.
constexpr const char* CaptionInUnits(const char* shown, int unitSystem) {
  if (unitSystem != 1) return shown;
  for (const UnitCaption& caption : kUnitCaptions) {
    if (std::string_view(caption.shown) == shown) return caption.metric;
  }
  return shown;
}

}  // namespace lignara
