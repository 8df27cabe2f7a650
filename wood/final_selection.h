#pragma once

#include <string>

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

}  // namespace lignara
