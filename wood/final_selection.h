#pragma once

#include "app/number_text.h"
#include "wood/wood_data_base.h"

namespace lignara {

/// A base stress and where "Final Selection" shows it. The modulus shows no decimals.
struct BaseStressBox {
  Float64 BaseStressRecord::*stress;
  std::string FinalSelection::*shown;
  const char* pattern;
};

inline constexpr BaseStressBox kBaseStressBoxes[] = {
    {&BaseStressRecord::Fb, &FinalSelection::fb, kTwoDecimals},
    {&BaseStressRecord::Ft, &FinalSelection::ft, kTwoDecimals},
    {&BaseStressRecord::Fv, &FinalSelection::fv, kTwoDecimals},
    {&BaseStressRecord::FcPerp, &FinalSelection::fcPerp, kTwoDecimals},
    {&BaseStressRecord::FcPar, &FinalSelection::fcPar, kTwoDecimals},
    {&BaseStressRecord::E, &FinalSelection::e, "0"},
};

/// Shows the base values of the chosen grade under "Final Selection". The blank row shows nothing
/// again; where no row is chosen a box says so.
void ShowChosenGrade(WoodDataBaseWindow& window, SessionState& session, Platform& platform);

}  // namespace lignara
