#pragma once

#include <string>

#include "app/number_pattern.h"
#include "wood/species_data.h"

namespace lignara {

/// "Final Selection": the grade at hand. Its values live as text, so that the decimals shown are
/// what goes on.
struct FinalSelection {
  std::string grade;   ///< "Grade"
  std::string fb;      ///< "Allowable Bending Stress (psi)"
  std::string ft;      ///< "Allowable Tensile Stress (psi)"
  std::string fv;      ///< "All. Horz. Shear Stress (psi)"
  std::string fcPerp;  ///< "Allowable Compressive Stress, across grain (psi)"
  std::string fcPar;   ///< "Allowable Compressive Stress, Along Grain (psi)"
  std::string e;       ///< "Youngs Modulus"
};

/// A base stress and where "Final Selection" shows it. The modulus shows no decimals.
struct BaseStressField {
  Float64 BaseStressRecord::*stress;
  std::string FinalSelection::*shown;
  const char* pattern;
};

inline constexpr BaseStressField kBaseStressFields[] = {
    {&BaseStressRecord::Fb, &FinalSelection::fb, kTwoDecimals},
    {&BaseStressRecord::Ft, &FinalSelection::ft, kTwoDecimals},
    {&BaseStressRecord::Fv, &FinalSelection::fv, kTwoDecimals},
    {&BaseStressRecord::FcPerp, &FinalSelection::fcPerp, kTwoDecimals},
    {&BaseStressRecord::FcPar, &FinalSelection::fcPar, kTwoDecimals},
    {&BaseStressRecord::E, &FinalSelection::e, "0"},
};

}  // namespace lignara
